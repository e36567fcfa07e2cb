#include "adapters/records/activity_fields.h"

#include "core/values/text_forms.h"
#include "records_fixture.h"

using act::Value;
using records::row_field;
using records::row_of;
using records::set_field;
using records::settle_times;
using store::Activity;
using support::daily;
using support::meeting;
using support::monday;
using values::DateTime;
namespace field = act::activity_field;

namespace {

const values::Locale& locale = values::english_us();

Value number(std::int64_t value) { return value; }
Value words(const char* value) { return std::string(value); }

int failure_of_setting(int number, const Value& value) {
    Activity activity;
    return support::failure_number([&] { set_field(activity, number, value, locale); });
}

Value read(const Activity& activity, int number) { return row_field(row_of(activity), number); }

} // namespace

TEST(RowField, GivesEveryNumberedField) {
    Activity full = meeting("Budget");
    full.id = "A00000000001";
    full.edited = DateTime::of(2024, 3, 1, 12, 30);
    full.type = store::ActivityType::call;
    full.priority = store::Priority::medium;
    full.end = monday.plus_minutes(11 * 60 + 15);
    full.is_private = full.alarm = true;
    full.alarm_lead = 10;
    full.colour = 0x8B0000;
    full.user = "99887766554 ";
    full.group = "G00000000001";
    full.contacts = {"C00000000001", "C00000000002"};
    full.cleared = true;

    EXPECT_EQ(read(full, 1), words("A00000000001"));
    EXPECT_EQ(read(full, 3), Value(full.edited));
    EXPECT_EQ(read(full, 5), number(1));
    EXPECT_EQ(read(full, 25), number(0));
    EXPECT_EQ(read(full, 26), number(1));
    EXPECT_EQ(read(full, 27), words("Budget"));
    EXPECT_EQ(read(full, 28), Value(monday.plus_minutes(600)));
    EXPECT_EQ(read(full, 29), Value(full.end));
    EXPECT_EQ(read(full, 30), number(60));
    EXPECT_EQ(read(full, 32), number(1));
    EXPECT_EQ(read(full, 33), number(10));
    EXPECT_EQ(read(full, 34), words("9109504"));
    EXPECT_EQ(read(full, 37), words("99887766554 "));
    EXPECT_EQ(read(full, 39), words("G00000000001"));
    EXPECT_EQ(read(full, 40), words("C00000000001"));
    EXPECT_EQ(read(full, 41), words("1"));
    EXPECT_EQ(read(full, 100), number(2));
    EXPECT_EQ(read(full, 101), number(75));
    EXPECT_EQ(read(full, 200), Value(monday));
}

TEST(RowField, GivesEmptyTextsAndNothingWhereThereIsNoValue) {
    Activity bare;
    bare.duration = 30;
    EXPECT_EQ(read(bare, 28), Value());
    EXPECT_EQ(read(bare, 200), Value());
    EXPECT_EQ(read(bare, 34), words(""));
    EXPECT_EQ(read(bare, 37), words(""));
    EXPECT_EQ(read(bare, 39), words(""));
    EXPECT_EQ(read(bare, 40), words(""));
    EXPECT_EQ(read(bare, 41), words("0"));
    EXPECT_EQ(read(bare, 100), number(0));
    EXPECT_EQ(read(bare, 101), number(30));
    EXPECT_EQ(read(bare, 2), Value());
    EXPECT_EQ(read(bare, 0), Value());
}

TEST(RowField, TellsTheColourBlackFromNone) {
    Activity black;
    black.colour = 0;
    EXPECT_EQ(read(black, 34), words("0"));
}

TEST(RowField, GivesTheLengthOfAnOccurrenceApartFromTheDuration) {
    Activity series = daily("series");
    series.end = series.start->plus_minutes(45);
    EXPECT_EQ(read(series, 30), number(60));
    EXPECT_EQ(read(series, 101), number(45));
}

TEST(EntryField, IsToldByTheEntryAlone) {
    const store::ActivityRow row = row_of(meeting("Budget"));
    for (const int number : {1, 3, 25, 26, 28, 41, 200}) {
        EXPECT_TRUE(records::is_entry_field(number)) << number;
        EXPECT_EQ(records::entry_field(row.entry, number), row_field(row, number)) << number;
    }
    for (const int number : {0, 5, 27, 29, 30, 37, 40, 45, 100, 101})
        EXPECT_FALSE(records::is_entry_field(number)) << number;
}

TEST(SetField, WritesEveryFieldThatCanBeWritten) {
    Activity activity;
    const auto set = [&](int number, const Value& value) { set_field(activity, number, value, locale); };
    set(5, number(1));
    set(25, number(2));
    set(26, number(0));
    set(27, words("Budget"));
    set(28, DateTime::of(2024, 3, 11, 10));
    set(29, DateTime::of(2024, 3, 11, 11));
    set(30, number(45));
    set(32, number(1));
    set(33, number(15));
    set(34, words("255"));
    set(37, words("99887766554"));
    set(39, words("G00000000001"));
    set(40, words("C00000000001"));
    set(41, words("1"));
    set(45, words("Long"));
    EXPECT_TRUE(activity.is_private);
    EXPECT_EQ(activity.type, store::ActivityType::to_do);
    EXPECT_EQ(activity.priority, store::Priority::high);
    EXPECT_EQ(activity.regarding, "Budget");
    EXPECT_EQ(activity.start, DateTime::of(2024, 3, 11, 10));
    EXPECT_EQ(activity.end, DateTime::of(2024, 3, 11, 11));
    EXPECT_EQ(activity.duration, 45);
    EXPECT_TRUE(activity.alarm);
    EXPECT_EQ(activity.alarm_lead, 15);
    EXPECT_EQ(activity.colour, 255u);
    EXPECT_EQ(activity.user, "99887766554 ");
    EXPECT_EQ(activity.group, "G00000000001");
    EXPECT_EQ(activity.contacts, std::vector<std::string>{"C00000000001"});
    EXPECT_TRUE(activity.cleared);
    EXPECT_EQ(activity.details, "Long");
}

