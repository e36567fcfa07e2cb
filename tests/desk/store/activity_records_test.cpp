#include "desk/store/expect_failure.h"
#include "support/conflict_of.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

using store::Activity;
using store::ActivityQuery;
using store::ActivityType;
using store::Contact;
using store::Priority;
using store::RecurrenceKind;
using store::User;
using support::conflict_of;
using support::store_failure;
using support::TemporaryDatabase;
using values::DateTime;
using Cause = act::EditConflict::Cause;

namespace {

Activity at(DateTime start, const std::string& regarding = "Budget") {
    Activity activity;
    activity.regarding = regarding;
    activity.start = start;
    activity.end = start.plus_minutes(60);
    activity.duration = 60;
    return activity;
}

const DateTime monday = DateTime::of(2024, 3, 11, 10);

std::string names(const std::vector<Activity>& activities) {
    std::string result;
    for (const Activity& activity : activities)
        result += activity.regarding + " ";
    return result;
}

class Activities : public testing::Test {
protected:
    TemporaryDatabase database;
    store::Store& store = database.store();
};

} // namespace

TEST_F(Activities, KeepEveryField) {
    const std::string ann = store.add(User{.name = "Ann"});
    const std::string group = store.add(store::Group{.name = "Suppliers"});
    const std::string first = store.add(Contact{}), second = store.add(Contact{}), third = store.add(Contact{});
    Activity full;
    full.type = ActivityType::to_do;
    full.priority = Priority::high;
    full.regarding = "Yearly figures";
    full.start = monday;
    full.end = monday.plus_minutes(95);
    full.duration = 90;
    full.is_private = true;
    full.alarm = true;
    full.alarm_lead = 15;
    full.colour = 0x00336699;
    full.user = ann;
    full.group = group;
    full.contacts = {second, third, first};
    full.cleared = true;
    full.result = "Completed";
    full.details = "Bring the\nslides.";
    full.recurrence = {.kind = RecurrenceKind::weekdays_of_month,
                       .frequency = 3,
                       .until = DateTime::of(2026, 1, 31),
                       .days_of_week = 0x42,
                       .weeks_of_month = 0x11,
                       .days_of_month = 0x40000001};
    full.exceptions = {DateTime::of(2024, 6, 3), DateTime::of(2024, 9, 2)};
    full.id = store.add(full);

    const Activity read = *store.activity(full.id);
    EXPECT_EQ(read.id, full.id);
    EXPECT_EQ(read.edited, database.now);
    EXPECT_EQ(read.type, full.type);
    EXPECT_EQ(read.priority, full.priority);
    EXPECT_EQ(read.regarding, full.regarding);
    EXPECT_EQ(read.start, full.start);
    EXPECT_EQ(read.end, full.end);
    EXPECT_EQ(read.duration, full.duration);
    EXPECT_EQ(read.is_private, true);
    EXPECT_EQ(read.alarm, true);
    EXPECT_EQ(read.alarm_lead, 15);
    EXPECT_EQ(read.colour, full.colour);
    EXPECT_EQ(read.user, ann);
    EXPECT_EQ(read.group, group);
    EXPECT_EQ(read.contacts, full.contacts);
    EXPECT_EQ(read.cleared, true);
    EXPECT_EQ(read.result, full.result);
    EXPECT_EQ(read.details, full.details);
    EXPECT_EQ(read.recurrence, full.recurrence);
    EXPECT_EQ(read.exceptions, full.exceptions);
    EXPECT_EQ(read.revision, store.revision());
}

TEST_F(Activities, KeepWhatIsAbsentAbsent) {
    const Activity read = *store.activity(store.add(Activity{}));
    EXPECT_FALSE(read.start);
    EXPECT_FALSE(read.colour);
    EXPECT_FALSE(read.recurrence.until);
    EXPECT_EQ(read.user, "");
    EXPECT_EQ(read.group, "");
    EXPECT_TRUE(read.contacts.empty());
    EXPECT_TRUE(read.exceptions.empty());
    EXPECT_FALSE(read.is_private);
    EXPECT_FALSE(read.cleared);
}

