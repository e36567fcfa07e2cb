#include "adapters/desk/data_fixture.h"

#include <map>

using act::activity_field::contact_count;
using act::activity_field::details;
using act::activity_field::edited;
using act::activity_field::id;
using act::activity_field::regarding;
using act::activity_field::start;
using store::Contact;
using store::RecurrenceKind;
using support::daily;
using support::meeting;
using support::monday;
using support::rest_of;
using support::text;
using support::Value;
using values::DateTime;
namespace field = act::activity_field;

namespace {

class ActivityList : public support::DeskData {
protected:
    std::unique_ptr<act::Activity> list;

    void SetUp() override {
        DeskData::SetUp();
        list = database->Activity();
    }
    std::string contact() { return store.add(Contact{}); }
    std::vector<std::string> scheduled_with() {
        std::vector<std::string> all;
        for (std::string one = list->FirstScheduledWith(); !one.empty(); one = list->NextScheduledWith())
            all.push_back(one);
        return all;
    }
};

} // namespace

TEST_F(ActivityList, StandsOnTheFirstRecordFromItsBeginning) {
    EXPECT_TRUE(list->isEOF());
    store.add(meeting("tuesday", 1));
    store.add(meeting("monday"));
    list = database->Activity();
    EXPECT_FALSE(list->isEOF());
    EXPECT_EQ(text(list->Data(regarding)), "monday");
}

TEST_F(ActivityList, AppliesEachScopeAndFilterAtOnceAndStandsOnTheFirstRecord) {
    store::Activity call = meeting("call", 1);
    call.type = store::ActivityType::call;
    store.add(call);
    store::Activity urgent = meeting("urgent", 2);
    urgent.priority = store::Priority::high;
    store.add(urgent);
    store::Activity cleared = meeting("cleared", 3);
    cleared.cleared = true;
    store.add(cleared);
    store.add(meeting("plain", 4));
    store.add(meeting("next-week", 7, 0));

    list->Rebuild();
    list->ClearClearedFilter();
    list->ClearDateScope();
    list->ClearPriorityFilter();
    list->ClearTypeFilter();
    EXPECT_EQ(rest_of(*list), "call urgent cleared plain next-week ");
    list->SetDateScope(monday, monday.plus_days(7));
    EXPECT_EQ(rest_of(*list), "call urgent cleared plain ");
    list->SetTypeFilter(0);
    EXPECT_EQ(rest_of(*list), "urgent cleared plain ");
    list->SetPriorityFilter(0);
    EXPECT_EQ(rest_of(*list), "cleared plain ");
    list->SetClearedFilter();
    EXPECT_EQ(rest_of(*list), "plain ");
    list->ClearDateScope();
    EXPECT_EQ(rest_of(*list), "plain next-week ");
    list->MoveFirst();
    EXPECT_EQ(rest_of(*list), "plain next-week ");
    list->ClearTypeFilter();
    list->ClearClearedFilter();
    EXPECT_EQ(rest_of(*list), "call cleared plain next-week ");
    list->ClearPriorityFilter();
    EXPECT_EQ(rest_of(*list), "call urgent cleared plain next-week ");
}

TEST_F(ActivityList, KeepsItsFiltersThroughRebuild) {
    store.add(meeting("monday"));
    store.add(meeting("next-week", 7));
    list->SetDateScope(monday, monday.plus_days(7));
    list->Rebuild();
    EXPECT_EQ(rest_of(*list), "monday ");
    EXPECT_EQ(rest_of(*database->Activity()), "monday next-week ");
}

TEST_F(ActivityList, KeepsSeveralTypesAndPrioritiesOut) {
    for (const auto type : {store::ActivityType::call, store::ActivityType::meeting, store::ActivityType::to_do}) {
        store::Activity activity = meeting(std::to_string(static_cast<int>(type)));
        activity.type = type;
        activity.priority = static_cast<store::Priority>(type);
        store.add(activity);
    }
    list->SetTypeFilter(0);
    list->SetTypeFilter(2);
    EXPECT_EQ(rest_of(*list), "1 ");
    list->ClearTypeFilter();
    list->SetPriorityFilter(1);
    list->SetPriorityFilter(2);
    EXPECT_EQ(rest_of(*list), "0 ");
    list->SetPriorityFilter(7); // there is no such priority to keep out
    EXPECT_EQ(rest_of(*list), "0 ");
}

