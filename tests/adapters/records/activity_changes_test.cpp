#include "activity_fixture.h"
#include "support/conflict_of.h"

#include <map>

using act::activity_field::details;
using act::activity_field::id;
using act::activity_field::regarding;
using act::activity_field::start;
using store::RecurrenceKind;
using support::conflict_of;
using support::daily;
using support::failure_number;
using support::meeting;
using support::monday;
using support::rest_of;
using support::text;
using support::Value;
using values::DateTime;
using Cause = act::EditConflict::Cause;
namespace field = act::activity_field;

namespace {

class ActivityChanges : public support::ActivityListData {};

} // namespace

TEST_F(ActivityChanges, StoresAChangeOnUpdate) {
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

TEST_F(ActivityChanges, ShowsAChangedRecordOfAWalkAsItIsNow) {
    store.add(meeting("old"));
    ASSERT_EQ(text(list->Data(regarding)), "old");
    list->Edit();
    list->Data(regarding, std::string("new"));
    list->Update();
    EXPECT_EQ(text(list->Data(regarding)), "new");
}

TEST_F(ActivityChanges, ReschedulesAPlainActivityByStartAndEnd) {
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

TEST_F(ActivityChanges, ChangesAWholeSeriesInItsPlace) {
    store::Activity series = daily("series");
    series.exceptions = {monday.plus_days(2)};
    const std::string changed = store.add(series);
    list->Goto(changed);
    list->Edit();
    list->RecurringChangeMode(act::RecurringChange::whole_series);
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

TEST_F(ActivityChanges, TakesTheFirstDateOutOfASeriesWhenOnlyItChanges) {
    const std::string series = store.add(daily("series"));
    list->Goto(series);
    list->Edit();
    list->RecurringChangeMode(act::RecurringChange::only_this);
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

TEST_F(ActivityChanges, RefusesToChangeASeriesInPartThatSomebodyElseChanged) {
    const std::string series = store.add(daily("series"));
    list->Goto(series);
    list->Edit();
    list->RecurringChangeMode(act::RecurringChange::only_this);
    store.add_exception(series, monday.plus_days(3));
    EXPECT_EQ(failure_number([&] { list->Update(); }), 440);
    EXPECT_EQ(conflict_of([&] { list->Update(); }), Cause::changed);
    EXPECT_EQ(store.activities({}).size(), 1u);
    EXPECT_EQ(store.activity(series)->exceptions, std::vector<DateTime>{monday.plus_days(3)});
}

TEST_F(ActivityChanges, AddsARecordThatNobodySeesBeforeUpdate) {
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

TEST_F(ActivityChanges, TakesFieldsOnlyBetweenEditOrAddAndUpdate) {
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

TEST_F(ActivityChanges, GivesAChangeUpWhenItMoves) {
    const std::string changed = store.add(meeting("monday"));
    const std::vector<std::function<void()>> moves = {[&] { list->MoveNext(); },
                                                      [&] { list->MoveFirst(); },
                                                      [&] { list->Rebuild(); },
                                                      [&] { list->Goto(changed); },
                                                      [&] { list->SetTypeFilter(act::ActivityType::call); },
                                                      [&] { list->ClearDateScope(); }};
    for (const auto& move : moves) {
        list->Goto(changed);
        list->Edit();
        list->Data(regarding, std::string("given up"));
        move();
        EXPECT_EQ(failure_number([&] { list->Update(); }), 440);
        EXPECT_EQ(store.activity(changed)->regarding, "monday");
    }
}

TEST_F(ActivityChanges, RefusesAnUpdateThatAnotherProcessForestalledAndStoresNothing) {
    const std::string changed = store.add(meeting("monday"));
    list->Goto(changed);
    list->Edit();
    list->Data(regarding, std::string("mine"));
    store::Activity theirs = *store.activity(changed);
    theirs.regarding = "theirs";
    store.update(theirs);
    EXPECT_EQ(failure_number([&] { list->Update(); }), 440);
    EXPECT_EQ(conflict_of([&] { list->Update(); }), Cause::changed);
    EXPECT_EQ(store.activity(changed)->regarding, "theirs");
    list->Goto(changed);
    EXPECT_EQ(text(list->Data(regarding)), "theirs");
}

TEST_F(ActivityChanges, RefusesAnUpdateOfARecordThatAnotherProcessDeleted) {
    const std::string gone = store.add(meeting("monday"));
    list->Goto(gone);
    list->Edit();
    store.remove_activity(gone);
    EXPECT_EQ(failure_number([&] { list->Update(); }), 440);
    EXPECT_EQ(conflict_of([&] { list->Update(); }), Cause::deleted);
    EXPECT_TRUE(store.activities({}).empty());
}

TEST_F(ActivityChanges, TellsThatAnotherProcessDeletedASeriesThatIsChangedInPart) {
    const std::string gone = store.add(daily("series"));
    list->Goto(gone);
    list->Edit();
    list->RecurringChangeMode(act::RecurringChange::only_this);
    store.remove_activity(gone);
    EXPECT_EQ(conflict_of([&] { list->Update(); }), Cause::deleted);
    EXPECT_TRUE(store.activities({}).empty());
}

TEST_F(ActivityChanges, TakesNoOtherFailureOfAnUpdateForAConflict) {
    list->Goto(store.add(meeting("monday")));
    list->Edit();
    list->Data(field::scheduled_for, std::string("U99999999999")); // whom there is not
    EXPECT_EQ(failure_number([&] { list->Update(); }), 440);
    EXPECT_THROW(conflict_of([&] { list->Update(); }), values::Failure);
}

TEST_F(ActivityChanges, EditsTheRecordAsItIsInTheStoreEvenWhenTheListIsOlder) {
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

TEST_F(ActivityChanges, LeavesTheEndOfAStoredActivityForADurationThatItHasAlready) {
    store::Activity activity = daily("series");
    activity.end = activity.start->plus_minutes(180); // longer than the duration says
    const std::string changed = store.add(activity);
    list->Goto(changed);
    list->Edit();
    list->Data(field::duration, std::int64_t(60));
    list->Update();
    EXPECT_EQ(store.activity(changed)->end, activity.end);
    list->Edit();
    list->Data(field::duration, std::int64_t(90));
    list->Update();
    EXPECT_EQ(store.activity(changed)->end, activity.start->plus_minutes(90));
}

TEST_F(ActivityChanges, StoresNothingWhenAFieldNamesWhatThereIsNot) {
    const std::string changed = store.add(meeting("monday"));
    list->Goto(changed);
    list->Edit();
    list->Data(regarding, std::string("new"));
    list->Data(field::scheduled_for, std::string("U99999999999"));
    EXPECT_EQ(failure_number([&] { list->Update(); }), 440);
    EXPECT_EQ(store.activity(changed)->regarding, "monday");
}

TEST_F(ActivityChanges, DeletesTheCurrentRecordAndGoesOnBehindIt) {
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

TEST_F(ActivityChanges, DeletesNothingWhileARecordIsBeingAdded) {
    store.add(meeting("monday"));
    list->MoveFirst();
    list->Add();
    EXPECT_EQ(failure_number([&] { list->Delete(); }), 91);
    EXPECT_EQ(store.activities({}).size(), 1u);
}

// The calls that the calendar makes for one occurrence of a series, in their order.
TEST_F(ActivityChanges, MakesAnInstanceOfASeries) {
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
