#include "activity_fixture.h"

using act::activity_field::contact_count;
using act::activity_field::regarding;
using act::activity_field::start;
using support::daily;
using support::failure_number;
using support::meeting;
using support::monday;
using support::text;
using support::Value;
using values::DateTime;
namespace field = act::activity_field;

namespace {

class ActivityLists : public support::ActivityListData {};

} // namespace

TEST_F(ActivityLists, GivesTheExceptionsOfASeriesFromIndex1) {
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

TEST_F(ActivityLists, StoresExceptionsAtOnce) {
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

TEST_F(ActivityLists, KeepsExceptionsWithTheRecordThatWasCurrent) {
    const std::string first = store.add(daily("first")), second = store.add(daily("second", 1));
    list->Goto(first);
    act::ExceptionInfo& exceptions = list->ExceptionInfo();
    list->MoveNext();
    exceptions.Add(monday.plus_days(2));
    EXPECT_EQ(store.activity(first)->exceptions.size(), 1u);
    EXPECT_TRUE(store.activity(second)->exceptions.empty());
    EXPECT_EQ(text(list->Data(regarding)), "second");
}

TEST_F(ActivityLists, DoesNotTakeItsOwnExceptionForAnotherProcessesChange) {
    const std::string series = store.add(daily("series"));
    list->Goto(series);
    list->Edit();
    list->Data(regarding, std::string("new"));
    list->ExceptionInfo().Add(monday.plus_days(2));
    list->Update();
    EXPECT_EQ(store.activity(series)->regarding, "new");
    EXPECT_EQ(store.activity(series)->exceptions, std::vector<DateTime>{monday.plus_days(2)});
}

TEST_F(ActivityLists, StillSeesAnotherProcessesChangeAfterAnExceptionOfItsOwn) {
    const std::string series = store.add(daily("series"));
    list->Goto(series);
    list->Edit();
    store.add_exception(series, monday.plus_days(4));
    list->ExceptionInfo().Add(monday.plus_days(2));
    EXPECT_EQ(failure_number([&] { list->Update(); }), 440);
}

TEST_F(ActivityLists, FailsToAddAnExceptionToASeriesThatIsGone) {
    const std::string series = store.add(daily("series"));
    list->Goto(series);
    act::ExceptionInfo& exceptions = list->ExceptionInfo();
    store.remove_activity(series);
    EXPECT_EQ(failure_number([&] { exceptions.Add(monday); }), 440);
    exceptions.Remove(monday);
}

TEST_F(ActivityLists, WalksTheContactsItsOwnFirst) {
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

TEST_F(ActivityLists, SetsContactsAtTheWalksPlaceAtOnce) {
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

TEST_F(ActivityLists, TakesAContactOutForAnEmptyText) {
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

TEST_F(ActivityLists, ChangesNothingForAnEmptyTextWhereThereIsNoContact) {
    const std::string plain = store.add(meeting("plain"));
    const std::int64_t before = store.revision();
    list->Goto(plain);
    list->FirstScheduledWith("");
    EXPECT_EQ(store.revision(), before);
}

TEST_F(ActivityLists, RefusesAContactThatThereIsNot) {
    const std::string plain = store.add(meeting("plain"));
    list->Goto(plain);
    EXPECT_EQ(failure_number([&] { list->FirstScheduledWith("C99999999999"); }), 440);
    EXPECT_TRUE(store.activity(plain)->contacts.empty());
}

TEST_F(ActivityLists, CountsContactsThatAreSetDuringAChangeToIt) {
    const std::string ann = contact(), bob = contact();
    list->Add();
    list->Data(start, monday);
    list->FirstScheduledWith(ann);
    list->NextScheduledWith(bob);
    EXPECT_EQ(scheduled_with(), (std::vector<std::string>{ann, bob}));
    EXPECT_TRUE(store.activities({}).empty());
    EXPECT_EQ(store.activity(list->Update())->contacts, (std::vector<std::string>{ann, bob}));
}
