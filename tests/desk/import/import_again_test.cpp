#include "desk/store/imported_records.h"
#include "import_world.h"

#include <gtest/gtest.h>

// A file that is imported again: nothing is there twice, and nobody's work is lost.
namespace {

using importing::Deleted;
using importing::Report;
using test_import::ImportWorld;
using values::DateTime;

std::string event(const std::string& uid, const std::string& start, const std::string& lines = "") {
    return "BEGIN:VEVENT\r\n" + (uid.empty() ? "" : "UID:" + uid + "\r\n") + "DTSTART:202403" + start + "\r\n" +
           lines + "END:VEVENT\r\n";
}

std::string calendar(const std::string& entries) { return "BEGIN:VCALENDAR\r\n" + entries + "END:VCALENDAR\r\n"; }

class ImportAgain : public testing::Test {
protected:
    Report take(const std::string& entries) { return world.take(calendar(entries)); }
    Report take_with_deleted(const std::string& entries) {
        importing::Options options = world.options();
        options.deleted = Deleted::come_back;
        return importing::import_bytes(store, calendar(entries), "file", options);
    }
    std::vector<store::Activity> activities() { return store.activities({}); }
    void change(const std::function<void(store::Activity&)>& how) {
        store::Activity activity = activities().at(0);
        how(activity);
        store.update(activity);
    }