TEST_F(ActivityList, StaysAtItsEnd) {
    store.add(meeting("monday"));
    list->MoveNext();
    EXPECT_TRUE(list->isEOF());
    list->MoveNext();
    EXPECT_TRUE(list->isEOF());
    EXPECT_EQ(list->Data(id), Value());
}

TEST_F(ActivityList, FailsWith91WhereARecordIsNeededAndThereIsNone) {
    list->Rebuild();
    EXPECT_EQ(failure_number([&] { list->isRecurring(); }), 91);
    EXPECT_EQ(failure_number([&] { list->recurringType(); }), 91);
    EXPECT_EQ(failure_number([&] { list->GetRecurringFrequency(); }), 91);
    EXPECT_EQ(failure_number([&] { list->GetRecurringUntilDate(); }), 91);
    EXPECT_EQ(failure_number([&] { list->GetDaysOfWeekBits(); }), 91);
    EXPECT_EQ(failure_number([&] { list->GetDaysOfMonthBits(); }), 91);
    EXPECT_EQ(failure_number([&] { list->GetWeeksOfMonthBits(); }), 91);
    EXPECT_EQ(failure_number([&] { list->ExceptionInfo(); }), 91);
    EXPECT_EQ(failure_number([&] { list->Edit(); }), 91);
    EXPECT_EQ(failure_number([&] { list->Delete(); }), 91);
    EXPECT_EQ(failure_number([&] { list->FirstScheduledWith(); }), 91);
    EXPECT_EQ(failure_number([&] { list->NextScheduledWith(); }), 91);
    EXPECT_EQ(failure_number([&] { list->FirstScheduledWith("C00000000001"); }), 91);
    EXPECT_EQ(list->Data(id), Value());
}

TEST_F(ActivityList, GivesNothingAfterGoingToARecordThatThereIsNot) {
    store.add(meeting("monday"));
    EXPECT_FALSE(list->Goto("A99999999999"));
    EXPECT_EQ(list->Data(id), Value());
    EXPECT_TRUE(list->isEOF());
    list->MoveFirst();
    EXPECT_EQ(rest_of(*list), "monday ");
}

TEST_F(ActivityList, GoesOnBehindARecordItWentTo) {
    const std::string outside = store.add(meeting("outside", -3));
    store.add(meeting("monday"));
    const std::string tuesday = store.add(meeting("tuesday", 1));
    store.add(meeting("wednesday", 2));
    list->SetDateScope(monday, monday.plus_days(7));
    EXPECT_TRUE(list->Goto(tuesday));
    EXPECT_EQ(rest_of(*list), "tuesday wednesday ");
    EXPECT_TRUE(list->Goto(outside));
    EXPECT_EQ(rest_of(*list), "outside monday tuesday wednesday ");
}

TEST_F(ActivityList, StaysOnItsRecordWhenAWalkGoesToTheRecordItIsOn) {
    store.add(meeting("monday"));
    store.add(daily("tuesday", 1));
    list->SetDateScope(monday, monday.plus_days(7));
    std::string names;
    for (; !list->isEOF(); list->MoveNext()) {
        EXPECT_TRUE(list->Goto(text(list->Data(id))));
        names += text(list->Data(regarding)) + " ";
    }
    EXPECT_EQ(names, "monday tuesday ");
}

TEST_F(ActivityList, GivesTheDetailsOfARecord) {
    store::Activity with = meeting("with");
    with.details = "Bring the slides.";
    store.add(with);
    store.add(meeting("without", 1));
    EXPECT_EQ(list->Data(details), Value(std::string("Bring the slides.")));
    list->MoveNext();
    EXPECT_EQ(list->Data(details), Value(std::string()));
}

