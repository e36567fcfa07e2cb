#include "desk/export/export_file.h"

#include "core/values/failure.h"
#include "core/values/text.h"
#include "desk/export/whole_file.h"
#include "desk/import/import_file.h"
#include "desk/store/contact_fields.h"
#include "desk/store/sample.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

// What a desk exports, another one has back whole.
namespace {

using support::TemporaryDatabase;
using values::DateTime;

const exporting::Options everybody{.user = "", .stamp = 1'710'000'000};

// Everything that two databases can have in common, with names in the place of ids.
class Whole {
public:
    explicit Whole(store::Store& store) : store_(store) {
        for (const store::User& user : store.users())
            names_[user.id] = user.name;
        for (const store::Group& group : store.groups())
            names_[group.id] = group.name;
        for (const store::Contact& contact : store.contacts())
            names_[contact.id] = told(contact);
    }

    std::vector<std::string> users() {
        std::vector<std::string> lines;
        for (const store::User& user : store_.users())
            lines.push_back(user.name + "|" + user.security + "|" + user.access);
        return lines;
    }
    std::vector<std::string> contacts() {
        std::vector<std::string> lines;
        for (const store::Contact& contact : store_.contacts()) {
            std::string line = told(contact);
            for (const store::Note& note : store_.notes(contact.id))
                line += "\nnote " + std::to_string(note.written.seconds()) + " " + note.text;
            lines.push_back(line);
        }
        return sorted(lines);
    }
    std::vector<std::string> groups() {
        std::vector<std::string> lines;
        for (const store::Group& group : store_.groups()) {
            std::string line = group.name;
            for (const std::string& contact : group.contacts)
                line += "\n" + names_.at(contact);
            lines.push_back(line);
        }
        return sorted(lines);
    }
    std::vector<std::string> activities() {
        std::vector<std::string> lines;
        for (const store::Activity& activity : store_.activities({}))
            lines.push_back(told(activity));
        return sorted(lines);
    }

private:
    static std::vector<std::string> sorted(std::vector<std::string> lines) {
        std::sort(lines.begin(), lines.end());
        return lines;
    }
    static std::string told(const store::Contact& contact) {
        std::string line = "contact";
        for (const auto& [number, text] : contact.fields)
            line += "|" + std::to_string(number) + " " + text;
        return line;
    }
    static std::string number(const std::optional<DateTime>& date) {
        return date ? std::to_string(date->seconds()) : "none";
    }
    std::string told(const store::Activity& a) {
        std::string line;
        const store::Recurrence& series = a.recurrence;
        for (const std::int64_t value :
             {std::int64_t{static_cast<int>(a.type)}, std::int64_t{static_cast<int>(a.priority)}, a.end.seconds(),
              std::int64_t{a.duration}, std::int64_t{a.is_private}, std::int64_t{a.alarm},
              std::int64_t{a.alarm_lead}, std::int64_t{a.cleared}, std::int64_t{static_cast<int>(series.kind)},
              std::int64_t{series.frequency}, std::int64_t{series.days_of_week},
              std::int64_t{series.weeks_of_month}, std::int64_t{series.days_of_month}})
            line += std::to_string(value) + "|";
        line +=
            number(a.start) + "|" + number(series.until) + "|" + (a.colour ? std::to_string(*a.colour) : "none");
        for (const std::string& text : {a.regarding, a.details, a.result, name(a.user), name(a.group)})
            line += "|" + text;
        for (const std::string& contact : a.contacts)
            line += "\nwith " + names_.at(contact);
        for (const DateTime date : a.exceptions)
            line += "\nnot on " + number(date);
        return line;
    }
    std::string name(const std::string& id) { return id.empty() ? "" : names_.at(id); }

    store::Store& store_;
    std::map<std::string, std::string> names_;
};

void expect_same(store::Store& left, store::Store& right) {
    Whole one(left);
    Whole other(right);
    EXPECT_EQ(one.users(), other.users());
    EXPECT_EQ(one.contacts(), other.contacts());
    EXPECT_EQ(one.groups(), other.groups());
    const auto expected = one.activities();
    const auto got = other.activities();
    ASSERT_EQ(expected.size(), got.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
        ASSERT_EQ(expected[i], got[i]);
}

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

// Records with whatever a user can make and more.
class RandomTeam {
public:
    explicit RandomTeam(unsigned seed) : random_(seed) {}

    void fill(store::Store& store) {
        for (const char* name : {"Anna; Keller", "Bert \"B\" Cole", "Ümit, Ñandú"})
            users_.push_back(store.add(store::User{.name = name, .security = "Standard", .access = "Disabled"}));
        users_.emplace_back();
        for (int i = 0; i < 60; ++i)
            contacts_.push_back(store.add(contact()));
        contacts_.push_back(store.add(store::Contact{}));
        contacts_.push_back(store.add(store.contact(contacts_.front())->fields.empty()
                                          ? store::Contact{.fields = {{26, "Twin"}}}
                                          : store::Contact{.fields = store.contact(contacts_.front())->fields}));
        for (int i = 0; i < 5; ++i)
            groups_.push_back(
                store.add(store::Group{.name = "Group, " + std::to_string(i), .contacts = some(i * 3)}));
        groups_.emplace_back();
        for (int i = 0; i < 30; ++i)
            store.add(store::Note{.contact = one_of(contacts_), .written = date(), .text = text()});
        for (int i = 0; i < 2000; ++i)
            store.add(activity());
    }

private:
    int pick(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    bool in_so_many_of_100(int count) { return pick(100) < count; }
    template <typename T>
    const T& one_of(const std::vector<T>& all) {
        return all[static_cast<std::size_t>(pick(static_cast<int>(all.size())))];
    }
    std::vector<std::string> some(int count) {
        std::vector<std::string> result;
        for (; count > 0; --count)
            if (const std::string& id = one_of(contacts_);
                std::find(result.begin(), result.end(), id) == result.end())
                result.push_back(id);
        return result;
    }
    std::string text() {
        static const std::vector<std::string> pieces = {"call",
                                                        " ",
                                                        ",",
                                                        ";",
                                                        "\\",
                                                        "\\n",
                                                        ":",
                                                        "\"",
                                                        "'",
                                                        "^n",
                                                        "%41",
                                                        "=",
                                                        "ä",
                                                        "€",
                                                        "😀",
                                                        "\n",
                                                        "\t",
                                                        "\r",
                                                        "  ",
                                                        "\x01",
                                                        "\\,",
                                                        "END:VEVENT\n",
                                                        "X-ORVANTA-TYPE:CALL\n",
                                                        "x",
                                                        "The end",
                                                        "\xC3",
                                                        "\xA0\xFF",
                                                        "mailto:",
                                                        "1"};
        std::string result;
        for (int count = pick(12); count > 0; --count)
            result += one_of(pieces);
        if (in_so_many_of_100(3))
            result += std::string(static_cast<std::size_t>(250 + pick(30000)), 'w');
        return result;
    }
    DateTime date() {
        const DateTime day = DateTime::of(2024, 3, 11).plus_days(pick(2000) - 1000);
        return day.plus_minutes(pick(24 * 60));
    }
    store::Contact contact() {
        store::Contact contact;
        for (const store::ContactField& field : store::contact_fields())
            if (in_so_many_of_100(40))
                if (const std::string value = field.number == 53 && pick(2) ? "2001-02-03" : text();
                    !value.empty())
                    contact.fields[field.number] = value;
        return contact;
    }
    store::Activity activity() {
        store::Activity a;
        a.type = static_cast<store::ActivityType>(pick(3));
        a.priority = static_cast<store::Priority>(pick(3));
        a.regarding = text();
        if (!in_so_many_of_100(3))
            a.start = date();
        if (in_so_many_of_100(2))
            a.start = DateTime::of(in_so_many_of_100(50) ? 1650 : 2600, 3, 4, 5, 6, 7);
        a.duration = in_so_many_of_100(5) ? pick(100000) : pick(300);
        a.end = a.start.value_or(DateTime()).plus_minutes(in_so_many_of_100(10) ? pick(500) : a.duration);
        a.is_private = in_so_many_of_100(10);
        a.alarm = in_so_many_of_100(30);
        a.alarm_lead = in_so_many_of_100(40) ? pick(40000) : 0;
        if (in_so_many_of_100(50))
            a.colour = static_cast<std::uint32_t>(in_so_many_of_100(10) ? random_() : random_() % 0x1000000);
        a.user = one_of(users_);
        a.group = one_of(groups_);
        a.contacts = some(pick(4));
        a.cleared = in_so_many_of_100(30);
        a.result = in_so_many_of_100(30) ? text() : "";
        a.details = in_so_many_of_100(50) ? text() : "";
        if (in_so_many_of_100(40))
            make_series(a);
        return a;
    }
    void make_series(store::Activity& a) {
        a.recurrence = {.kind = static_cast<store::RecurrenceKind>(1 + pick(4)),
                        .frequency = 1 + pick(5),
                        .until = {},
                        .days_of_week = pick(128),
                        .weeks_of_month = pick(32),
                        .days_of_month = static_cast<std::uint32_t>(random_() & 0x7FFFFFFF)};
        if (in_so_many_of_100(50))
            a.recurrence.until = date().date();
        for (int count = pick(6); count > 0; --count)
            a.exceptions.push_back(date());
    }

    std::mt19937 random_;
    std::vector<std::string> users_, contacts_, groups_;
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