    ImportWorld world;
    store::Store& store = world.store();
};

class EveryFile : public testing::TestWithParam<std::string> {};

TEST_P(EveryFile, IsNotThereTwiceWhenItComesTwice) {
    ImportWorld world;
    const auto take = [&] { return world.taken(GetParam()); };
    const std::string once = take();
    const std::string records = world.records();
    take();
    EXPECT_EQ(world.records(), records) << once;
}

INSTANTIATE_TEST_SUITE_P(Import, EveryFile, testing::ValuesIn(test_import::data_files()), [](const auto& file) {
    std::string name = file.param;
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
});

TEST_F(ImportAgain, UpdatesWhatTheFileChangedAndLeavesTheRest) {
    take(event("a", "12T090000", "SUMMARY:Old\r\n") + event("b", "13T090000"));
    const std::string id = activities().at(0).id;
    const Report report =
        take(event("a", "12T100000", "SUMMARY:New\r\n") + event("b", "13T090000") + event("c", "14T090000"));
    EXPECT_EQ(report.activities, 1u);
    EXPECT_EQ(report.updated, 1u);
    EXPECT_EQ(report.unchanged, 1u);
    ASSERT_EQ(activities().size(), 3u);
    EXPECT_EQ(activities()[0].id, id);
    EXPECT_EQ(activities()[0].regarding, "New");
    EXPECT_EQ(activities()[0].start, DateTime::of(2024, 3, 12, 10));
    EXPECT_EQ(report.text(), "Taken from file: 1 activity for Anna Keller, 0 new contacts, 0 notes.\n"
                             "Taken before: 1 activity updated, 1 activity unchanged.\n");
    EXPECT_EQ(take(event("a", "12T100000", "SUMMARY:New\r\n")).unchanged, 1u);
}

TEST_F(ImportAgain, LeavesWhatTheUserChanged) {
    take(event("a", "12T090000"));
    change([](store::Activity& activity) { activity.regarding = "Mine"; });
    const Report same = take(event("a", "12T090000"));
    EXPECT_EQ(same.left_as_changed, 1u);
    EXPECT_TRUE(same.skipped.empty());
    const Report newer = take(event("a", "12T100000"));
    EXPECT_EQ(newer.left_as_changed, 1u);
    ASSERT_EQ(newer.skipped.size(), 1u);
    EXPECT_EQ(newer.skipped[0].source.uid, "a");
    EXPECT_EQ(activities().at(0).regarding, "Mine");
    EXPECT_EQ(activities().at(0).start, DateTime::of(2024, 3, 12, 9));
}

TEST_F(ImportAgain, AnEditThatWasTakenBackIsNoChange) {
    take(event("a", "12T090000", "RRULE:FREQ=DAILY\r\n"));
    const store::Activity series = activities().at(0);
    store.add_exception(series.id, DateTime::of(2024, 3, 14));
    store.remove_exception(series.id, DateTime::of(2024, 3, 14));
    EXPECT_EQ(take(event("a", "12T100000", "RRULE:FREQ=DAILY\r\n")).updated, 1u);
}

TEST_F(ImportAgain, AnOccurrenceThatWasTakenOutOfItsSeriesIsAChange) {
    take(event("a", "12T090000", "RRULE:FREQ=DAILY\r\n"));
    store.add_exception(activities().at(0).id, DateTime::of(2024, 3, 14));
    EXPECT_EQ(take(event("a", "12T100000", "RRULE:FREQ=DAILY\r\n")).left_as_changed, 1u);
}

TEST_F(ImportAgain, WhatWasDeletedStaysDeletedUnlessItIsAskedFor) {
    const std::string both = event("a", "12T090000") + event("b", "13T090000");
    take(both);
    store.remove_activity(activities().at(0).id);
    EXPECT_EQ(take(both).left_deleted, 1u);
    EXPECT_EQ(activities().size(), 1u);
    const Report back = take_with_deleted(both);
    EXPECT_EQ(back.activities, 1u);
    EXPECT_EQ(back.unchanged, 1u);
    EXPECT_EQ(activities().size(), 2u);
    EXPECT_EQ(take(both).unchanged, 2u);
}

TEST_F(ImportAgain, EachUserHasAnActivityOfTheirOwn) {
    take(event("a", "12T090000"));
    importing::Options toms = world.options();
    toms.user = "Tom Whitfield";
    const auto report = importing::import_bytes(store, calendar(event("a", "12T090000")), "file", toms);
    EXPECT_EQ(report.activities, 1u);
    EXPECT_EQ(activities().size(), 2u);
}

TEST_F(ImportAgain, AnOccurrenceThatTheFileMovedIsMoved) {
    const std::string series = event("a", "12T090000", "RRULE:FREQ=DAILY\r\n");
    take(series);
    const Report moved = take(series + event("a", "14T150000", "RECURRENCE-ID:20240314T090000\r\n"));
    EXPECT_EQ(moved.updated, 1u); // the series leaves the day out
    EXPECT_EQ(moved.activities, 1u);
    EXPECT_EQ(activities().at(0).exceptions, std::vector{DateTime::of(2024, 3, 14)});
    const Report again = take(series + event("a", "15T150000", "RECURRENCE-ID:20240314T090000\r\n"));
    EXPECT_EQ(again.updated, 1u);
    EXPECT_EQ(activities().size(), 2u);
    const Report back = take(series);
    EXPECT_EQ(back.updated, 1u);
    EXPECT_EQ(back.removed, 1u);
    ASSERT_EQ(activities().size(), 1u);
    EXPECT_TRUE(activities()[0].exceptions.empty());
}

TEST_F(ImportAgain, WhatAnEntryHasNoLongerIsRemovedUnlessTheUserChangedIt) {
    take(event("a", "11T090000", "RDATE:20240312T090000,20240313T090000\r\n"));
    store::Activity changed = activities().at(2);
    changed.regarding = "Mine";
    store.update(changed);
    const Report report = take(event("a", "11T090000"));
    EXPECT_EQ(report.unchanged, 1u);
    EXPECT_EQ(report.removed, 1u);
    EXPECT_EQ(report.left_as_changed, 1u);
    EXPECT_EQ(activities().size(), 2u);
    EXPECT_EQ(report.text(),
              "Taken from file: 0 activities, 0 new contacts, 0 notes.\n"
              "Taken before: 1 activity unchanged, 1 activity left as changed by the user, 1 activity "
              "removed, as the file has no more of them.\n");
}

TEST_F(ImportAgain, ACancelledEntryIsRemoved) {
    take(event("a", "12T090000") + event("b", "13T090000"));
    const Report report = take(event("a", "12T090000", "STATUS:CANCELLED\r\n"));
    EXPECT_EQ(report.removed, 1u);
    ASSERT_EQ(activities().size(), 1u); // the other isn't in the file, which says nothing about it
    EXPECT_EQ(activities()[0].start, DateTime::of(2024, 3, 13, 9));
}

TEST_F(ImportAgain, ASingleOccurrenceInAFileSaysNothingAboutItsSeries) {
    take(event("a", "12T090000", "RRULE:FREQ=DAILY\r\n"));
    const Report report = take(event("a", "14T150000", "RECURRENCE-ID:20240314T090000\r\n"));
    EXPECT_EQ(report.activities, 1u);
    EXPECT_EQ(report.removed, 0u);
    EXPECT_EQ(activities().size(), 2u);
}

TEST_F(ImportAgain, WhatOnlyMovedOutOfReachIsNotRemoved) {
    const std::string hourly = event("a", "12T090000", "RRULE:FREQ=HOURLY;INTERVAL=5\r\n");
    take(hourly);
    importing::Options later = world.options();
    later.now = DateTime::of(2024, 9, 11, 9);
    const Report report = importing::import_bytes(store, calendar(hourly), "file", later);
    EXPECT_GT(report.activities, 0u);
    EXPECT_EQ(report.removed, 0u);
}

TEST_F(ImportAgain, AnOccurrenceThatCantBeReadAnyMoreIsNotRemoved) {
    const std::string series = event("a", "12T090000", "RRULE:FREQ=DAILY\r\n");
    take(series + event("a", "14T150000", "RECURRENCE-ID:20240314T090000\r\n"));
    EXPECT_EQ(take(series + event("a", "99T990000", "RECURRENCE-ID:20240314T090000\r\n")).removed, 0u);
    EXPECT_EQ(activities().size(), 2u);
}

TEST_F(ImportAgain, DatesOfARuleThatCantBeFollowedAnyMoreAreNotRemoved) {
    take(event("a", "11T090000", "RRULE:FREQ=HOURLY;INTERVAL=5;COUNT=3\r\n"));
    const std::size_t before = activities().size();
    EXPECT_EQ(take(event("a", "11T090000", "RRULE:FREQ=SECONDLY\r\n")).removed, 0u);
    EXPECT_GE(activities().size(), before);
}

TEST_F(ImportAgain, AnEntryThatTakesTooMuchWorkIsntRemoved) {
    take(event("a", "12T090000", "RDATE:20240313T090000\r\n"));
    const Report report = take(event("a", "12T090000", "RRULE:FREQ=DAILY\r\nEXRULE:FREQ=SECONDLY\r\n"));
    EXPECT_EQ(report.skipped.size(), 1u);
    EXPECT_EQ(report.removed, 0u);
    EXPECT_EQ(activities().size(), 2u);
}

TEST_F(ImportAgain, NothingIsRemovedOnTheWordOfOneOfTwoEntriesUnderAName) {
    const std::string first = event("a", "12T090000");
    world.take(calendar(first) + calendar(event("a", "13T090000")));
    ASSERT_EQ(activities().size(), 2u);
    EXPECT_EQ(world.take(calendar(first) + calendar(event("a", "99T990000"))).removed, 0u);
    EXPECT_EQ(activities().size(), 2u);
}

TEST_F(ImportAgain, AnOccurrenceWithARuleOfItsOwnIsKnownAgainWhenItsSeriesComes) {
    const std::string occurrence = event("a", "14T150000", "RECURRENCE-ID:20240314T090000\r\n");
    take(event("a", "14T150000", "RECURRENCE-ID:20240314T090000\r\nRRULE:FREQ=WEEKLY\r\n"));
    const std::string id = activities().at(0).id;
    const Report report = take(event("a", "12T090000", "RRULE:FREQ=DAILY\r\n") + occurrence);
    EXPECT_EQ(report.activities, 1u);
    EXPECT_EQ(report.updated, 1u);
    ASSERT_EQ(activities().size(), 2u);
    EXPECT_EQ(activities()[1].id, id);
    EXPECT_EQ(activities()[1].recurrence.kind, store::RecurrenceKind::none);
}

TEST_F(ImportAgain, ASeriesWhoseFirstDateItsExceptionRulesLeaveOutIsKnownAgain) {
    const std::string series = event("a", "12T090000", "RRULE:FREQ=DAILY\r\n");
    take(series);
    const Report report =
        take(event("a", "12T090000", "RRULE:FREQ=DAILY\r\nEXRULE:FREQ=DAILY;UNTIL=20240312T090000\r\n"));
    EXPECT_EQ(report.updated, 1u);
    EXPECT_EQ(activities().size(), 1u);
    EXPECT_EQ(take(series).updated, 1u);
}

TEST_F(ImportAgain, EntriesWithoutANameAreKnownByWhatTheySay) {
    const std::string entries = event("", "12T090000") + event("", "12T090000") + event("", "13T090000");
    EXPECT_EQ(take(entries).activities, 3u);
    EXPECT_EQ(take(entries).unchanged, 3u);
    EXPECT_EQ(activities().size(), 3u);
}

TEST_F(ImportAgain, AToDoAndAnEventMayBearTheSameName) {
    const std::string both =
        event("a", "12T090000") + "BEGIN:VTODO\r\nUID:a\r\nDUE:20240312T090000\r\nEND:VTODO\r\n";
    EXPECT_EQ(take(both).activities, 2u);
    EXPECT_EQ(take(both).unchanged, 2u);
}

TEST_F(ImportAgain, TheContactOfACalendarIsMadeOnceAlsoWhenItIsRenamed) {
    take(event("a", "12T090000"));
    store::Contact contact = *store.contact(activities().at(0).contacts.at(0));
    contact.fields[store::contact_field::name] = "The office";
    store.update(contact);
    const Report report = take(event("a", "12T090000") + event("b", "13T090000"));
    EXPECT_EQ(report.contacts, 0u);
    EXPECT_EQ(activities().at(1).contacts, std::vector{contact.id});
}

std::string card(const std::string& uid, const std::string& lines) {
    return "BEGIN:VCARD\r\nVERSION:3.0\r\n" + (uid.empty() ? "" : "UID:" + uid + "\r\n") + lines + "END:VCARD\r\n";
}

class CardAgain : public ImportAgain {
protected:
    store::Contact contact_of(const std::string& uid) {
        return *store.contact(store.imported_records().of(store::RecordKind::contact, "", uid).at(0).record);
    }
};

TEST_F(CardAgain, IsUpdatedAndNotThereTwice) {
    world.take(card("p", "FN:Paula Page\r\nTEL:1\r\nNOTE:Likes tea\r\n"));
    const Report same = world.take(card("p", "FN:Paula Page\r\nTEL:1\r\nNOTE:Likes tea\r\n"));
    EXPECT_EQ(same.contacts_unchanged, 1u);
    const Report newer = world.take(card("p", "FN:Paula Pohl\r\nTEL:2\r\nNOTE:Likes tea\r\nNOTE:Moved\r\n"));
    EXPECT_EQ(newer.contacts_updated, 1u);
    EXPECT_EQ(newer.contacts, 0u);
    EXPECT_EQ(newer.notes, 1u);
    EXPECT_EQ(contact_of("p").fields.at(store::contact_field::name), "Paula Pohl");
    EXPECT_EQ(contact_of("p").fields.at(store::contact_field::phone), "2");
    EXPECT_EQ(store.notes(contact_of("p").id).size(), 2u);
    EXPECT_EQ(newer.text(), "Taken from file: 0 activities, 0 new contacts, 1 note.\n"
                            "Taken before: 1 contact updated.\n");
}

TEST_F(CardAgain, IsLeftWhereTheUserChangedTheContact) {
    world.take(card("p", "FN:Paula Page\r\nTEL:1\r\n"));
    store::Contact contact = contact_of("p");
    contact.fields[store::contact_field::phone] = "7";
    store.update(contact);
    EXPECT_EQ(world.take(card("p", "FN:Paula Page\r\nTEL:1\r\n")).contacts_left_as_changed, 1u);
    const Report newer = world.take(card("p", "FN:Paula Page\r\nTEL:2\r\n"));
    EXPECT_EQ(newer.contacts_left_as_changed, 1u);
    EXPECT_EQ(newer.skipped.size(), 1u);
    EXPECT_EQ(contact_of("p").fields.at(store::contact_field::phone), "7");
}

TEST_F(CardAgain, WithoutANameIsToldByThePerson) {
    world.take(card("", "FN:Paula Page\r\n"));
    const Report report = world.take(card("", "FN:Paula Page\r\nTEL:2\r\n"));
    EXPECT_EQ(report.contacts, 0u);
    ASSERT_EQ(report.skipped.size(), 1u);
    EXPECT_EQ(report.skipped[0].text, "The database has this contact already.");
}

} // namespace