TEST_F(ActivityList, TellsASeries) {
    store::Activity series = daily("series");
    series.recurrence = {.kind = RecurrenceKind::weekdays_of_month,
                         .frequency = 3,
                         .until = DateTime::of(2025, 6, 30),
                         .days_of_week = 0x42,
                         .weeks_of_month = 0x11,
                         .days_of_month = 0x40000001};
    store.add(series);
    store.add(daily("endless", 1));
    store.add(meeting("plain", 2));
    EXPECT_TRUE(list->isRecurring());
    EXPECT_EQ(list->recurringType(), 4);
    EXPECT_EQ(list->GetRecurringFrequency(), 3);
    EXPECT_EQ(list->GetRecurringUntilDate(), DateTime::of(2025, 6, 30));
    EXPECT_EQ(list->GetDaysOfWeekBits(), 0x42);
    EXPECT_EQ(list->GetWeeksOfMonthBits(), 0x11);
    EXPECT_EQ(list->GetDaysOfMonthBits(), 0x40000001);
    list->MoveNext();
    EXPECT_EQ(list->recurringType(), 1);
    EXPECT_EQ(list->GetRecurringUntilDate(), DateTime::of(2099, 12, 31));
    EXPECT_EQ(list->GetRecurringFrequency(), 1);
    list->MoveNext();
    EXPECT_FALSE(list->isRecurring());
    EXPECT_EQ(list->recurringType(), 0);
}

TEST_F(ActivityList, ReadsTheStoreAfreshOnRebuild) {
    store.add(meeting("monday"));
    EXPECT_EQ(rest_of(*list), "monday ");
    store.add(meeting("sunday", -1));
    file.now = file.now.plus_minutes(1);
    const std::string changed = store.add(meeting("tuesday", 1));
    list->Rebuild();
    EXPECT_EQ(rest_of(*list), "sunday monday tuesday ");
    list->Goto(changed);
    EXPECT_EQ(list->Data(edited), Value(file.now));
}

// Changing records

TEST_F(ActivityList, StoresAChangeOnUpdate) {
    const std::string changed = store.add(meeting("old"));
    ASSERT_TRUE(list->Goto(changed));
    list->Edit();
    list->Data(regarding, std::string("new"));
    list->Data(start, monday.plus_days(1));
    EXPECT_EQ(text(list->Data(regarding)), "new");
    EXPECT_EQ(store.activity(changed)->regarding, "old");
    EXPECT_EQ(list->Update(), changed);
    EXPECT_EQ(store.activity(changed)->regarding, "new");
    EXPECT_EQ(text(list->Data(regarding)), "new");
    EXPECT_EQ(list->Data(start), Value(monday.plus_days(1)));
    EXPECT_EQ(store.activity(changed)->end, monday.plus_days(1).plus_minutes(60));
}

TEST_F(ActivityList, ShowsAChangedRecordOfAWalkAsItIsNow) {
    store.add(meeting("old"));
    ASSERT_EQ(text(list->Data(regarding)), "old");
    list->Edit();
    list->Data(regarding, std::string("new"));
    list->Update();
    EXPECT_EQ(text(list->Data(regarding)), "new");
}

TEST_F(ActivityList, ReschedulesAPlainActivityByStartAndEnd) {
    store::Activity activity = meeting("moving");
    activity.duration = 30;
    activity.end = activity.start->plus_minutes(30);
    const std::string moved = store.add(activity);
    list->Goto(moved);
    list->Edit();
    list->Data(field::start, DateTime::of(2024, 3, 14, 15));
    list->Data(field::end, DateTime::of(2024, 3, 14, 16, 30));
    list->Update();
    EXPECT_EQ(store.activity(moved)->start, DateTime::of(2024, 3, 14, 15));
    EXPECT_EQ(store.activity(moved)->end, DateTime::of(2024, 3, 14, 16, 30));
    EXPECT_EQ(store.activity(moved)->duration, 90);
    list->MoveFirst();
    list->SetDateScope(monday.plus_days(3), monday.plus_days(4));
    EXPECT_EQ(rest_of(*list), "moving ");
}

TEST_F(ActivityList, ChangesAWholeSeriesInItsPlace) {
    store::Activity series = daily("series");
    series.exceptions = {monday.plus_days(2)};
    const std::string changed = store.add(series);
    list->Goto(changed);
    list->Edit();
    list->RecurringChangeMode(false);
    list->Data(field::start, monday.plus_minutes(14 * 60));
    list->Data(field::end, monday.plus_minutes(15 * 60));
    list->Update();
    const store::Activity stored = *store.activity(changed);
    EXPECT_EQ(stored.recurrence.kind, RecurrenceKind::daily);
    EXPECT_EQ(stored.start, monday.plus_minutes(14 * 60));
    EXPECT_EQ(stored.duration, 60);
    EXPECT_EQ(stored.exceptions, series.exceptions);
    EXPECT_EQ(store.activities({}).size(), 1u);
}

