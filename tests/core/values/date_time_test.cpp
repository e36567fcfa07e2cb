#include "core/values/date_time.h"

#include "support/failure_number.h"

#include <gtest/gtest.h>

using support::failure_number;
using values::DateTime;
using values::days_between;

TEST(DateTime, CountsSecondsFromTheEmptyDate) {
    EXPECT_EQ(DateTime().seconds(), 0);
    EXPECT_EQ(DateTime::of(1899, 12, 30), DateTime());
    EXPECT_EQ(DateTime::of(1899, 12, 31, 0, 0, 1).seconds(), 86401);
    EXPECT_EQ(DateTime::of(2024, 1, 5), DateTime::from_seconds(45296 * std::int64_t{86400}));
}

TEST(DateTime, GivesItsParts) {
    const DateTime value = DateTime::of(2024, 2, 29, 23, 58, 59);
    EXPECT_EQ(value.year(), 2024);
    EXPECT_EQ(value.month(), 2);
    EXPECT_EQ(value.day(), 29);
    EXPECT_EQ(value.hour(), 23);
    EXPECT_EQ(value.minute(), 58);
    EXPECT_EQ(value.second(), 59);
    EXPECT_EQ(value.date(), DateTime::of(2024, 2, 29));
    EXPECT_EQ(value.time(), DateTime::time_of_day(23, 58, 59));
    EXPECT_EQ(value.time_to_the_minute(), DateTime::time_of_day(23, 58));
}

TEST(DateTime, HasItsTimeOfDayBeforeTheEmptyDateToo) {
    const DateTime value = DateTime::of(1850, 7, 4, 6, 30, 15);
    EXPECT_LT(value.seconds(), 0);
    EXPECT_EQ(value.time(), DateTime::time_of_day(6, 30, 15));
    EXPECT_EQ(value.date(), DateTime::of(1850, 7, 4));
    EXPECT_EQ(value.day(), 4);
    EXPECT_EQ(value.hour(), 6);
}

TEST(DateTime, EveryDayOfFourCenturiesHasThePartsItWasMadeOf) {
    DateTime value = DateTime::of(1800, 1, 1);
    for (int day = 0; day < 146097; ++day, value = value.plus_days(1))
        ASSERT_EQ(DateTime::of(value.year(), value.month(), value.day()), value) << day;
    EXPECT_EQ(value, DateTime::of(2200, 1, 1));
}

TEST(DateTime, RollsPartsOutOfRangeOver) {
    EXPECT_EQ(DateTime::of(2024, 4, 31), DateTime::of(2024, 5, 1));
    EXPECT_EQ(DateTime::of(2023, 2, 29), DateTime::of(2023, 3, 1));
    EXPECT_EQ(DateTime::of(2023, 13, 1), DateTime::of(2024, 1, 1));
    EXPECT_EQ(DateTime::of(2024, 0, 1), DateTime::of(2023, 12, 1));
    EXPECT_EQ(DateTime::of(2024, -12, 1), DateTime::of(2022, 12, 1));
    EXPECT_EQ(DateTime::of(2024, 3, 0), DateTime::of(2024, 2, 29));
    EXPECT_EQ(DateTime::of(2024, 1, 1, 25, 61, 61), DateTime::of(2024, 1, 2, 2, 2, 1));
}

TEST(DateTime, CountsWeekdaysFromSunday) {
    EXPECT_EQ(DateTime::of(2024, 1, 7).weekday(), 1);
    EXPECT_EQ(DateTime::of(2024, 1, 6, 23, 59).weekday(), 7);
    EXPECT_EQ(DateTime::of(1850, 7, 4).weekday(), 5);
}

TEST(DateTime, CountsWeekdaysFromAnyFirstDay) {
    const DateTime sunday = DateTime::of(2024, 1, 7);
    EXPECT_EQ(sunday.weekday_from(1), 1);
    EXPECT_EQ(sunday.weekday_from(2), 7);
    EXPECT_EQ(sunday.weekday_from(7), 2);
    EXPECT_EQ(sunday.plus_days(3).weekday_from(4), 1);
}

