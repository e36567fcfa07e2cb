#include "desk/export/export_file.h"

#include "core/values/failure.h"
#include "core/values/text.h"
#include "desk/export/whole_file.h"
#include "desk/import/import_file.h"
#include "desk/store/sample.h"
#include "random_team.h"
#include "support/temporary_database.h"
#include "whole_database.h"

#include <gtest/gtest.h>

// What a desk exports, another one has back whole.
namespace {

using support::TemporaryDatabase;
using test_export::expect_same;
using test_export::RandomTeam;
using test_export::Whole;
using values::DateTime;

const exporting::Options everybody{.user = "", .stamp = 1'710'000'000};

class ExportFile : public testing::Test {
protected:
    support::TemporaryFolder folder;
    std::string calendar = folder.file("all.ics");
    std::string cards = folder.file("all.vcf");

    void export_both(store::Store& store) {
        exporting::export_file(store, cards, everybody);
        exporting::export_file(store, calendar, everybody);
    }
    static importing::Report take(store::Store& store, const std::string& file, const std::string& user = "") {
        importing::Options options;
        options.user = user;
        options.now = DateTime::of(2024, 3, 11, 9);
        options.local_time = [](std::int64_t) { return DateTime::of(2024, 3, 11, 9); };
        return importing::import_file(store, file, options);
    }
    template <typename Action>
    static std::string failure_of(const Action& action) {
        try {
            action();
        } catch (const values::Failure& failure) {
            return failure.description();
        }
        return "";
    }

    TemporaryDatabase here, there;
};

} // namespace

TEST_F(ExportFile, TheSampleComesBackWhole) {
    store::fill_sample(here.store(), DateTime::of(2024, 3, 11));
    export_both(here.store());
    take(there.store(), cards);
    const auto report = take(there.store(), calendar);
    EXPECT_TRUE(report.skipped.empty()) << report.text();
    EXPECT_TRUE(report.changed.empty()) << report.text();
    expect_same(here.store(), there.store());
}

TEST_F(ExportFile, TwoThousandActivitiesOfAnyKindComeBackWhole) {
    here.store().together([&] { RandomTeam(7).fill(here.store()); });
    export_both(here.store());
    take(there.store(), cards);
    const auto report = take(there.store(), calendar);
    EXPECT_EQ(report.activities, 2000u);
    EXPECT_TRUE(report.skipped.empty()) << report.text(10);
    EXPECT_TRUE(report.changed.empty()) << report.text(10);
    expect_same(here.store(), there.store());
}

TEST_F(ExportFile, TheCalendarMayComeBeforeTheCards) {
    here.store().together([&] { RandomTeam(8).fill(here.store()); });
    export_both(here.store());
    take(there.store(), calendar);
    const auto report = take(there.store(), cards);
    EXPECT_EQ(report.contacts_left_as_changed, 0u) << report.text(10);
    expect_same(here.store(), there.store());
}

TEST_F(ExportFile, WhatComesBackIntoItsOwnDatabaseChangesNothing) {
    store::fill_sample(here.store(), DateTime::of(2024, 3, 11));
    export_both(here.store());
    const auto activities = Whole(here.store()).activities();
    const auto report = take(here.store(), calendar);
    EXPECT_EQ(report.unchanged, activities.size());
    EXPECT_EQ(report.activities + report.updated + report.left_as_changed + report.contacts, 0u) << report.text(5);
    const auto contacts = take(here.store(), cards);
    EXPECT_EQ(contacts.contacts_unchanged, here.store().contacts().size());
    EXPECT_EQ(contacts.contacts, 0u);
    EXPECT_EQ(Whole(here.store()).activities(), activities);
}

TEST_F(ExportFile, WhatAnotherProgramChangedComesBackIntoItsOwnDatabase) {
    store::fill_sample(here.store(), DateTime::of(2024, 3, 11));
    export_both(here.store());
    const store::Activity first = here.store().activities({}).front();
    store::Activity second = here.store().activities({}).at(1);
    for (const store::Activity& changed : {first, second}) {
        const std::string uid = "UID:" + changed.id + "." + here.store().identity() + "@contact-desk\r\n";
        support::write_file(calendar,
                            values::replaced(support::content_of(calendar), uid, uid + "LOCATION:Room 4\r\n"));
    }
    second.regarding = "Mine";
    here.store().update(second);
    const auto report = take(here.store(), calendar);
    EXPECT_EQ(report.updated, 1u);
    EXPECT_EQ(report.left_as_changed, 1u) << report.text(5);
    EXPECT_EQ(report.activities, 0u);
    EXPECT_TRUE(values::contains(here.store().activity(first.id)->details, "Location: Room 4"));
    EXPECT_EQ(here.store().activity(second.id)->regarding, "Mine");
    EXPECT_EQ(take(here.store(), calendar).updated, 0u);
}

TEST_F(ExportFile, WhatWasDeletedHereComesBackFromItsExport) {
    store::fill_sample(here.store(), DateTime::of(2024, 3, 11));
    export_both(here.store());
    const auto activities = Whole(here.store()).activities();
    here.store().remove_activity(here.store().activities({}).front().id);
    EXPECT_EQ(take(here.store(), calendar).activities, 1u);
    EXPECT_EQ(Whole(here.store()).activities(), activities);
}

TEST_F(ExportFile, ASecondExportUpdatesTheOtherDatabase) {
    store::fill_sample(here.store(), DateTime::of(2024, 3, 11));
    export_both(here.store());
    take(there.store(), cards);
    take(there.store(), calendar);
    store::Activity activity = here.store().activities({}).front();
    activity.result = "Done";
    activity.cleared = true;
    here.store().update(activity);
    export_both(here.store());
    const auto report = take(there.store(), calendar);
    EXPECT_EQ(report.updated, 1u);
    EXPECT_EQ(report.activities, 0u);
    expect_same(here.store(), there.store());
}

TEST_F(ExportFile, WhatAnotherProgramChangedInTheFileCounts) {
    here.store().add(store::User{.name = "Anna", .security = "Standard", .access = "Enabled"});
    store::Activity activity;
    activity.type = store::ActivityType::call;
    activity.user = here.store().users().front().id;
    activity.regarding = "Old";
    activity.start = DateTime::of(2024, 3, 12, 9);
    activity.duration = 30;
    activity.end = activity.start->plus_minutes(30);
    activity.result = "No answer";
    activity.colour = 0x123456;
    activity.recurrence = {.kind = store::RecurrenceKind::daily};
    here.store().add(activity);
    exporting::export_file(here.store(), calendar, everybody);
    std::string text = support::content_of(calendar);
    text = values::replaced(text, "SUMMARY:Old", "SUMMARY:New");
    text = values::replaced(text, "DTSTART:20240312T090000", "DTSTART:20240312T100000");
    text = values::replaced(text, "DTEND:20240312T093000", "DTEND:20240312T110000");
    text = values::replaced(text, "FREQ=DAILY", "FREQ=WEEKLY");
    support::write_file(calendar, text);
    take(there.store(), calendar);
    ASSERT_EQ(there.store().activities({}).size(), 1u);
    const store::Activity got = there.store().activities({}).front();
    EXPECT_EQ(got.regarding, "New");
    EXPECT_EQ(got.start, DateTime::of(2024, 3, 12, 10));
    EXPECT_EQ(got.duration, 60);
    EXPECT_EQ(got.recurrence.kind, store::RecurrenceKind::weekly);
    EXPECT_EQ(got.type, store::ActivityType::call);
    EXPECT_EQ(got.result, "No answer");
    EXPECT_EQ(got.colour, 0x123456u);
}

TEST_F(ExportFile, AUserWhoIsChosenTakesItAll) {
    store::fill_sample(here.store(), DateTime::of(2024, 3, 11));
    exporting::export_file(here.store(), calendar, everybody);
    there.store().add(store::User{.name = "Zora", .security = "Standard", .access = "Enabled"});
    take(there.store(), calendar, "Zora");
    EXPECT_EQ(there.store().users().size(), 1u);
    store::ActivityQuery query;
    query.users = {there.store().users().front().id};
    EXPECT_EQ(there.store().activities(query).size(), here.store().activities({}).size());
}

TEST_F(ExportFile, OneUsersActivitiesAlone) {
    store::fill_sample(here.store(), DateTime::of(2024, 3, 11));
    const store::User user = here.store().users().at(1);
    store::ActivityQuery query;
    query.users = {user.id};
    const auto report = exporting::export_file(here.store(), calendar, {.user = values::lower(user.name)});
    EXPECT_EQ(report.activities, here.store().activities(query).size());
    EXPECT_EQ(report.user, user.name);
    take(there.store(), calendar);
    ASSERT_EQ(there.store().users().size(), 1u);
    EXPECT_EQ(there.store().users().front().name, user.name);
    EXPECT_EQ(
        failure_of([&] { exporting::export_file(here.store(), calendar, {.user = "Nobody"}); }).substr(0, 41),
        "There is no user \"Nobody\". The users are:");
}

TEST_F(ExportFile, TellsWhatOtherProgramsWontSee) {
    store::Store& store = here.store();
    store.add(store::Activity{.regarding = "Someday"});
    store::Activity never{.regarding = "Never", .start = DateTime::of(2024, 3, 12, 9)};
    never.recurrence.kind = store::RecurrenceKind::weekly;
    store.add(never);
    store.add(store::Group{.name = "Empty"});
    store.add(store::Contact{.fields = {{26, "Alone"}}});
    EXPECT_EQ(exporting::export_file(store, calendar, everybody).text(),
              "Written to all.ics: 2 activities (1 recurring) of everybody.\n"
              "1 activity has no date that calendars know; other programs see a to-do without a time.\n"
              "1 series falls on no day by its rule; other programs see one activity.\n");
    EXPECT_EQ(exporting::export_file(store, cards, everybody).text(),
              "Written to all.vcf: 1 contact, 0 notes.\n"
              "1 group without contacts isn't in the file; a calendar file of everybody's activities has them.\n");
}

TEST_F(ExportFile, NeverTakesTheDatabasesOwnPlace) {
    const std::string path = folder.file("team.ics");
    const auto store = store::Store::create(path);
    EXPECT_EQ(failure_of([&] { exporting::export_file(*store, path, everybody); }),
              "That file is the database itself.");
    EXPECT_TRUE(store::Store::open(path)->users().empty());
}

TEST_F(ExportFile, RefusesOtherEndingsAndUsersOfContacts) {
    EXPECT_EQ(failure_of([&] { exporting::export_file(here.store(), folder.file("all.txt"), everybody); }),
              "The file's name has to end in .ics for activities or in .vcf for contacts.");
    EXPECT_EQ(failure_of([&] { exporting::export_file(here.store(), cards, {.user = "Anna"}); }),
              "Contacts are nobody's own; they are exported all together.");
}

TEST_F(ExportFile, NoLineIsLongerThanTheFormatsAllow) {
    here.store().together([&] { RandomTeam(9).fill(here.store()); });
    export_both(here.store());
    for (const std::string& file : {calendar, cards})
        for (const std::string& line : values::split(support::content_of(file), "\r\n")) {
            ASSERT_LE(line.size(), 75u) << line;
            ASSERT_TRUE(values::is_utf8(line)) << line;
        }
}