TEST_F(ActivityList, TakesTheFirstDateOutOfASeriesWhenOnlyItChanges) {
    const std::string series = store.add(daily("series"));
    list->Goto(series);
    list->Edit();
    list->RecurringChangeMode(true);
    list->Data(regarding, std::string("alone"));
    const std::string alone = list->Update();
    EXPECT_NE(alone, series);
    EXPECT_EQ(text(list->Data(id)), alone);
    EXPECT_EQ(store.activity(series)->regarding, "series");
    EXPECT_EQ(store.activity(series)->exceptions, std::vector<DateTime>{monday});
    EXPECT_EQ(store.activity(alone)->regarding, "alone");
    EXPECT_EQ(store.activity(alone)->recurrence.kind, RecurrenceKind::none);
    EXPECT_TRUE(store.activity(alone)->exceptions.empty());
    // It held for that change alone.
    list->Goto(series);
    list->Edit();
    list->Data(regarding, std::string("all"));
    EXPECT_EQ(list->Update(), series);
}

TEST_F(ActivityList, RefusesToChangeASeriesInPartThatSomebodyElseChanged) {
    const std::string series = store.add(daily("series"));
    list->Goto(series);
    list->Edit();
    list->RecurringChangeMode(true);
    store.add_exception(series, monday.plus_days(3));
    EXPECT_EQ(failure_number([&] { list->Update(); }), 440);
    EXPECT_EQ(store.activities({}).size(), 1u);
    EXPECT_EQ(store.activity(series)->exceptions, std::vector<DateTime>{monday.plus_days(3)});
}

TEST_F(ActivityList, AddsARecordThatNobodySeesBeforeUpdate) {
    const std::string ann = store.add(store::User{.name = "Ann"});
    store.add(meeting("other"));
    list->Add();
    EXPECT_EQ(text(list->Data(id)), "");
    list->Data(regarding, std::string("new"));
    list->Data(start, monday.plus_days(1));
    list->Data(field::duration, std::int64_t(30));
    list->Data(field::scheduled_for, ann);
    EXPECT_EQ(store.activities({}).size(), 1u);
    const std::string added = list->Update();
    EXPECT_EQ(added.size(), 12u);
    EXPECT_EQ(text(list->Data(id)), added);
    EXPECT_EQ(store.activity(added)->regarding, "new");
    EXPECT_EQ(store.activity(added)->user, ann);
    EXPECT_EQ(store.activity(added)->end, monday.plus_days(1).plus_minutes(30));
    EXPECT_FALSE(list->isRecurring());
}

TEST_F(ActivityList, TakesFieldsOnlyBetweenEditOrAddAndUpdate) {
    store.add(meeting("monday"));
    const auto write = [&] { list->Data(regarding, std::string("x")); };
    list->Rebuild();
    EXPECT_EQ(failure_number(write), 440);
    EXPECT_EQ(failure_number([&] { list->Update(); }), 440);
    list->Edit();
    write();
    list->Update();
    EXPECT_EQ(failure_number(write), 440);
    EXPECT_EQ(failure_number([&] { list->Update(); }), 440);
}

TEST_F(ActivityList, GivesAChangeUpWhenItMoves) {
    const std::string changed = store.add(meeting("monday"));
    const std::vector<std::function<void()>> moves = {
        [&] { list->MoveNext(); },    [&] { list->MoveFirst(); },      [&] { list->Rebuild(); },
        [&] { list->Goto(changed); }, [&] { list->SetTypeFilter(0); }, [&] { list->ClearDateScope(); }};
    for (const auto& move : moves) {
        list->Goto(changed);
        list->Edit();
        list->Data(regarding, std::string("given up"));
        move();
        EXPECT_EQ(failure_number([&] { list->Update(); }), 440);
        EXPECT_EQ(store.activity(changed)->regarding, "monday");
    }
}

