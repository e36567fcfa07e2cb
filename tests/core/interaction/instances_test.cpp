#include "core/interaction/instances.h"

#include "instances_world.h"
#include "support/failure_number.h"

using interaction::InstanceChange;
using support::Instances;
using values::DateTime;

TEST_F(Instances, AreRecordsLikeTheirSeriesAtTheTimeOfTheCell) {
    have(rich());
    make_instance();
    ASSERT_EQ(instance.size(), 12U);
    const store::Activity made = stored(instance), whole = stored(series);
    EXPECT_EQ(made.start, at(10, 9));
    EXPECT_EQ(made.end, at(10, 10)) << "the length of the cell's slot";
    EXPECT_EQ(made.duration, 90) << "the duration of the series";
    EXPECT_EQ(made.type, whole.type);
    EXPECT_EQ(made.priority, whole.priority);
    EXPECT_EQ(made.regarding, "Quarterly figures");
    EXPECT_TRUE(made.is_private);
    EXPECT_TRUE(made.alarm);
    EXPECT_EQ(made.alarm_lead, 20);
    EXPECT_EQ(made.colour, whole.colour);
    EXPECT_EQ(made.user, ann);
    EXPECT_EQ(made.group, group);
    EXPECT_EQ(made.details, whole.details);
    EXPECT_EQ(made.contacts, (Contacts{chris, dana, erin}));
    EXPECT_EQ(made.recurrence.kind, store::RecurrenceKind::none);
    EXPECT_FALSE(made.cleared);
    EXPECT_EQ(whole.exceptions, std::vector<DateTime>{at(10, 0)});
    EXPECT_EQ(whole.start, at(8, 9));
    EXPECT_EQ(whole.contacts, (Contacts{chris, dana, erin}));
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(Instances, ReadTheSeriesAndWriteTheNewRecordInThisOrder) {
    store::Activity activity = daily(8, 9, 30);
    activity.regarding = "Figures";
    activity.contacts = {chris, dana};
    have(activity);
    make_instance();
    EXPECT_EQ(record.calls, (Calls{"Data(5)",
                                   "Data(33)",
                                   "Data(30)",
                                   "Data(27)",
                                   "Data(25)",
                                   "Data(26)",
                                   "Data(45)",
                                   "Data(34)",
                                   "Data(32)",
                                   "Data(39)",
                                   "FirstScheduledWith",
                                   "NextScheduledWith",
                                   "NextScheduledWith",
                                   "Add",
                                   "Data(5, 0)",
                                   "Data(25, 1)",
                                   "Data(26, 2)",
                                   "Data(27, Figures)",
                                   "Data(28, 1/10/2024 9:00:00 AM)",
                                   "Data(29, 1/10/2024 10:00:00 AM)",
                                   "Data(30, 30)",
                                   "Data(32, 0)",
                                   "Data(33, 0)",
                                   "Data(34, )",
                                   "Data(37, " + ann + ")",
                                   "Data(39, )",
                                   "Data(45, )",
                                   "Update",
                                   "Goto " + instance,
                                   "FirstScheduledWith(" + chris + ")",
                                   "NextScheduledWith(" + dana + ")",
                                   "Goto " + series,
                                   "ExceptionInfo.Add 1/10/2024"}));
}

TEST_F(Instances, BelongToTheUserOfTheTargetsRow) {
    have(daily(8, 9));
    session.ActActivity->Goto(series);
    const std::string made =
        hands.instances.Change_Instance(cell(row_of(1), col_of(10)), cell(row_of(2, 1), col_of(11)), 30);
    EXPECT_EQ(stored(made).user, bob);
    EXPECT_EQ(stored(made).start, at(11, 10));
    EXPECT_EQ(stored(made).end, at(11, 10, 30));
    EXPECT_EQ(stored(series).exceptions, std::vector<DateTime>{at(10, 0)}) << "the source's day";
}

TEST_F(Instances, InSharedRowsStayWithTheUserOfTheSeries) {
    store::Activity activity = daily(8, 9);
    activity.user = bob;
    series = add(activity);
    open(7, false);
    session.ActActivity->Goto(series);
    const grid::clsMsgSchedCell& clicked = cell(row_of(1), 1 + 3);
    EXPECT_EQ(stored(hands.instances.Change_Instance(clicked, clicked, 60)).user, bob);
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(Instances, OfASeriesWithNobodyAreWithNobody) {
    store::Activity activity = daily(8, 9);
    activity.contacts.clear();
    have(activity);
    make_instance();
    EXPECT_EQ(stored(instance).contacts, Contacts{});
    EXPECT_EQ(hands.instances.Compare_Instance(instance), InstanceChange::none);
}

TEST_F(Instances, ThatCanNotBeStoredShowTheBoxAndLeaveNoTrace) {
    have(daily(8, 9));
    fail_before("Update", "The disk is full.");
    EXPECT_EQ(make_instance(), "");
    EXPECT_TRUE(only_box().starts_with(
        "Error 440: 'The disk is full.'\rin frmMain: Function Change_Instance - Line # 70\r"))
        << only_box();
    EXPECT_EQ(all().size(), 1U);
    EXPECT_TRUE(stored(series).exceptions.empty());
}

TEST_F(Instances, ThatLoseTheirSeriesMeanwhileStayAsTheyWereStored) {
    have(daily(8, 9));
    before_call("Update", [this] { store().remove_activity(series); });
    EXPECT_EQ(make_instance(), "");
    EXPECT_NE(only_box().find("Function Change_Instance - Line # 100\r"), std::string::npos) << only_box();
    EXPECT_EQ(other_than(series).start, at(10, 9)) << "nothing undoes it";
}

TEST_F(Instances, ThatNobodyTouchedHaveNotChanged) {
    have(rich());
    make_instance();
    record.calls.clear();
    EXPECT_EQ(hands.instances.Compare_Instance(instance), InstanceChange::none);
    EXPECT_EQ(record.calls,
              (Calls{"Goto " + instance, "Data(25)", "Data(26)", "Data(27)", "Data(28)", "Data(29)", "Data(30)",
                     "Data(32)", "Data(33)", "Data(34)", "Data(37)", "Data(39)", "Data(45)", "Data(30)", "Data(5)",
                     "FirstScheduledWith", "NextScheduledWith", "NextScheduledWith", "NextScheduledWith"}));
}

TEST_F(Instances, HaveChangedWithAnyOfTheFieldsOfTheSnapshot) {
    have(rich());
    const std::pair<const char*, std::function<void(store::Activity&)>> changes[] = {
        {"type", [](store::Activity& one) { one.type = store::ActivityType::call; }},
        {"priority", [](store::Activity& one) { one.priority = store::Priority::low; }},
        {"regarding", [](store::Activity& one) { one.regarding += "."; }},
        {"start", [](store::Activity& one) { one.start = at(10, 9, 15); }},
        {"day", [](store::Activity& one) { one.start = at(11, 9), one.end = at(11, 10); }},
        {"end", [](store::Activity& one) { one.end = at(10, 10, 15); }},
        {"duration", [](store::Activity& one) { one.duration = 60; }},
        {"alarm", [](store::Activity& one) { one.alarm = false; }},
        {"alarm lead", [](store::Activity& one) { one.alarm_lead = 5; }},
        {"colour", [](store::Activity& one) { one.colour = 0; }},
        {"no colour", [](store::Activity& one) { one.colour.reset(); }},
        {"user", [&](store::Activity& one) { one.user = bob; }},
        {"group", [](store::Activity& one) { one.group.clear(); }},
        {"details", [](store::Activity& one) { one.details.clear(); }},
        {"private", [](store::Activity& one) { one.is_private = false; }},
        {"first contact", [&](store::Activity& one) { one.contacts = {dana, erin, chris}; }},
        {"one contact less", [&](store::Activity& one) { one.contacts = {chris, dana}; }},
        {"another contact", [&](store::Activity& one) { one.contacts = {chris, dana, dana}; }},
        {"no contact", [](store::Activity& one) { one.contacts.clear(); }}};
    for (const auto& [name, made] : changes)
        EXPECT_EQ(after(made), InstanceChange::changed) << name;
    EXPECT_EQ(after([](store::Activity&) {}), InstanceChange::none) << "stored again as it was";
}

TEST_F(Instances, HaveChangedWithAContactMore) {
    have(daily(8, 9));
    EXPECT_EQ(after([&](store::Activity& one) { one.contacts = {chris, dana}; }), InstanceChange::changed);
}

TEST_F(Instances, HaveNotChangedWithWhatTheSnapshotDoesNotHold) {
    have(rich());
    EXPECT_EQ(after([](store::Activity& one) { one.cleared = true, one.result = "Done"; }), InstanceChange::none);
}

TEST_F(Instances, ThatWereGivenARecurrenceAreToldFirstWhateverElseChanged) {
    have(rich());
    const auto found = after([](store::Activity& one) {
        one.recurrence.kind = store::RecurrenceKind::weekly;
        one.recurrence.days_of_week = 8;
        one.regarding = "Something else";
    });
    EXPECT_EQ(found, InstanceChange::recurrence_touched);
}

TEST_F(Instances, AreComparedWithTheSnapshotOfTheLastOne) {
    have(daily(8, 9));
    make_instance();
    const std::string first = instance;
    select(row_of(1), col_of(11));
    session.ActActivity->Goto(series);
    const std::string second = hands.instances.Change_Instance(selected(), selected(), 60);
    EXPECT_EQ(hands.instances.Compare_Instance(second), InstanceChange::none);
    EXPECT_EQ(hands.instances.Compare_Instance(first), InstanceChange::changed);
}

TEST_F(Instances, ThatAreGoneCanNotBeCompared) {
    have(daily(8, 9));
    make_instance();
    store().remove_activity(instance);
    EXPECT_EQ(support::failure_number([&] { hands.instances.Compare_Instance(instance); }), 91);
}

TEST_F(Instances, ThatAreGivenUpGiveTheirSeriesItsOccurrenceBack) {
    have(daily(8, 9));
    make_instance();
    record.calls.clear();
    hands.instances.Delete_Instance(instance, selected());
    EXPECT_FALSE(exists(instance));
    EXPECT_TRUE(stored(series).exceptions.empty());
    EXPECT_EQ(record.calls,
              (Calls{"Goto " + instance, "Delete", "Goto " + series, "ExceptionInfo.Remove 1/10/2024"}));
}

TEST_F(Instances, ThatAreGivenUpLeaveTheOtherExceptionsOfTheirSeries) {
    store::Activity activity = daily(8, 9);
    activity.exceptions = {at(9, 0), at(12, 0)};
    have(activity);
    make_instance();
    hands.instances.Delete_Instance(instance, selected());
    EXPECT_EQ(stored(series).exceptions, (std::vector<DateTime>{at(9, 0), at(12, 0)}));
}

TEST_F(Instances, RemoveTheExceptionOfADayByItself) {
    have(daily(8, 9));
    make_instance();
    record.calls.clear();
    hands.instances.Remove_Exception(series, at(10, 0));
    EXPECT_EQ(record.calls, (Calls{"Goto " + series, "ExceptionInfo.Remove 1/10/2024"}));
    EXPECT_TRUE(stored(series).exceptions.empty());
    EXPECT_TRUE(exists(instance));
}
