#include "core/recurrence/calendar_rule.h"

#include <gtest/gtest.h>

namespace {

using recurrence::calendar_rule_of;
using recurrence::DateTime;
using recurrence::moment_of;
using recurrence::Step;

TEST(CalendarRule, ReadsEachOfItsParts) {
    const auto rule = calendar_rule_of("FREQ=YEARLY;INTERVAL=2;WKST=SU;COUNT=7;BYMONTH=1,12;BYWEEKNO=-1;"
                                       "BYYEARDAY=366;BYMONTHDAY=-31;BYDAY=MO,-1FR;BYHOUR=0;BYMINUTE=59;"
                                       "BYSECOND=30;BYSETPOS=-2");
    ASSERT_TRUE(rule);
    EXPECT_EQ(rule->step, Step::yearly);
    EXPECT_EQ(rule->interval, 2);
    EXPECT_EQ(rule->week_start, 1);
    EXPECT_EQ(rule->count, 7);
    EXPECT_EQ(rule->months.all(), (std::vector{1, 12}));
    EXPECT_EQ(rule->weeks.all(), std::vector{-1});
    EXPECT_EQ(rule->year_days.all(), std::vector{366});
    EXPECT_EQ(rule->month_days.all(), std::vector{-31});
    EXPECT_EQ(rule->weekdays[2].all(), std::vector{0});
    EXPECT_EQ(rule->weekdays[6].all(), std::vector{-1});
    EXPECT_EQ(rule->hours.all(), std::vector{0});
    EXPECT_EQ(rule->minutes.all(), std::vector{59});
    EXPECT_EQ(rule->seconds.all(), std::vector{30});
    EXPECT_EQ(rule->positions.all(), std::vector{-2});
}

TEST(CalendarRule, ReadsSmallLettersBlanksAndAnEmptyPart) {
    const auto rule = calendar_rule_of("freq=daily; Count=3;");
    ASSERT_TRUE(rule);
    EXPECT_EQ(rule->count, 3);
}

TEST(CalendarRule, PassesOverWhatIsNoConditionOfItsOwn) {
    EXPECT_TRUE(calendar_rule_of("FREQ=DAILY;X-MADE-BY=US;RSCALE=GREGORIAN;SKIP=OMIT"));
}

class NoCalendarRule : public testing::TestWithParam<const char*> {};

TEST_P(NoCalendarRule, IsAbsent) { EXPECT_FALSE(calendar_rule_of(GetParam())); }

INSTANTIATE_TEST_SUITE_P(CalendarRule, NoCalendarRule,
                         testing::Values("", "COUNT=3", "FREQ=SOMETIMES", "FREQ", "FREQ=DAILY;FREQ=DAILY",
                                         "FREQ=DAILY;INTERVAL=0", "FREQ=DAILY;COUNT=-1", "FREQ=DAILY;COUNT=x",
                                         "FREQ=DAILY;COUNT=99999999999", "FREQ=DAILY;UNTIL=20240231",
                                         "FREQ=DAILY;BYMONTH=13", "FREQ=DAILY;BYMONTH=", "FREQ=DAILY;BYMONTHDAY=0",
                                         "FREQ=DAILY;BYDAY=0MO", "FREQ=DAILY;BYDAY=54MO", "FREQ=DAILY;BYDAY=UM",
                                         "FREQ=DAILY;BYHOUR=24", "FREQ=DAILY;WKST=X", "FREQ=DAILY;BYEASTER=1",
                                         "FREQ=YEARLY;RSCALE=CHINESE", "FREQ=DAILY;SKIP=FORWARD"));

TEST(Moment, IsADateATimeOrATimeInUtc) {
    EXPECT_EQ(moment_of("20240229")->time, DateTime::of(2024, 2, 29));
    EXPECT_TRUE(moment_of("20240229")->is_date);
    EXPECT_EQ(moment_of("20240229T235960")->time, DateTime::of(2024, 2, 29, 23, 59, 59));
    EXPECT_FALSE(moment_of("20240229T090000")->is_utc);
    EXPECT_TRUE(moment_of("99991231T235959Z")->is_utc);
}

TEST(Moment, IsAbsentWhereThereIsNone) {
    for (const char* text :
         {"", "2024", "20230229", "20240230", "20241301", "00000101", "20240229T", "20240229T250000",
          "20240229X090000", "20240229T090000X", "2024-02-29", "20240229T09000"})
        EXPECT_FALSE(moment_of(text)) << text;
}

} // namespace