TEST_F(Activities, TellTheColourBlackFromNone) {
    Activity black = at(monday);
    black.colour = 0;
    EXPECT_EQ(store.activity(store.add(black))->colour, 0u);
}

TEST_F(Activities, KeepSecondsAndDatesFarAway) {
    for (const DateTime start : {DateTime::of(1899, 12, 31, 0, 0, 1), DateTime::of(1752, 9, 14, 23, 59, 59),
                                 DateTime::of(9999, 12, 31, 12)})
        EXPECT_EQ(store.activity(store.add(at(start)))->start, start);
}

TEST_F(Activities, AreStoredWithAFrequencyOfAtLeast1) {
    Activity daily = at(monday);
    daily.recurrence = {.kind = RecurrenceKind::daily, .frequency = 0};
    EXPECT_EQ(store.activity(store.add(daily))->recurrence.frequency, 1);
}

TEST_F(Activities, EndByTheirDurationWhenTheyWouldEndBeforeTheyStart) {
    Activity odd = at(monday);
    odd.end = DateTime();
    EXPECT_EQ(store.activity(store.add(odd))->end, monday.plus_minutes(60));
    odd.duration = -5;
    EXPECT_EQ(store.activity(store.add(odd))->end, monday);
    EXPECT_EQ(store.activity(store.add(odd))->duration, 0);
}

TEST_F(Activities, KeepExceptionsOnceAndRisingAndWithoutTheirTime) {
    Activity daily = at(monday);
    daily.recurrence.kind = RecurrenceKind::daily;
    daily.exceptions = {DateTime::of(2024, 3, 20, 10), DateTime::of(2024, 3, 15), DateTime::of(2024, 3, 20)};
    EXPECT_EQ(store.activity(store.add(daily))->exceptions,
              (std::vector<DateTime>{DateTime::of(2024, 3, 15), DateTime::of(2024, 3, 20)}));
}

TEST_F(Activities, RefuseAUserAContactOrAGroupThatThereIsNot) {
    Activity odd = at(monday);
    odd.user = "U99999999999";
    EXPECT_NE(store_failure([&] { store.add(odd); }).find("isn't in the database"), std::string::npos);
    odd = at(monday);
    odd.contacts = {"C99999999999"};
    EXPECT_NE(store_failure([&] { store.add(odd); }).find("isn't in the database"), std::string::npos);
    odd = at(monday);
    odd.contacts = {store.add(Contact{}), "C99999999999"};
    EXPECT_NE(store_failure([&] { store.add(odd); }).find("isn't in the database"), std::string::npos);
    odd = at(monday);
    odd.group = "G99999999999";
    EXPECT_NE(store_failure([&] { store.add(odd); }).find("isn't in the database"), std::string::npos);
    EXPECT_TRUE(store.activities({}).empty());
}

TEST_F(Activities, ComeByStartAndThenByIdThoseWithoutAStartFirst) {
    store.add(at(monday.plus_days(1), "Tuesday"));
    store.add(at(monday, "Monday"));
    store.add(at(monday, "Monday too"));
    Activity without = at(monday, "Someday");
    without.start.reset();
    store.add(without);
    EXPECT_EQ(names(store.activities({})), "Someday Monday Monday too Tuesday ");
}

TEST_F(Activities, ComeInAScopeThatHoldsItsBeginningButNotItsEnd) {
    store.add(at(DateTime::of(2024, 3, 10, 23, 59, 59), "before"));
    store.add(at(DateTime::of(2024, 3, 11), "first"));
    store.add(at(DateTime::of(2024, 3, 17, 23, 59, 59), "last"));
    store.add(at(DateTime::of(2024, 3, 18), "after"));
    Activity without = at(monday, "Someday");
    without.start.reset();
    store.add(without);
    ActivityQuery query;
    query.from = DateTime::of(2024, 3, 11);
    query.to = DateTime::of(2024, 3, 18);
    EXPECT_EQ(names(store.activities(query)), "first last ");
    query.from.reset();
    EXPECT_EQ(names(store.activities(query)), "before first last ");
    query.from = query.to;
    query.to.reset();
    EXPECT_EQ(names(store.activities(query)), "after ");
}