TEST(SetField, TakesEmptyTextsForNone) {
    Activity activity = meeting("Budget");
    activity.colour = 255;
    activity.group = "G00000000001";
    activity.contacts = {"C00000000001", "C00000000002"};
    activity.cleared = true;
    for (const int number : {34, 39, 40, 41})
        set_field(activity, number, words(""), locale);
    EXPECT_FALSE(activity.colour);
    EXPECT_EQ(activity.group, "");
    EXPECT_EQ(activity.contacts, std::vector<std::string>{"C00000000002"});
    EXPECT_FALSE(activity.cleared);
    set_field(activity, 34, Value(), locale);
    EXPECT_FALSE(activity.colour);
}

TEST(SetField, TakesNumbersAndDatesFromTexts) {
    Activity activity;
    set_field(activity, 28, words("3/11/2024 10:30:00 AM"), locale);
    set_field(activity, 30, words(" 45 "), locale);
    set_field(activity, 25, words("1"), locale);
    set_field(activity, 34, words("&HFF"), locale);
    EXPECT_EQ(activity.start, DateTime::of(2024, 3, 11, 10, 30));
    EXPECT_EQ(activity.duration, 45);
    EXPECT_EQ(activity.type, store::ActivityType::meeting);
    EXPECT_EQ(activity.colour, 255u);
}

TEST(SetField, FailsForAValueOfAWrongType) {
    EXPECT_EQ(failure_of_setting(28, words("tomorrow or so")), 13);
    EXPECT_EQ(failure_of_setting(28, number(45000)), 13);
    EXPECT_EQ(failure_of_setting(29, Value()), 13);
    EXPECT_EQ(failure_of_setting(30, words("long")), 13);
    EXPECT_EQ(failure_of_setting(25, Value()), 13);
    EXPECT_EQ(failure_of_setting(27, monday), 13);
    EXPECT_EQ(failure_of_setting(37, monday), 13);
    EXPECT_EQ(failure_of_setting(34, words("red")), 13);
    EXPECT_EQ(failure_of_setting(30, words("99999999999")), 6);
}

TEST(SetField, FailsForATypeOrAPriorityThatThereIsNot) {
    EXPECT_EQ(failure_of_setting(25, number(3)), 380);
    EXPECT_EQ(failure_of_setting(25, number(-1)), 380);
    EXPECT_EQ(failure_of_setting(26, number(3)), 380);
}

TEST(SetField, FailsForFieldsThatThereAreNotOrThatTheStoreSets) {
    EXPECT_EQ(failure_of_setting(2, words("x")), 381);
    EXPECT_EQ(failure_of_setting(999, words("x")), 381);
    for (const int number : {1, 3, 100, 101, 200})
        EXPECT_EQ(failure_of_setting(number, words("1")), 440) << number;
}

namespace {

// Start, end and duration after some of them were written.
std::string settled(Activity activity, const std::set<int>& written) {
    settle_times(activity, written);
    return values::hh_nn(*activity.start) + "-" + values::hh_nn(activity.end) + " " +
           std::to_string(activity.duration);
}

Activity times(const Activity& kind, int end_hour, int duration) {
    Activity activity = kind;
    activity.end = monday.plus_minutes(60 * end_hour);
    activity.duration = duration;
    return activity;
}

} // namespace

TEST(SettleTimes, MovesTheEndWithTheStartAndWithTheDuration) {
    EXPECT_EQ(settled(times(meeting("x"), 16, 30), {field::start}), "10:00-10:30 30");
    EXPECT_EQ(settled(times(meeting("x"), 16, 90), {field::duration}), "10:00-11:30 90");
    EXPECT_EQ(settled(times(daily("x"), 16, 90), {field::duration}), "10:00-11:30 90");
}

TEST(SettleTimes, TakesTheDurationOfAPlainActivityFromItsEnd) {
    EXPECT_EQ(settled(times(meeting("x"), 12, 30), {field::start, field::end}), "10:00-12:00 120");
    EXPECT_EQ(settled(times(meeting("x"), 12, 30), {field::end}), "10:00-12:00 120");
}

TEST(SettleTimes, LeavesTheDurationOfASeriesAlone) {
    EXPECT_EQ(settled(times(daily("x"), 12, 30), {field::start, field::end}), "10:00-12:00 30");
}

TEST(SettleTimes, LeavesWhatWasWrittenAsItWasWritten) {
    EXPECT_EQ(settled(times(meeting("x"), 12, 30), {field::start, field::end, field::duration}), "10:00-12:00 30");
}

TEST(SettleTimes, ChangesNothingWhenNoTimeWasWritten) {
    EXPECT_EQ(settled(times(meeting("x"), 12, 30), {field::regarding}), "10:00-12:00 30");
}

TEST(SettleTimes, TakesNoDurationFromAnEndBeforeTheStart) {
    EXPECT_EQ(settled(times(meeting("x"), 9, 30), {field::end}), "10:00-09:00 30");
}
