#include "desk/store/activity_reading.h"

#include "desk/store/contact_fields.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

#include <algorithm>

using store::Activity;
using store::ActivityEntry;
using store::ActivityKey;
using store::ActivityRow;
using store::Contact;
using store::Id;
using values::DateTime;

namespace {

const DateTime monday = DateTime::of(2024, 3, 11, 10);

Activity at(DateTime start, const std::string& regarding) {
    Activity activity;
    activity.regarding = regarding;
    activity.start = start;
    activity.duration = 60;
    return activity;
}

class Reading : public testing::Test {
protected:
    support::TemporaryDatabase database;
    store::Store& store = database.store();
    store::ActivityReading& reading = store.reading();

    std::string add_series(DateTime start, const std::string& regarding) {
        Activity series = at(start, regarding);
        series.recurrence.kind = store::RecurrenceKind::daily;
        return store.add(series);
    }
    // Collects the subjects of the rows that a reading gives.
    std::string names;
    std::function<void(const ActivityRow&)> collect = [this](const ActivityRow& row) {
        names += row.regarding + " ";
    };
};

} // namespace

TEST(Id, KeepsATrailingBlank) {
    EXPECT_EQ(Id("99887766554 ").text(), "99887766554 ");
    EXPECT_TRUE(Id("").empty());
    EXPECT_EQ(Id("").text(), "");
    EXPECT_LT(Id("A00000000009"), Id("A00000000010"));
}

TEST_F(Reading, GivesAnEntryForEachActivityInOrder) {
    Activity late = at(monday.plus_days(1), "late");
    late.type = store::ActivityType::to_do;
    late.priority = store::Priority::high;
    late.cleared = true;
    const std::string late_id = store.add(late);
    const std::string early_id = add_series(monday, "early");
    Activity undated = at(monday, "undated");
    undated.start.reset();
    const std::string undated_id = store.add(undated);

    std::vector<ActivityEntry> entries;
    reading.each_entry([&](const ActivityEntry& entry) { entries.push_back(entry); });
    ASSERT_EQ(entries.size(), 3u);
    EXPECT_EQ(entries[0].key.id.text(), undated_id);
    EXPECT_EQ(entries[0].key.start, ActivityKey::no_start);
    EXPECT_EQ(entries[1].key.id.text(), early_id);
    EXPECT_EQ(entries[1].key.start, monday.seconds());
    EXPECT_TRUE(entries[1].recurring);
    EXPECT_EQ(entries[2].key.id.text(), late_id);
    EXPECT_EQ(entries[2].edited, database.now.seconds());
    EXPECT_EQ(entries[2].type, store::ActivityType::to_do);
    EXPECT_EQ(entries[2].priority, store::Priority::high);
    EXPECT_TRUE(entries[2].cleared);
    EXPECT_FALSE(entries[2].recurring);
}

TEST_F(Reading, GivesARowWithWhatTheRecordHolds) {
    const std::string ann = store.add(store::User{.name = "Ann"});
    const std::string group = store.add(store::Group{.name = "Suppliers"});
    Activity full = at(monday, "Yearly figures");
    full.end = monday.plus_minutes(45);
    full.is_private = full.alarm = true;
    full.alarm_lead = 10;
    full.colour = 255;
    full.user = ann;
    full.group = group;
    full.contacts = {store.add(Contact{}), store.add(Contact{})};
    full.details = "Long";
    full.recurrence = {.kind = store::RecurrenceKind::weekly,
                       .frequency = 2,
                       .until = DateTime::of(2025, 1, 1),
                       .days_of_week = 10,
                       .weeks_of_month = 3,
                       .days_of_month = 0x80000000};
    full.exceptions = {DateTime::of(2024, 3, 13)};
    const Id id(store.add(full));

    const ActivityRow row = *reading.row(id);
    EXPECT_EQ(row.entry.key, (ActivityKey{monday.seconds(), id}));
    EXPECT_EQ(row.end, full.end.seconds());
    EXPECT_EQ(row.user.text(), ann);
    EXPECT_EQ(row.group.text(), group);
    EXPECT_EQ(row.contact.text(), full.contacts.front());
    EXPECT_EQ(row.contact_count, 2);
    EXPECT_EQ(row.duration, 60);
    EXPECT_EQ(row.alarm_lead, 10);
    EXPECT_EQ(row.colour, 255u);
    EXPECT_TRUE(row.is_private);
    EXPECT_TRUE(row.alarm);
    EXPECT_TRUE(row.has_details);
    EXPECT_EQ(row.recurrence, full.recurrence);
    EXPECT_EQ(row.regarding, "Yearly figures");
    EXPECT_EQ(reading.details(id), "Long");
    EXPECT_EQ(reading.contacts(id), full.contacts);
    EXPECT_EQ(reading.exceptions(id), full.exceptions);
}