TEST_F(Activities, ComeWithoutTheTypesPrioritiesAndClearedOnesThatAQueryKeepsOut) {
    Activity call = at(monday, "call");
    call.type = ActivityType::call;
    call.priority = Priority::high;
    store.add(call);
    Activity to_do = at(monday, "to-do");
    to_do.type = ActivityType::to_do;
    to_do.priority = Priority::medium;
    to_do.cleared = true;
    store.add(to_do);
    store.add(at(monday, "meeting"));

    EXPECT_EQ(names(store.activities({.without_types = {ActivityType::call}})), "to-do meeting ");
    EXPECT_EQ(names(store.activities({.without_types = {ActivityType::call, ActivityType::meeting}})), "to-do ");
    EXPECT_EQ(names(store.activities({.without_priorities = {Priority::high, Priority::low}})), "to-do ");
    EXPECT_EQ(names(store.activities({.without_cleared = true})), "call meeting ");
}

TEST_F(Activities, ComeForAUserAndForAContactThatTakesPart) {
    const std::string ann = store.add(User{.id = "~Ab/1234567 ", .name = "Ann"});
    const std::string max = store.add(Contact{}), eve = store.add(Contact{});
    Activity first = at(monday, "first");
    first.user = ann;
    first.contacts = {max};
    store.add(first);
    Activity second = at(monday, "second");
    second.contacts = {eve, max};
    store.add(second);
    EXPECT_EQ(names(store.activities({.contact = max})), "first second ");
    EXPECT_EQ(names(store.activities({.contact = eve})), "second ");
    EXPECT_EQ(names(store.activities({.users = {ann}})), "first ");
    EXPECT_EQ(names(store.activities({.contact = max}, 1, 5)), "second ");
    EXPECT_EQ(names(store.activities({.contact = max}, 0, 1)), "first ");
    EXPECT_EQ(store.count({.contact = max}), 2);
    EXPECT_EQ(names(store.activities({.contact = max, .users = {"~Ab/1234567"}})), "first ");
    EXPECT_EQ(store.activities({.contact = eve}).front().contacts, (std::vector<std::string>{eve, max}));
}

TEST_F(Activities, TakeAChange) {
    const std::string max = store.add(Contact{}), eve = store.add(Contact{});
    Activity activity = at(monday);
    activity.contacts = {max, eve};
    activity.recurrence.kind = RecurrenceKind::daily;
    activity.exceptions = {DateTime::of(2024, 3, 20)};
    activity = *store.activity(store.add(activity));
    database.now = database.now.plus_minutes(5);
    activity.regarding = "Salaries";
    activity.contacts = {eve};
    activity.exceptions = {DateTime::of(2024, 3, 21)};
    const std::int64_t revision = store.update(activity);
    const Activity read = *store.activity(activity.id);
    EXPECT_EQ(read.regarding, "Salaries");
    EXPECT_EQ(read.contacts, std::vector<std::string>{eve});
    EXPECT_EQ(read.exceptions, std::vector<DateTime>{DateTime::of(2024, 3, 21)});
    EXPECT_EQ(read.edited, database.now);
    EXPECT_EQ(read.revision, revision);
}

TEST_F(Activities, RefuseAChangeThatSomebodyElseForestalled) {
    const auto other = database.open_again();
    Activity mine = *store.activity(store.add(at(monday)));
    Activity theirs = *other->activity(mine.id);
    theirs.regarding = "Theirs";
    other->update(theirs);
    mine.regarding = "Mine";
    EXPECT_NE(store_failure([&] { store.update(mine); }).find("changed by somebody else"), std::string::npos);
    EXPECT_EQ(conflict_of([&] { store.update(mine); }), Cause::changed);
    EXPECT_EQ(store.activity(mine.id)->regarding, "Theirs");
}