TEST(DateTime, AddsDaysAndMinutes) {
    const DateTime value = DateTime::of(2024, 2, 28, 9, 30);
    EXPECT_EQ(value.plus_days(2), DateTime::of(2024, 3, 1, 9, 30));
    EXPECT_EQ(value.plus_days(-59), DateTime::of(2023, 12, 31, 9, 30));
    EXPECT_EQ(value.plus_minutes(900), DateTime::of(2024, 2, 29, 0, 30));
    EXPECT_EQ(value.plus_minutes(-571), DateTime::of(2024, 2, 27, 23, 59));
}

TEST(DateTime, AddsMonthsAndKeepsTheDayWhereTheMonthHasIt) {
    EXPECT_EQ(DateTime::of(2024, 1, 31, 8, 0).plus_months(1), DateTime::of(2024, 2, 29, 8, 0));
    EXPECT_EQ(DateTime::of(2023, 1, 31).plus_months(1), DateTime::of(2023, 2, 28));
    EXPECT_EQ(DateTime::of(2024, 3, 31).plus_months(-1), DateTime::of(2024, 2, 29));
    EXPECT_EQ(DateTime::of(2024, 12, 15).plus_months(1), DateTime::of(2025, 1, 15));
    EXPECT_EQ(DateTime::of(2024, 1, 15).plus_months(-1), DateTime::of(2023, 12, 15));
    EXPECT_EQ(DateTime::of(2024, 2, 29).plus_months(-24), DateTime::of(2022, 2, 28));
    EXPECT_EQ(DateTime::of(2024, 2, 29).plus_months(0), DateTime::of(2024, 2, 29));
}

TEST(DateTime, FailsWith5BeyondTheCalendarsEnds) {
    const DateTime last = DateTime::of(9999, 12, 31, 23, 59);
    const DateTime first = DateTime::of(100, 1, 1);
    EXPECT_EQ(failure_number([&] { last.plus_days(1); }), 5);
    EXPECT_EQ(failure_number([&] { last.plus_minutes(1); }), 5);
    EXPECT_EQ(failure_number([&] { last.plus_months(1); }), 5);
    EXPECT_EQ(failure_number([&] { first.plus_days(-1); }), 5);
    EXPECT_EQ(failure_number([&] { first.plus_months(-1); }), 5);
    EXPECT_EQ(failure_number([&] { first.plus_days(INT64_MAX); }), 5);
    EXPECT_EQ(failure_number([&] { first.plus_minutes(INT64_MIN); }), 5);
    EXPECT_EQ(failure_number([&] { first.plus_months(INT32_MAX); }), 5);
    EXPECT_EQ(failure_number([] { DateTime::of(99, 12, 31); }), 5);
    EXPECT_EQ(failure_number([] { DateTime::of(INT32_MAX, INT32_MAX, INT32_MAX, INT32_MAX); }), 5);
    EXPECT_EQ(failure_number([] { DateTime::of(INT32_MIN, INT32_MIN, INT32_MIN); }), 5);
    EXPECT_EQ(failure_number([&] { last.plus_days(-1); }), 0);
}

TEST(DateTime, TellsDayAndTimeOfWhatIsNoDateToo) {
    for (const std::int64_t seconds : {INT64_MIN, INT64_MIN + 1, INT64_MAX}) {
        const DateTime far = DateTime::from_seconds(seconds);
        EXPECT_EQ(far.date().seconds() + far.time().seconds(), far.seconds());
        EXPECT_EQ(far < DateTime(), seconds < 0);
        EXPECT_EQ(days_between(far, far.date()), 0);
        EXPECT_EQ(failure_number([&] { far.plus_days(1); }), 5);
    }
}

TEST(DaysBetween, CountsDatesAndIgnoresTimes) {
    EXPECT_EQ(days_between(DateTime::of(2024, 1, 1, 23, 59), DateTime::of(2024, 1, 2, 0, 1)), 1);
    EXPECT_EQ(days_between(DateTime::of(2024, 1, 1, 0, 0), DateTime::of(2024, 1, 1, 23, 59)), 0);
    EXPECT_EQ(days_between(DateTime::of(2024, 3, 1), DateTime::of(2024, 2, 1)), -29);
    EXPECT_EQ(days_between(DateTime::of(1899, 12, 28, 12, 0), DateTime()), 2);
}
