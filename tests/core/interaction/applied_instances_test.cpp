#include "core/interaction/instances.h"

#include "instances_world.h"
#include "support/failure_number.h"

using support::Instances;
using values::DateTime;

TEST_F(Instances, AppliedToTheirSeriesGiveItEverythingButTheDates) {
    have(daily(8, 9, 60));
    make_instance();
    change(instance, [&](store::Activity& one) {
        const store::Activity other = rich();
        one.type = other.type;
        one.priority = other.priority;
        one.regarding = other.regarding;
        one.start = at(12, 14);
        one.end = at(12, 15);
        one.is_private = one.alarm = true;
        one.alarm_lead = 20;
        one.colour = other.colour;
        one.user = bob;
        one.group = group;
        one.contacts = {dana, chris, erin};
        one.details = other.details;
    });
    hands.instances.Apply_To_Series(instance, series);
    const store::Activity whole = stored(series);
    EXPECT_EQ(whole.start, at(8, 9));
    EXPECT_EQ(whole.end, at(8, 10));
    EXPECT_EQ(whole.recurrence.kind, store::RecurrenceKind::daily);
    EXPECT_EQ(whole.exceptions, std::vector<DateTime>{at(10, 0)});
    EXPECT_EQ(whole.type, store::ActivityType::to_do);
    EXPECT_EQ(whole.priority, store::Priority::high);
    EXPECT_EQ(whole.regarding, "Quarterly figures");
    EXPECT_TRUE(whole.is_private);
    EXPECT_TRUE(whole.alarm);
    EXPECT_EQ(whole.alarm_lead, 20);
    EXPECT_EQ(whole.colour, rich().colour);
    EXPECT_EQ(whole.user, bob);
    EXPECT_EQ(whole.group, group);
    EXPECT_EQ(whole.contacts, (Contacts{dana, chris, erin}));
    EXPECT_EQ(whole.details, rich().details);
    EXPECT_EQ(stored(instance).start, at(12, 14)) << "it is left to be given up";
}

TEST_F(Instances, AppliedToTheirSeriesTakeTheContactsAwayThatTheyDoNotHave) {
    have(rich());
    make_instance();
    change(instance, [&](store::Activity& one) { one.contacts = {erin}; });
    hands.instances.Apply_To_Series(instance, series);
    EXPECT_EQ(stored(series).contacts, Contacts{erin});
    change(instance, [&](store::Activity& one) { one.contacts.clear(); });
    hands.instances.Apply_To_Series(instance, series);
    EXPECT_EQ(stored(series).contacts, Contacts{});
}

TEST_F(Instances, AppliedToTheirSeriesLeaveTheLengthOfItsOccurrencesUnlessTheDurationChanged) {
    have(rich());
    make_instance();
    change(instance, [](store::Activity& one) { one.regarding = "Other"; });
    hands.instances.Apply_To_Series(instance, series);
    EXPECT_EQ(stored(series).end, at(8, 12)) << "the series keeps its dates";
    EXPECT_EQ(stored(series).duration, 90);
}

TEST_F(Instances, AreAppliedToTheirSeriesInThisOrder) {
    have(daily(8, 9, 30));
    make_instance();
    change(instance, [&](store::Activity& one) {
        one.regarding = "Other";
        one.contacts = {chris, dana};
    });
    record.calls.clear();
    hands.instances.Apply_To_Series(instance, series);
    EXPECT_EQ(record.calls, (Calls{"Goto " + instance,
                                   "Data(5)",
                                   "Data(33)",
                                   "Data(30)",
                                   "Data(27)",
                                   "Data(25)",
                                   "Data(26)",
                                   "Data(45)",
                                   "Data(34)",
                                   "Data(32)",
                                   "Data(37)",
                                   "Data(39)",
                                   "FirstScheduledWith",
                                   "NextScheduledWith",
                                   "NextScheduledWith",
                                   "Goto " + series,
                                   "Edit",
                                   "RecurringChangeMode false",
                                   "Data(5, 0)",
                                   "Data(25, 1)",
                                   "Data(26, 2)",
                                   "Data(27, Other)",
                                   "Data(30, 30)",
                                   "Data(32, 0)",
                                   "Data(33, 0)",
                                   "Data(34, )",
                                   "Data(37, " + ann + ")",
                                   "Data(39, )",
                                   "Data(45, )",
                                   "Update",
                                   "FirstScheduledWith(" + chris + ")",
                                   "NextScheduledWith(" + dana + ")",
                                   "Data(100)"}));
}

TEST_F(Instances, AppliedToASeriesThatTheDesksUserChangedMeanwhileFailAndOverwriteNothing) {
    have(daily(8, 9));
    make_instance();
    change(instance, [](store::Activity& one) { one.regarding = "Typed in the instance"; });
    before_call("Data(5,", [this] {
        change(series, [](store::Activity& one) { one.regarding = "What the desk's user wrote"; });
    });
    EXPECT_EQ(support::failure_number([&] { hands.instances.Apply_To_Series(instance, series); }), 440);
    EXPECT_EQ(stored(series).regarding, "What the desk's user wrote");
    EXPECT_EQ(stored(instance).regarding, "Typed in the instance");
    hands.instances.Apply_To_Series(instance, series);
    EXPECT_EQ(stored(series).regarding, "Typed in the instance") << "once more";
}

TEST_F(Instances, AppliedToASeriesThatIsGoneFail) {
    have(daily(8, 9));
    make_instance();
    store().remove_activity(series);
    EXPECT_EQ(support::failure_number([&] { hands.instances.Apply_To_Series(instance, series); }), 91);
    EXPECT_TRUE(exists(instance));
}
