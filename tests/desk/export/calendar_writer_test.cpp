#include "desk/export/calendar_writer.h"

#include "core/values/failure.h"
#include "core/values/text.h"
#include "desk/import/import_file.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

using exporting::calendar_text;
using values::DateTime;

namespace {

const exporting::Origin origin{.identity = "0123456789abcdef", .stamp = 1'710'000'000}; // 2024-03-09 16:00 in UTC

store::Activity meeting() {
    store::Activity activity;
    activity.id = "A00000000001";
    activity.type = store::ActivityType::meeting;
    activity.regarding = "Plans";
    activity.start = DateTime::of(2024, 3, 12, 14, 30);
    activity.duration = 45;
    activity.end = activity.start->plus_minutes(45);
    return activity;
}

store::Activity series(const store::Recurrence& rule, DateTime start) {
    store::Activity activity = meeting();
    activity.recurrence = rule;
    activity.start = start;
    return activity;
}

// Lines that were folded are whole again.
std::string unfolded(const std::string& text) { return values::replaced(text, "\r\n ", ""); }

std::string text_of(const store::Activity& activity) { return unfolded(calendar_text(activity, {}, origin)); }

bool has_line(const std::string& text, const std::string& line) {
    return values::contains(text, "\r\n" + line + "\r\n");
}

// What a contact desk makes of it that gets it.
store::Activity received(const store::Activity& activity) {
    support::TemporaryDatabase database;
    database.store().add(store::User{{}, "Anna Berg", "Administrator", "Enabled"});
    importing::Options options;
    options.now = DateTime::of(2024, 3, 11, 9);
    options.local_time = [](std::int64_t) { return DateTime::of(2024, 3, 11, 9); };
    importing::import_bytes(database.store(), calendar_text(activity, {}, origin), "file", options);
    const auto all = database.store().activities({});
    EXPECT_EQ(all.size(), 1u);
    return all.empty() ? store::Activity() : all.front();
}

} // namespace

TEST(CalendarText, WritesAMeetingAsAnEvent) {
    EXPECT_EQ(calendar_text(meeting(), {{"Zoe Quinn", "zoe@amber.example"}, {"Yann Reed", ""}}, origin),
              "BEGIN:VCALENDAR\r\n"
              "VERSION:2.0\r\n"
              "PRODID:-//Orvanta//Contact Desk//EN\r\n"
              "METHOD:PUBLISH\r\n"
              "BEGIN:VEVENT\r\n"
              "UID:A00000000001.0123456789abcdef@contact-desk\r\n"
              "DTSTAMP:20240309T160000Z\r\n"
              "SUMMARY:Plans\r\n"
              "CONTACT:Zoe Quinn <zoe@amber.example>\r\n"
              "CONTACT:Yann Reed\r\n"
              "DTSTART:20240312T143000\r\n"
              "DTEND:20240312T151500\r\n"
              "PRIORITY:9\r\n"
              "END:VEVENT\r\n"
              "END:VCALENDAR\r\n");
}

TEST(CalendarText, WritesAToDoWithItsDueTimeAndState) {
    auto task = meeting();
    task.type = store::ActivityType::to_do;
    task.cleared = true;
    const auto text = text_of(task);
    EXPECT_TRUE(has_line(text, "BEGIN:VTODO"));
    EXPECT_TRUE(has_line(text, "DUE:20240312T151500"));
    EXPECT_TRUE(has_line(text, "STATUS:COMPLETED"));
}

TEST(CalendarText, AnActivityWithoutADurationHasNoEnd) {
    auto short_one = meeting();
    short_one.duration = 0;
    EXPECT_FALSE(values::contains(text_of(short_one), "DTEND"));
}

TEST(CalendarText, MarksInTextsAreEscapedAndMakeNoLines) {
    auto activity = meeting();
    activity.regarding = "Tea, cake; \\ and\r\nATTACH:file:///etc/passwd";
    activity.details = "One\nEND:VEVENT\r\nTwo\x01";
    const auto text = unfolded(calendar_text(activity, {{"Eve\nEND:VEVENT", "e@x\nSUMMARY:no"}}, origin));
    EXPECT_TRUE(has_line(text, "SUMMARY:Tea\\, cake\\; \\\\ and ATTACH:file:///etc/passwd"));
    EXPECT_TRUE(has_line(text, "DESCRIPTION:One\\nEND:VEVENT\\nTwo"));
    EXPECT_TRUE(has_line(text, "CONTACT:Eve END:VEVENT <e@x SUMMARY:no>"));
    EXPECT_EQ(received(activity).details, "One\nEND:VEVENT\nTwo");
}

TEST(CalendarText, TheReceiverGetsTheFieldsBack) {
    auto call = meeting();
    call.type = store::ActivityType::call;
    call.priority = store::Priority::high;
    call.regarding = "Größe, “Preis”; 30 %";
    call.details = "First line\nSecond line";
    call.is_private = true;
    call.alarm = true;
    call.alarm_lead = 20;
    const auto got = received(call);
    EXPECT_EQ(got.type, call.type);
    EXPECT_EQ(got.priority, call.priority);
    EXPECT_EQ(got.regarding, call.regarding);
    EXPECT_EQ(got.details, call.details);
    EXPECT_EQ(got.start, call.start);
    EXPECT_EQ(got.duration, call.duration);
    EXPECT_TRUE(got.is_private);
    EXPECT_TRUE(got.alarm);
    EXPECT_EQ(got.alarm_lead, 20);
}

TEST(CalendarText, TheReceiverGetsTheSeriesBack) {
    using store::RecurrenceKind;
    const auto until = DateTime::of(2024, 12, 31);
    const std::pair<store::Recurrence, DateTime> all[] = {
        {{.kind = RecurrenceKind::daily, .frequency = 3}, DateTime::of(2024, 3, 12, 14, 30)},
        {{.kind = RecurrenceKind::weekly, .frequency = 2, .days_of_week = 0b10100}, DateTime::of(2024, 3, 12, 8)},
        {{.kind = RecurrenceKind::days_of_month, .frequency = 1, .days_of_month = 1u << 11 | 1u << 19},
         DateTime::of(2024, 3, 12, 8)},
        {{.kind = RecurrenceKind::daily, .frequency = 1, .until = until}, DateTime::of(2024, 12, 1, 9)},
    };
    for (const auto& [rule, start] : all)
        EXPECT_EQ(received(series(rule, start)).recurrence, rule) << text_of(series(rule, start));
}

TEST(CalendarText, WritesASeriesOnWeekdaysOfTheMonth) {
    const auto text = text_of(series({.kind = store::RecurrenceKind::weekdays_of_month,
                                      .frequency = 2,
                                      .until = DateTime::of(2024, 12, 31),
                                      .days_of_week = 0b100,
                                      .weeks_of_month = 0b10010},
                                     DateTime::of(2024, 3, 12, 8)));
    EXPECT_TRUE(has_line(text, "RRULE:FREQ=MONTHLY;UNTIL=20241231T235900;INTERVAL=2;BYDAY=2TU,5TU")) << text;
}

TEST(CalendarText, TheReceiverGetsTheExceptionsBack) {
    auto daily = series({.kind = store::RecurrenceKind::daily}, DateTime::of(2024, 3, 12, 14, 30));
    daily.exceptions = {DateTime::of(2024, 3, 14), DateTime::of(2024, 3, 20)};
    EXPECT_TRUE(has_line(text_of(daily), "EXDATE:20240314T143000"));
    EXPECT_EQ(received(daily).exceptions, daily.exceptions);
}

TEST(CalendarText, FailsForAnActivityWithoutADate) {
    auto someday = meeting();
    someday.start.reset();
    EXPECT_THROW(calendar_text(someday, {}, origin), values::Failure);
}