TEST_F(ActivityList, RefusesAnUpdateThatAnotherProcessForestalledAndStoresNothing) {
    const std::string changed = store.add(meeting("monday"));
    list->Goto(changed);
    list->Edit();
    list->Data(regarding, std::string("mine"));
    store::Activity theirs = *store.activity(changed);
    theirs.regarding = "theirs";
    store.update(theirs);
    EXPECT_EQ(failure_number([&] { list->Update(); }), 440);
    EXPECT_EQ(store.activity(changed)->regarding, "theirs");
    list->Goto(changed);
    EXPECT_EQ(text(list->Data(regarding)), "theirs");
}

TEST_F(ActivityList, RefusesAnUpdateOfARecordThatAnotherProcessDeleted) {
    const std::string gone = store.add(meeting("monday"));
    list->Goto(gone);
    list->Edit();
    store.remove_activity(gone);
    EXPECT_EQ(failure_number([&] { list->Update(); }), 440);
    EXPECT_TRUE(store.activities({}).empty());
}

TEST_F(ActivityList, EditsTheRecordAsItIsInTheStoreEvenWhenTheListIsOlder) {
    const std::string changed = store.add(meeting("monday"));
    list->Goto(changed);
    store::Activity theirs = *store.activity(changed);
    theirs.details = "theirs";
    store.update(theirs);
    list->Edit();
    EXPECT_EQ(text(list->Data(details)), "theirs");
    list->Data(regarding, std::string("mine"));
    list->Update();
    EXPECT_EQ(store.activity(changed)->details, "theirs");
    EXPECT_EQ(store.activity(changed)->regarding, "mine");
}

TEST_F(ActivityList, StoresNothingWhenAFieldNamesWhatThereIsNot) {
    const std::string changed = store.add(meeting("monday"));
    list->Goto(changed);
    list->Edit();
    list->Data(regarding, std::string("new"));
    list->Data(field::scheduled_for, std::string("U99999999999"));
    EXPECT_EQ(failure_number([&] { list->Update(); }), 440);
    EXPECT_EQ(store.activity(changed)->regarding, "monday");
}

TEST_F(ActivityList, DeletesTheCurrentRecordAndGoesOnBehindIt) {
    const std::string gone = store.add(meeting("monday"));
    store.add(meeting("tuesday", 1));
    list->MoveFirst();
    list->Delete();
    EXPECT_FALSE(store.activity(gone));
    EXPECT_EQ(list->Data(id), Value());
    EXPECT_FALSE(list->Goto(gone));
    list->MoveFirst();
    EXPECT_EQ(rest_of(*list), "tuesday ");
}

TEST_F(ActivityList, DeletesNothingWhileARecordIsBeingAdded) {
    store.add(meeting("monday"));
    list->MoveFirst();
    list->Add();
    EXPECT_EQ(failure_number([&] { list->Delete(); }), 91);
    EXPECT_EQ(store.activities({}).size(), 1u);
}

// Exceptions

TEST_F(ActivityList, GivesTheExceptionsOfASeriesFromIndex1) {
    store::Activity series = daily("series");
    series.exceptions = {monday.plus_days(1), monday.plus_days(4)};
    store.add(series);
    store.add(daily("without", 1));
    ASSERT_EQ(list->ExceptionInfo().Count(), 2);
    EXPECT_EQ(list->ExceptionInfo().value(1), Value(monday.plus_days(1)));
    EXPECT_EQ(list->ExceptionInfo().value(2), Value(monday.plus_days(4)));
    EXPECT_EQ(failure_number([&] { list->ExceptionInfo().value(0); }), 9);
    EXPECT_EQ(failure_number([&] { list->ExceptionInfo().value(3); }), 9);
    list->MoveNext();
    EXPECT_EQ(list->ExceptionInfo().Count(), 0);
}

