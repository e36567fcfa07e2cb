#include "desk/import/series.h"

#include <gtest/gtest.h>

namespace {

using importing::RuleDates;
using store::DateTime;
using store::RecurrenceKind;

std::optional<store::Recurrence> series_on(const RuleDates& dates) {
    importing::Work work(10'000'000);
    return importing::series_on(dates, work);
}

TEST(SeriesOn, TakesADayOfTheMonthThatNoWeekHidesEver) {
    RuleDates dates{.known_to = DateTime::of(2027, 1, 1), .months = 1};
    for (int month = 1; month <= 36; ++month)
        dates.starts.push_back(DateTime::of(2024, month, 15, 9));
    const auto series = series_on(dates);
    ASSERT_TRUE(series);
    EXPECT_EQ(series->kind, RecurrenceKind::days_of_month);
    EXPECT_EQ(series->days_of_month, 1u << 14);
    EXPECT_FALSE(series->until);
}

// A week that begins in the month before shows that month's dates alone.
TEST(SeriesOn, RefusesADayOfTheMonthThatAWeekAcrossTwoMonthsHides) {
    RuleDates dates{.ended = true, .months = 1};
    for (int month = 1; month <= 3; ++month)
        dates.starts.push_back(DateTime::of(2024, month, 3, 9));
    EXPECT_FALSE(series_on(dates));
}

TEST(SeriesOn, RefusesTimesThatChange) {
    EXPECT_FALSE(series_on(
        {.starts = {DateTime::of(2024, 3, 1, 9), DateTime::of(2024, 3, 2, 10)}, .ended = true, .days = 1}));
}

TEST(SeriesOn, TakesTwoWeekdaysInEverySecondWeekWhenTheFirstComesFirst) {
    RuleDates dates{.ended = true, .weeks = 2};
    for (const int day : {11, 13, 25, 27})
        dates.starts.push_back(DateTime::of(2024, 3, day, 9));
    const auto series = series_on(dates);
    ASSERT_TRUE(series);
    EXPECT_EQ(series->kind, RecurrenceKind::weekly);
    EXPECT_EQ(series->frequency, 2);
    EXPECT_EQ(series->days_of_week, 0b1010);
    EXPECT_EQ(series->until, DateTime::of(2024, 3, 27));
}

TEST(SeriesOn, RefusesAWeeklyRuleThatEndsBeforeOneOfItsWeekdaysBegan) {
    EXPECT_FALSE(series_on(
        {.starts = {DateTime::of(2024, 3, 13, 9), DateTime::of(2024, 3, 25, 9)}, .ended = true, .weeks = 2}));
}

} // namespace