TEST_F(Activities, RefuseAChangeOfOneThatSomebodyElseDeleted) {
    const Activity mine = *store.activity(store.add(at(monday)));
    database.open_again()->remove_activity(mine.id);
    EXPECT_NE(store_failure([&] { store.update(mine); }).find("deleted by somebody else"), std::string::npos);
    EXPECT_EQ(conflict_of([&] { store.update(mine); }), Cause::deleted);
    EXPECT_FALSE(store.activity(mine.id));
}

TEST_F(Activities, KeepTheirContactsAndExceptionsWhenAChangeFails) {
    const std::string max = store.add(Contact{}), eve = store.add(Contact{});
    Activity activity = at(monday);
    activity.contacts = {max, eve};
    activity = *store.activity(store.add(activity));
    Activity odd = activity;
    odd.contacts = {max, "C99999999999"};
    store_failure([&] { store.update(odd); });
    EXPECT_EQ(store.activity(activity.id)->contacts, activity.contacts);
    EXPECT_EQ(store.activity(activity.id)->revision, activity.revision);
}

TEST_F(Activities, GoWithTheirContactsAndExceptions) {
    Activity activity = at(monday);
    activity.contacts = {store.add(Contact{}), store.add(Contact{})};
    activity.recurrence.kind = RecurrenceKind::daily;
    activity.exceptions = {DateTime::of(2024, 3, 20)};
    activity.id = store.add(activity);
    store.remove_activity(activity.id);
    EXPECT_FALSE(store.activity(activity.id));
    store.remove_activity(activity.id);
    Activity again = at(monday);
    again.id = activity.id;
    store.add(again);
    EXPECT_TRUE(store.activity(activity.id)->contacts.empty());
}

TEST_F(Activities, TakeExceptionsOneByOne) {
    Activity daily = at(monday);
    daily.recurrence.kind = RecurrenceKind::daily;
    const std::string id = store.add(daily);
    database.now = database.now.plus_minutes(5);
    store.add_exception(id, DateTime::of(2024, 3, 20, 10));
    store.add_exception(id, DateTime::of(2024, 3, 15));
    EXPECT_EQ(store.activity(id)->exceptions,
              (std::vector<DateTime>{DateTime::of(2024, 3, 15), DateTime::of(2024, 3, 20)}));
    EXPECT_EQ(store.activity(id)->edited, database.now);
    EXPECT_EQ(store.activity(id)->revision, store.revision());
    store.remove_exception(id, DateTime::of(2024, 3, 20, 17));
    EXPECT_EQ(store.activity(id)->exceptions, std::vector<DateTime>{DateTime::of(2024, 3, 15)});
}

TEST_F(Activities, AreUnchangedByAnExceptionThatIsThereAndByTheRemovalOfOneThatIsNot) {
    Activity daily = at(monday);
    daily.recurrence.kind = RecurrenceKind::daily;
    daily.exceptions = {DateTime::of(2024, 3, 20)};
    const std::string id = store.add(daily);
    const std::int64_t before = store.revision();
    store.add_exception(id, DateTime::of(2024, 3, 20, 8));
    store.remove_exception(id, DateTime::of(2024, 3, 21));
    EXPECT_EQ(store.revision(), before);
    EXPECT_EQ(store.activity(id)->revision, before);
}

TEST_F(Activities, HaveNoExceptionsWhileTheyDontRepeat) {
    Activity plain = at(monday);
    plain.exceptions = {DateTime::of(2024, 3, 20)};
    const std::string id = store.add(plain);
    const std::int64_t before = store.revision();
    store.add_exception(id, DateTime::of(2024, 3, 21));
    EXPECT_EQ(store.revision(), before);
    Activity series = *store.activity(id);
    series.recurrence.kind = RecurrenceKind::daily;
    store.update(series);
    EXPECT_TRUE(store.activity(id)->exceptions.empty());
    store.add_exception(id, DateTime::of(2024, 3, 22));
    EXPECT_EQ(store.activity(id)->exceptions, std::vector<DateTime>{DateTime::of(2024, 3, 22)});
}

TEST_F(Activities, RefuseAnExceptionOfOneThatIsGone) {
    EXPECT_NE(store_failure([&] { store.add_exception("A99999999999", monday); }).find("deleted"),
              std::string::npos);
}