TEST_F(Reading, GivesNothingForAnActivityThatThereIsNot) {
    const Id gone("A99999999999");
    EXPECT_FALSE(reading.row(gone));
    EXPECT_EQ(reading.details(gone), "");
    EXPECT_TRUE(reading.contacts(gone).empty());
    EXPECT_TRUE(reading.exceptions(gone).empty());
}

TEST_F(Reading, TellsAnActivityWithoutDetailsContactsAndColour) {
    const ActivityRow row = *reading.row(Id(store.add(at(monday, "bare"))));
    EXPECT_FALSE(row.has_details);
    EXPECT_TRUE(row.contact.empty());
    EXPECT_EQ(row.contact_count, 0);
    EXPECT_FALSE(row.colour);
    EXPECT_TRUE(reading.contacts(row.entry.key.id).empty());
}

TEST_F(Reading, GivesTheSeriesThatMayTouchTheDatesAlone) {
    const auto add_until = [&](DateTime start, const std::string& name, DateTime until) {
        Activity series = *store.activity(add_series(start, name));
        series.recurrence.until = until;
        store.update(series);
    };
    add_until(monday.plus_days(-9), "over", monday.plus_days(-1).date());
    add_until(monday.plus_days(-9), "ends-now", monday.date());
    store.add(at(monday, "plain"));
    add_series(monday.plus_days(6), "begins-at-the-end");
    add_series(monday.plus_days(6).plus_minutes(1), "later");
    add_until(monday.plus_days(6).plus_minutes(1), "later-too", monday.plus_days(9));
    Activity undated = at(monday, "undated");
    undated.start.reset();
    undated.recurrence.kind = store::RecurrenceKind::daily;
    store.add(undated);
    reading.each_series(monday.date(), monday.plus_days(6), collect);
    EXPECT_EQ(names, "ends-now begins-at-the-end ");
}

TEST_F(Reading, GivesTheEntriesEditedLaterThanAMoment) {
    DateTime now = monday;
    const auto clocked = store::Store::open(database.path(), [&] { return now; });
    const Id late(clocked->add(at(monday.plus_days(3), "late"))), early(clocked->add(at(monday, "early")));
    now = monday.plus_minutes(1);
    clocked->update(*clocked->activity(late.text()));
    clocked->update(*clocked->activity(early.text()));
    clocked->add(at(monday.plus_days(1), "between"));
    now = monday;
    clocked->add(at(monday, "not since"));
    std::vector<std::int64_t> starts;
    reading.each_edited(monday, [&](const ActivityEntry& entry) { starts.push_back(entry.key.start); });
    std::sort(starts.begin(), starts.end());
    EXPECT_EQ(starts, (std::vector<std::int64_t>{monday.seconds(), monday.plus_days(1).seconds(),
                                                 monday.plus_days(3).seconds()}));
}

TEST_F(Reading, TellsWhetherEveryIdIsOfTheStoresOwnKind) {
    EXPECT_TRUE(reading.has_own_ids_alone());
    store.add(at(monday, "own"));
    EXPECT_TRUE(reading.has_own_ids_alone());
    for (const char* id : {"00000000000A", "B00000000001"}) {
        Activity imported = at(monday, "imported");
        imported.id = id;
        store.add(imported);
        EXPECT_FALSE(reading.has_own_ids_alone());
        store.remove_activity(id);
    }
    EXPECT_TRUE(reading.has_own_ids_alone());
}

TEST_F(Reading, GivesAScopeWithItsBeginningButNotItsEnd) {
    store.add(at(monday, "first"));
    add_series(monday.plus_days(1), "series");
    store.add(at(monday.plus_days(7), "after"));
    reading.each_in_scope(monday, monday.plus_days(7), collect);
    EXPECT_EQ(names, "first series ");
}

