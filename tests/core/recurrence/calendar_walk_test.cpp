#include "core/recurrence/calendar_walk.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using recurrence::calendar_rule_of;
using recurrence::CalendarWalk;
using recurrence::DateTime;

// What a rule comes to is compared with another implementation by compare_rules.py; here is what that can't tell.
struct Walked {
    std::vector<DateTime> dates{};
    std::size_t units = 0;
};

Walked walked(const char* text, DateTime start, DateTime end = DateTime::of(2100, 1, 1)) {
    Walked walked;
    CalendarWalk walk(*calendar_rule_of(text), {.start = start, .end = end, .until = end},
                      [&](std::size_t units) { walked.units += units; });
    while (const auto date = walk.next())
        walked.dates.push_back(*date);
    EXPECT_FALSE(walk.next()) << "after the last date";
    return walked;
}

TEST(CalendarWalk, AWeekNumberWithoutAWeekdayMeansThatOfTheStart) {
    const auto dates = walked("FREQ=YEARLY;BYWEEKNO=20;COUNT=2", DateTime::of(2024, 5, 15, 9)).dates;
    EXPECT_EQ(dates, (std::vector{DateTime::of(2024, 5, 15, 9), DateTime::of(2025, 5, 14, 9)}));
}

TEST(CalendarWalk, PositionsInTheFirstWeekCountFromItsBeginning) {
    const auto dates = walked("FREQ=WEEKLY;BYDAY=MO,WE,FR;BYSETPOS=3;COUNT=1", DateTime::of(2024, 3, 13)).dates;
    EXPECT_EQ(dates, std::vector{DateTime::of(2024, 3, 15)});
}

TEST(CalendarWalk, TheEndIsNotPassed) {
    const DateTime start = DateTime::of(2024, 3, 11, 9);
    EXPECT_EQ(walked("FREQ=DAILY", start, start.plus_days(2)).dates.size(), 2u);
    EXPECT_EQ(walked("FREQ=HOURLY", start, start).dates.size(), 0u);
}

TEST(CalendarWalk, AStartThatTheRuleDoesntNameIsntCounted) {
    const auto dates = walked("FREQ=MONTHLY;BYMONTHDAY=15;COUNT=2", DateTime::of(2024, 3, 11)).dates;
    EXPECT_EQ(dates, (std::vector{DateTime::of(2024, 3, 15), DateTime::of(2024, 4, 15)}));
}

TEST(CalendarWalk, EachStepIsToldBeforeItIsMade) {
    std::size_t units = 0;
    CalendarWalk walk(
        *calendar_rule_of("FREQ=SECONDLY;BYMONTH=2;BYMONTHDAY=30"),
        {.start = DateTime::of(2024, 1, 1), .end = DateTime::of(2500, 1, 1), .until = DateTime::of(2500, 1, 1)},
        [&](std::size_t more) {
            units += more;
            if (units > 1000)
                throw std::runtime_error("enough");
        });
    EXPECT_THROW(walk.next(), std::runtime_error);
}

// A day, an hour or a minute that isn't named is passed over whole.
TEST(CalendarWalk, SmallStepsTakeNoWorkWhereTheRuleNamesNothing) {
    const DateTime start = DateTime::of(2024, 1, 1);
    const Walked days = walked("FREQ=SECONDLY;BYMONTH=2;BYMONTHDAY=30", start, DateTime::of(2034, 1, 1));
    EXPECT_TRUE(days.dates.empty());
    EXPECT_LT(days.units, 4000u); // of 3,653 days with 86,400 seconds each
    const Walked hours = walked("FREQ=SECONDLY;BYHOUR=9;BYMINUTE=30;BYSECOND=0", start, start.plus_days(10));
    EXPECT_EQ(hours.dates.size(), 10u);
    EXPECT_LT(hours.units, 10 * (24 + 60 + 60u) + 1);
}

TEST(CalendarWalk, AMonthThatIsntNamedTakesNoWorkInAYear) {
    const Walked years = walked("FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=30", DateTime::of(2024, 1, 1));
    EXPECT_TRUE(years.dates.empty());
    EXPECT_LT(years.units, 76 * 32u);
}

TEST(CalendarWalk, AVeryLongStepEndsTheWalk) {
    for (const char* step : {"SECONDLY", "HOURLY", "DAILY", "WEEKLY", "MONTHLY", "YEARLY"})
        EXPECT_EQ(walked((std::string("FREQ=") + step + ";INTERVAL=2147483647").c_str(), DateTime::of(2024, 3, 11))
                      .dates.size(),
                  step == std::string("SECONDLY") ? 2u : 1u)
            << step;
}

} // namespace