TEST_F(ActivityList, StoresExceptionsAtOnce) {
    const std::string series = store.add(daily("series"));
    list->Goto(series);
    list->ExceptionInfo().Add(monday.plus_days(2).plus_minutes(600));
    list->ExceptionInfo().Add(monday.plus_days(1));
    list->ExceptionInfo().Add(monday.plus_days(2));
    EXPECT_EQ(store.activity(series)->exceptions,
              (std::vector<DateTime>{monday.plus_days(1), monday.plus_days(2)}));
    EXPECT_EQ(list->ExceptionInfo().Count(), 2);
    list->ExceptionInfo().Remove(monday.plus_days(1));
    list->ExceptionInfo().Remove(monday.plus_days(5));
    EXPECT_EQ(list->ExceptionInfo().Count(), 1);
    EXPECT_EQ(list->ExceptionInfo().value(1), Value(monday.plus_days(2)));
}

TEST_F(ActivityList, KeepsExceptionsWithTheRecordThatWasCurrent) {
    const std::string first = store.add(daily("first")), second = store.add(daily("second", 1));
    list->Goto(first);
    act::ExceptionInfo& exceptions = list->ExceptionInfo();
    list->MoveNext();
    exceptions.Add(monday.plus_days(2));
    EXPECT_EQ(store.activity(first)->exceptions.size(), 1u);
    EXPECT_TRUE(store.activity(second)->exceptions.empty());
    EXPECT_EQ(text(list->Data(regarding)), "second");
}

TEST_F(ActivityList, DoesNotTakeItsOwnExceptionForAnotherProcessesChange) {
    const std::string series = store.add(daily("series"));
    list->Goto(series);
    list->Edit();
    list->Data(regarding, std::string("new"));
    list->ExceptionInfo().Add(monday.plus_days(2));
    list->Update();
    EXPECT_EQ(store.activity(series)->regarding, "new");
    EXPECT_EQ(store.activity(series)->exceptions, std::vector<DateTime>{monday.plus_days(2)});
}

TEST_F(ActivityList, StillSeesAnotherProcessesChangeAfterAnExceptionOfItsOwn) {
    const std::string series = store.add(daily("series"));
    list->Goto(series);
    list->Edit();
    store.add_exception(series, monday.plus_days(4));
    list->ExceptionInfo().Add(monday.plus_days(2));
    EXPECT_EQ(failure_number([&] { list->Update(); }), 440);
}

TEST_F(ActivityList, FailsToAddAnExceptionToASeriesThatIsGone) {
    const std::string series = store.add(daily("series"));
    list->Goto(series);
    act::ExceptionInfo& exceptions = list->ExceptionInfo();
    store.remove_activity(series);
    EXPECT_EQ(failure_number([&] { exceptions.Add(monday); }), 440);
    exceptions.Remove(monday);
}

// The contacts of an activity

TEST_F(ActivityList, WalksTheContactsItsOwnFirst) {
    const std::string ann = contact(), bob = contact(), eve = contact();
    store::Activity activity = meeting("three");
    activity.contacts = {eve, ann, bob};
    store.add(activity);
    activity = meeting("one", 1);
    activity.contacts = {bob};
    store.add(activity);
    store.add(meeting("none", 2));
    EXPECT_EQ(scheduled_with(), (std::vector<std::string>{eve, ann, bob}));
    EXPECT_EQ(scheduled_with(), (std::vector<std::string>{eve, ann, bob}));
    EXPECT_EQ(list->NextScheduledWith(), "");
    list->MoveNext();
    EXPECT_EQ(scheduled_with(), std::vector<std::string>{bob});
    list->MoveNext();
    EXPECT_EQ(scheduled_with(), std::vector<std::string>{});
}

TEST_F(ActivityList, SetsContactsAtTheWalksPlaceAtOnce) {
    const std::string ann = contact(), bob = contact(), eve = contact();
    const std::string plain = store.add(meeting("plain"));
    list->Goto(plain);
    list->FirstScheduledWith(ann);
    list->NextScheduledWith(bob);
    list->NextScheduledWith(eve);
    EXPECT_EQ(store.activity(plain)->contacts, (std::vector<std::string>{ann, bob, eve}));
    EXPECT_EQ(list->Data(contact_count), Value(std::int64_t(3)));
    EXPECT_EQ(text(list->Data(field::contact)), ann);
    list->FirstScheduledWith(eve);
    list->NextScheduledWith(ann);
    EXPECT_EQ(store.activity(plain)->contacts, (std::vector<std::string>{eve, ann, eve}));
}