TEST_F(Reading, GivesSoManyRowsFromAPlaceOn) {
    store.add(at(monday, "a"));
    const Id b(store.add(at(monday, "b")));
    store.add(at(monday, "c"));
    store.add(at(monday.plus_minutes(1), "d"));
    store.add(at(monday.plus_minutes(2), "e"));
    reading.each_from({monday.seconds(), b}, 3, collect);
    EXPECT_EQ(names, "b c d ");
}

TEST_F(Reading, GivesAllWithoutAStartFromAnyOfThem) {
    Activity undated = at(monday, "x");
    undated.start.reset();
    store.add(undated);
    const Id second(store.add(undated));
    store.add(at(monday, "dated"));
    reading.each_from({ActivityKey::no_start, second}, 1, collect);
    EXPECT_EQ(names, "x x ");
}

TEST_F(Reading, GivesEveryExceptionWithItsSeries) {
    const std::string first = add_series(monday, "first"), second = add_series(monday, "second");
    store.add_exception(second, monday.plus_days(5));
    store.add_exception(first, monday.plus_days(4));
    store.add_exception(first, monday.plus_days(3));
    std::vector<std::pair<std::string, DateTime>> read;
    reading.each_exception([&](const Id& id, DateTime date) { read.emplace_back(id.text(), date); });
    EXPECT_EQ(read, (std::vector<std::pair<std::string, DateTime>>{{first, monday.plus_days(3).date()},
                                                                   {first, monday.plus_days(4).date()},
                                                                   {second, monday.plus_days(5).date()}}));
}

TEST_F(Reading, TellsWhatChangedBehindARevision) {
    const std::string changed = store.add(at(monday, "changed")), removed = store.add(at(monday, "removed"));
    store.add(at(monday, "left alone"));
    const std::string contact = store.add(Contact{});
    store.add(Contact{});
    const std::int64_t before = store.revision();
    store.update(*store.activity(changed));
    store.remove_activity(removed);
    store.add(at(monday, "added"));
    store.update(*store.contact(contact));

    const store::ActivityChanges changes = reading.changes_since(before);
    ASSERT_EQ(changes.changed.size(), 2u);
    EXPECT_EQ(changes.changed[0].regarding, "changed");
    EXPECT_EQ(changes.changed[1].regarding, "added");
    EXPECT_EQ(changes.removed, std::vector<Id>{Id(removed)});
    EXPECT_EQ(changes.contacts, std::vector<std::string>{contact});
    EXPECT_TRUE(reading.changes_since(store.revision()).changed.empty());
    EXPECT_TRUE(reading.changes_since(store.revision()).removed.empty());
    EXPECT_TRUE(reading.changes_since(store.revision()).contacts.empty());
}

TEST_F(Reading, TellsASeriesWhoseExceptionsChanged) {
    const std::string id = add_series(monday, "series");
    const std::int64_t before = store.revision();
    store.add_exception(id, monday.plus_days(1));
    EXPECT_EQ(reading.changes_since(before).changed.size(), 1u);
}

TEST_F(Reading, DoesNotTellAnActivityRemovedThatCameBackWithItsId) {
    Activity activity = at(monday, "back again");
    activity.id = store.add(activity);
    const std::int64_t before = store.revision();
    store.remove_activity(activity.id);
    store.add(activity);
    EXPECT_TRUE(reading.changes_since(before).removed.empty());
    EXPECT_EQ(reading.changes_since(before).changed.size(), 1u);
}

TEST_F(Reading, GivesTheFieldsOfAContactThatAreAskedForInTheirOrder) {
    Contact contact;
    for (const store::ContactField& field : store::contact_fields())
        contact.fields[field.number] = "value " + std::to_string(field.number);
    contact.fields.erase(27);
    const Id id(store.add(contact));
    EXPECT_EQ(reading.contact_fields(id, {35, 25, 203, 27}),
              (std::vector<std::string>{"value 35", "value 25", "value 203", ""}));
    EXPECT_EQ(reading.contact_fields(id, {}), std::vector<std::string>());
    EXPECT_FALSE(reading.contact_fields(Id("C99999999999"), {25}));
}
