#include "desk/import/calendar_reader.h"

#include "desk/import/import_file.h"
#include "import_world.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using importing::Report;
using importing::Work;

std::string entries(int count, const std::string& lines) {
    std::string text;
    for (int i = 0; i < count; ++i)
        text += "BEGIN:VEVENT\nUID:" + std::to_string(i) + "\nDTSTART:20240311T090000\n" + lines + "END:VEVENT\n";
    return text;
}

const std::string plain_entry = "BEGIN:VEVENT\nDTSTART:20240312T090000\nSUMMARY:Plain\nEND:VEVENT\n";

class ReadCalendar : public testing::Test {
protected:
    // What an import would do with the calendar, at the work that it may do.
    importing::FoundCalendar read_all(const std::string& lines) {
        const std::string text = "BEGIN:VCALENDAR\n" + lines + "END:VCALENDAR\n";
        Work work(importing::least_work + text.size() * importing::work_for_a_byte);
        const importing::LocalTime local_time = test_import::berlin;
        importing::MachineZones zones({}, work);
        const auto components = importing::content_of(text).components;
        auto found = importing::read_calendar(
            components.at(0), {values::DateTime::of(2024, 3, 11), local_time, zones, work}, report);
        spent = work.spent();
        return found;
    }
    std::vector<importing::FoundActivity> read(const std::string& lines) { return read_all(lines).activities; }
    std::size_t skipped() const {
        return static_cast<std::size_t>(std::ranges::count(
            report.skipped, std::string("It would take too long to read."), &importing::Remark::text));
    }

    Report report{};
    std::size_t spent = 0; // units of work
};

TEST_F(ReadCalendar, RulesThatNeverComeAboutTakeLittleWork) {
    const auto found = read(entries(2000, "RRULE:FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=30\n"));
    EXPECT_EQ(found.size(), 2000u);
    EXPECT_EQ(report.changed.size(), 2000u);
    EXPECT_LT(spent, 2000 * 5000u);
}

TEST_F(ReadCalendar, AnEntryThatTakesTooMuchWorkIsSkippedAndTheOthersAreTaken) {
    const auto found =
        read(entries(1, "RRULE:FREQ=DAILY\nEXRULE:FREQ=SECONDLY\nSUMMARY:Never ending\n") + plain_entry);
    ASSERT_EQ(report.skipped.size(), 1u);
    EXPECT_EQ(report.skipped[0].source.title, "Never ending");
    EXPECT_EQ(report.skipped[0].text, "It would take too long to read.");
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].activity.regarding, "Plain");
}

TEST_F(ReadCalendar, RulesOfAMillionDatesAreFollowedAsLongAsThereIsWorkLeft) {
    const auto found = read(entries(300, "RRULE:FREQ=HOURLY;COUNT=1000000\n"));
    EXPECT_GT(skipped(), 0u);
    EXPECT_EQ(skipped() * 1000 + found.size(), 300'000u);
    EXPECT_EQ(report.changed.size() + skipped(), 300u);
}

// Activities of one entry are taken together or not at all, and so are those of one series.
TEST_F(ReadCalendar, WhatWasFoundOfAnEntryBeforeItWasSkippedIsGone) {
    const auto found =
        read("BEGIN:VEVENT\nUID:0\nRECURRENCE-ID:20240312T090000\nDTSTART:20240312T100000\nEND:VEVENT\n" +
             entries(1, "RRULE:FREQ=DAILY\nEXRULE:FREQ=SECONDLY\n"));
    EXPECT_TRUE(found.empty());
    EXPECT_TRUE(report.changed.empty());
    EXPECT_EQ(skipped(), 2u);
}

TEST_F(ReadCalendar, CopiesOfALongTextAndOfManyPeopleTakeTheirWorkToo) {
    std::string people;
    for (int i = 0; i < 500; ++i)
        people += "ATTENDEE:mailto:a" + std::to_string(i) + "@example.org\n";
    read(entries(40, "RRULE:FREQ=HOURLY\nDESCRIPTION:" + std::string(20000, 'd') + "\n"));
    EXPECT_GT(skipped(), 20u);
    report = {};
    read(entries(40, "RRULE:FREQ=HOURLY\n" + people));
    EXPECT_GT(skipped(), 20u);
}

TEST_F(ReadCalendar, AnEntryThatWasSkippedForItsWorkIsntWhole) {
    const std::string endless = entries(1, "RRULE:FREQ=DAILY\nEXRULE:FREQ=SECONDLY\n");
    const auto found =
        read_all(endless + "BEGIN:VEVENT\nUID:1\nDTSTART:20240311T090000\nEND:VEVENT\n" + plain_entry);
    EXPECT_EQ(found.whole_entries, std::set<std::string>{"1"});
    EXPECT_EQ(found.cut_entries, std::set<std::string>{"0"});
}

TEST_F(ReadCalendar, AnEntryIsWholeOnlyWhenAllOfItsDatesWereTaken) {
    const auto is_whole = [&](const std::string& lines) {
        const auto found = read_all(entries(1, lines));
        EXPECT_NE(found.whole_entries.contains("0"), found.cut_entries.contains("0")) << lines;
        return found.whole_entries.contains("0");
    };
    EXPECT_TRUE(is_whole("RRULE:FREQ=DAILY\n"));
    EXPECT_TRUE(is_whole("RRULE:FREQ=DAILY;COUNT=3\nEXRULE:FREQ=DAILY\n"));
    EXPECT_TRUE(is_whole("RDATE:20240312T090000,20240313T090000\n"));
    EXPECT_FALSE(is_whole("RRULE:FREQ=HOURLY;INTERVAL=5;COUNT=1001\n"));
    EXPECT_FALSE(is_whole("RRULE:FREQ=SECONDLY\n"));
    EXPECT_FALSE(is_whole("RRULE:FREQ=SOMETIMES\n"));
    EXPECT_FALSE(is_whole("RRULE:FREQ=DAILY;COUNT=3\nRRULE:FREQ=WEEKLY\n"));
    EXPECT_FALSE(is_whole("RRULE:FREQ=DAILY;X-LONG=" + std::string(200'000, 'x') + "\n"));
    EXPECT_FALSE(is_whole("RDATE:20240312T090000,20249999T090000\n"));
}

// As many as fit into a megabyte: nothing that a person could have made is turned away.
TEST_F(ReadCalendar, FilesFullOfUsualSeriesAreTakenWhole) {
    for (const char* rule : {"WEEKLY;BYDAY=MO,WE", "MONTHLY", "YEARLY"}) {
        const int count = rule == std::string("YEARLY") ? 8000 : 6000;
        EXPECT_EQ(read(entries(count, std::string("RRULE:FREQ=") + rule + "\nSUMMARY:As usual\n")).size(),
                  static_cast<std::size_t>(count))
            << rule;
        EXPECT_TRUE(report.skipped.empty()) << rule;
    }
}

TEST_F(ReadCalendar, ALineWithManyTimesAndLongParametersIsLeftOut) {
    const auto found = read(entries(1, "EXDATE;TZID=" + std::string(90000, 'Z') + ":20240311T090000\n"));
    EXPECT_EQ(found.size(), 1u);
    ASSERT_EQ(report.changed.size(), 1u);
    EXPECT_EQ(report.changed[0].text, "Line 5 is too long and was left out.");
}

} // namespace