TEST_F(ActivityList, TakesAContactOutForAnEmptyText) {
    const std::string ann = contact(), bob = contact(), eve = contact();
    store::Activity activity = meeting("three");
    activity.contacts = {ann, bob, eve};
    const std::string changed = store.add(activity);
    list->Goto(changed);
    list->FirstScheduledWith("");
    EXPECT_EQ(store.activity(changed)->contacts, (std::vector<std::string>{bob, eve}));
    list->NextScheduledWith("");
    EXPECT_EQ(store.activity(changed)->contacts, std::vector<std::string>{eve});
}

TEST_F(ActivityList, ChangesNothingForAnEmptyTextWhereThereIsNoContact) {
    const std::string plain = store.add(meeting("plain"));
    const std::int64_t before = store.revision();
    list->Goto(plain);
    list->FirstScheduledWith("");
    EXPECT_EQ(store.revision(), before);
}

TEST_F(ActivityList, RefusesAContactThatThereIsNot) {
    const std::string plain = store.add(meeting("plain"));
    list->Goto(plain);
    EXPECT_EQ(failure_number([&] { list->FirstScheduledWith("C99999999999"); }), 440);
    EXPECT_TRUE(store.activity(plain)->contacts.empty());
}

TEST_F(ActivityList, CountsContactsThatAreSetDuringAChangeToIt) {
    const std::string ann = contact(), bob = contact();
    list->Add();
    list->Data(start, monday);
    list->FirstScheduledWith(ann);
    list->NextScheduledWith(bob);
    EXPECT_EQ(scheduled_with(), (std::vector<std::string>{ann, bob}));
    EXPECT_TRUE(store.activities({}).empty());
    EXPECT_EQ(store.activity(list->Update())->contacts, (std::vector<std::string>{ann, bob}));
}

// The calls that the calendar makes for one occurrence of a series, in their order.
TEST_F(ActivityList, MakesAnInstanceOfASeries) {
    const std::string ann = contact(), bob = contact();
    const std::string user = store.add(store::User{.name = "Ann"});
    store::Activity series = daily("series");
    series.contacts = {ann, bob};
    series.user = user;
    series.colour = 255;
    series.details = "Long";
    const std::string series_id = store.add(series);
    list->SetDateScope(monday, monday.plus_days(7));
    list->Goto(series_id);
    std::map<int, Value> fields;
    for (const int number : {5, 33, 30, 27, 25, 26, 45, 34, 32, 39})
        fields[number] = list->Data(number);
    const std::vector<std::string> contacts = scheduled_with();
    list->Add();
    for (const int number : {5, 25, 26, 27})
        list->Data(number, fields[number]);
    list->Data(28, monday.plus_days(3).plus_minutes(11 * 60));
    list->Data(29, monday.plus_days(3).plus_minutes(12 * 60));
    for (const int number : {30, 32, 33, 34})
        list->Data(number, fields[number]);
    list->Data(37, user);
    list->Data(39, fields[39]);
    list->Data(45, fields[45]);
    const std::string instance_id = list->Update();
    EXPECT_TRUE(list->Goto(instance_id));
    list->FirstScheduledWith(contacts[0]);
    list->NextScheduledWith(contacts[1]);
    list->Goto(series_id);
    list->ExceptionInfo().Add(monday.plus_days(3));

    const store::Activity instance = *store.activity(instance_id);
    EXPECT_EQ(instance.regarding, "series");
    EXPECT_EQ(instance.start, monday.plus_days(3).plus_minutes(11 * 60));
    EXPECT_EQ(instance.duration, 60);
    EXPECT_EQ(instance.colour, 255u);
    EXPECT_EQ(instance.details, "Long");
    EXPECT_EQ(instance.contacts, (std::vector<std::string>{ann, bob}));
    EXPECT_EQ(instance.recurrence.kind, RecurrenceKind::none);
    EXPECT_EQ(store.activity(series_id)->exceptions, std::vector<DateTime>{monday.plus_days(3)});

    // And back again without a trace.
    list->Goto(instance_id);
    list->Delete();
    list->Goto(series_id);
    list->ExceptionInfo().Remove(monday.plus_days(3));
    EXPECT_FALSE(store.activity(instance_id));
    EXPECT_TRUE(store.activity(series_id)->exceptions.empty());
}
