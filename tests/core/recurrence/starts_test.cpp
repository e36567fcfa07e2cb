#include "core/recurrence/starts.h"

#include "core/values/text_forms.h"
#include "recurrence_cases.h"

#include <algorithm>
#include <cctype>
#include <gtest/gtest.h>
#include <random>
#include <set>

namespace {

using recurrence::Rule;
using recurrence::ShownDates;
using support::RecurrenceCase;
using support::SeriesKind;
using support::Walked;
using values::DateTime;

std::vector<std::string> texts_of(const std::vector<DateTime>& starts) {
    std::vector<std::string> texts;
    for (const DateTime start : starts)
        texts.push_back(values::yyyymmdd(start) + " " + std::to_string(start.time().seconds()));
    return texts;
}

const std::vector<RecurrenceCase>& cases() {
    static const std::vector<RecurrenceCase> all = support::read_recurrence_cases(TEST_DATA "/recurrence");
    return all;
}

// "every third day, counted" becomes "EveryThirdDayCounted".
std::string test_name(const testing::TestParamInfo<RecurrenceCase>& info) {
    std::string name = info.param.file + "_";
    bool begins_word = true;
    for (const char character : info.param.name) {
        const auto code = static_cast<unsigned char>(character);
        if (std::isalnum(code))
            name += begins_word ? static_cast<char>(std::toupper(code)) : character;
        begins_word = !std::isalnum(code) && character != '\'';
    }
    return name;
}

class RecurrenceFile : public testing::TestWithParam<RecurrenceCase> {};

TEST_P(RecurrenceFile, GivesTheStartsOfTheCase) {
    const RecurrenceCase& wanted = GetParam();
    const Walked walked = support::quick_walk(wanted.kind, wanted.rule, wanted.shown, wanted.exceptions);
    EXPECT_EQ(texts_of(walked.starts), texts_of(wanted.starts)) << wanted.name;
    EXPECT_EQ(walked.failed, wanted.fails) << wanted.name;
}

TEST_P(RecurrenceFile, IsWhatPlainSteppingGives) {
    const RecurrenceCase& wanted = GetParam();
    const Walked walked = support::plain_walk(wanted.kind, wanted.rule, wanted.shown, wanted.exceptions);
    EXPECT_EQ(texts_of(walked.starts), texts_of(wanted.starts)) << wanted.name;
    EXPECT_EQ(walked.failed, wanted.fails) << wanted.name;
}

INSTANTIATE_TEST_SUITE_P(Recurrence, RecurrenceFile, testing::ValuesIn(cases()), test_name);

TEST(RecurrenceFiles, HoldManyCasesOfEachKind) {
    std::multiset<SeriesKind> kinds;
    for (const RecurrenceCase& one : cases())
        kinds.insert(one.kind);
    EXPECT_GE(cases().size(), 120u);
    for (const auto kind :
         {SeriesKind::daily, SeriesKind::weekly, SeriesKind::days_of_month, SeriesKind::weekdays_of_month})
        EXPECT_GE(kinds.count(kind), 30u);
}

// Series and views as they come, and as they never should.
class RandomSeries {
public:
    explicit RandomSeries(unsigned seed) : random_(seed) {}

    int between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }

    ShownDates shown() {
        static constexpr int lengths[]{1, 7, 7, 7, 13, 40};
        const DateTime first = DateTime::of(2020, 1, 1).plus_days(between(0, 3000));
        return {first, first.plus_days(lengths[between(0, 5)] - 1)};
    }
    SeriesKind kind() { return static_cast<SeriesKind>(between(1, 4)); }
    Rule rule(const ShownDates& shown) {
        Rule rule;
        const int farthest = between(0, 3) == 0 ? 15000 : 500;
        const DateTime day = shown.EndDate.plus_days(10 - between(0, farthest));
        rule.start = DateTime::from_seconds(day.seconds() + between(0, 86399));
        rule.frequency = between(0, 4) == 0 ? between(-2, 400) : between(1, 14);
        rule.until =
            between(0, 2) == 0 ? rule.start.date().plus_days(between(-40, 800)) : DateTime::of(2099, 12, 31);
        rule.days_of_week = between(0, 9) == 0 ? between(-5, 300) : between(0, 127);
        rule.weeks_of_month = between(0, 9) == 0 ? between(-5, 80) : between(0, 31);
        rule.days_of_month =
            between(0, 3) == 0 ? between(-5, 2147483647) : 1 << between(0, 30) | 1 << between(0, 30);
        return rule;
    }
    std::vector<DateTime> exceptions(const ShownDates& shown) {
        std::vector<DateTime> dates;
        for (int count = between(0, 3); count > 0; --count)
            dates.push_back(shown.StartDate.plus_days(between(-2, 8)).plus_minutes(between(0, 1439)));
        return dates;
    }

private:
    std::mt19937 random_;
};

TEST(QuickWalks, GiveWhatPlainSteppingGivesForAHundredThousandRules) {
    RandomSeries random(20240105);
    int with_starts = 0, failed = 0;
    for (int round = 0; round < 100'000; ++round) {
        const ShownDates shown = random.shown();
        const SeriesKind kind = random.kind();
        const Rule rule = random.rule(shown);
        const std::vector<DateTime> exceptions = random.exceptions(shown);
        const Walked quick = support::quick_walk(kind, rule, shown, exceptions);
        const Walked plain = support::plain_walk(kind, rule, shown, exceptions);
        ASSERT_EQ(texts_of(quick.starts), texts_of(plain.starts))
            << "round " << round << " kind " << static_cast<int>(kind) << " from " << values::yyyymmdd(rule.start)
            << " every " << rule.frequency << " until " << values::yyyymmdd(rule.until) << " view "
            << values::yyyymmdd(shown.StartDate) << " to " << values::yyyymmdd(shown.EndDate) << " bits "
            << rule.days_of_week << ", " << rule.weeks_of_month << ", " << rule.days_of_month;
        ASSERT_EQ(quick.failed, plain.failed) << "round " << round;
        with_starts += !quick.starts.empty();
        failed += quick.failed;
    }
    EXPECT_GT(with_starts, 20'000) << "the rules hardly ever meet the view";
    EXPECT_GT(failed, 100) << "the rules hardly ever name a date that is none";
}

TEST(QuickWalks, EndForAnyNumbers) {
    constexpr int lowest = std::numeric_limits<int>::min(), highest = std::numeric_limits<int>::max();
    const ShownDates shown{DateTime::of(2024, 4, 7), DateTime::of(2024, 4, 13)};
    for (const int frequency : {lowest, -1, 0, 1, highest})
        for (const int bits : {lowest, -1, 0, highest})
            for (const auto kind :
                 {SeriesKind::daily, SeriesKind::weekly, SeriesKind::days_of_month, SeriesKind::weekdays_of_month})
                for (const DateTime start :
                     {DateTime::of(100, 1, 31), DateTime::of(2024, 4, 30), DateTime::of(9999, 12, 20)}) {
                    const Rule rule{.start = start,
                                    .frequency = frequency,
                                    .until = DateTime::of(9999, 12, 31),
                                    .days_of_week = bits,
                                    .weeks_of_month = bits,
                                    .days_of_month = bits};
                    EXPECT_LE(support::quick_walk(kind, rule, shown, {}).starts.size(), 35u);
                }
}

TEST(Form_Dat, LeavesTheTimeOut) {
    EXPECT_EQ(recurrence::Form_Dat(DateTime::of(2024, 1, 5, 23, 59, 59)),
              recurrence::Form_Dat(DateTime::of(2024, 1, 5)));
    EXPECT_LT(recurrence::Form_Dat(DateTime::of(2024, 1, 5, 23, 59)),
              recurrence::Form_Dat(DateTime::of(2024, 1, 6)));
}

TEST(InRange, HoldsBothEndsWhateverTheTime) {
    const ShownDates shown{DateTime::of(2024, 4, 7), DateTime::of(2024, 4, 13)};
    EXPECT_FALSE(recurrence::InRange(DateTime::of(2024, 4, 6, 23, 59, 59), shown));
    EXPECT_TRUE(recurrence::InRange(DateTime::of(2024, 4, 7), shown));
    EXPECT_TRUE(recurrence::InRange(DateTime::of(2024, 4, 13, 23, 59, 59), shown));
    EXPECT_FALSE(recurrence::InRange(DateTime::of(2024, 4, 14), shown));
}

TEST(InMonth, HoldsTheWholeMonthsOfBothEnds) {
    const ShownDates shown{DateTime::of(2024, 4, 28), DateTime::of(2024, 5, 4)};
    EXPECT_FALSE(recurrence::InMonth(DateTime::of(2024, 3, 31, 23, 59, 59), shown));
    EXPECT_TRUE(recurrence::InMonth(DateTime::of(2024, 4, 1), shown));
    EXPECT_TRUE(recurrence::InMonth(DateTime::of(2024, 5, 31, 23, 59, 59), shown));
    EXPECT_FALSE(recurrence::InMonth(DateTime::of(2024, 6, 1), shown));
}

TEST(InMonth, EndsDecemberWithTheYear) {
    const ShownDates shown{DateTime::of(2024, 12, 22), DateTime::of(2024, 12, 28)};
    EXPECT_TRUE(recurrence::InMonth(DateTime::of(2024, 12, 31, 23, 59, 59), shown));
    EXPECT_FALSE(recurrence::InMonth(DateTime::of(2025, 1, 1), shown));
}

TEST(InMonth, IsFalseForEveryDateOfAViewThatCrossesTheNewYear) {
    const ShownDates shown{DateTime::of(2024, 12, 29), DateTime::of(2025, 1, 4)};
    for (DateTime date = DateTime::of(2023, 12, 1); date < DateTime::of(2026, 2, 1); date = date.plus_days(1))
        EXPECT_FALSE(recurrence::InMonth(date, shown)) << values::yyyymmdd(date);
}

TEST(GetDays, SetsAFlagForEachBit) {
    const auto days = recurrence::GetDays(0b1000010);
    EXPECT_EQ(std::count(days.begin(), days.end(), true), 2);
    EXPECT_TRUE(days[2]);
    EXPECT_TRUE(days[7]);
}

TEST(GetDays, SetsAllFlagsForABitBeyondTheLast) {
    const auto days = recurrence::GetDays(128);
    EXPECT_EQ(std::count(days.begin(), days.end(), true), 7);
    EXPECT_FALSE(days[0]);
}

TEST(GetDays, SetsNoFlagForANegativeNumber) {
    const auto days = recurrence::GetDays(-1);
    EXPECT_EQ(std::count(days.begin(), days.end(), true), 0);
}

TEST(GetWeek, SetsAFlagForEachBit) {
    const auto weeks = recurrence::GetWeek(0b10001);
    EXPECT_EQ(std::count(weeks.begin(), weeks.end(), true), 2);
    EXPECT_TRUE(weeks[1]);
    EXPECT_TRUE(weeks[5]);
}

TEST(GetUniqueDays, ReachesTheThirtyFirst) {
    const auto days = recurrence::GetUniqueDays(1 << 30 | 1);
    EXPECT_EQ(std::count(days.begin(), days.end(), true), 2);
    EXPECT_TRUE(days[1]);
    EXPECT_TRUE(days[31]);
}

TEST(GetDateOfDay, GivesTheWeekdayOfTheWeek) {
    EXPECT_EQ(recurrence::GetDateOfDay({.day = 3, .week = 2, .month = 4, .year = 2024}), DateTime::of(2024, 4, 9));
    EXPECT_EQ(recurrence::GetDateOfDay({.day = 2, .week = 1, .month = 4, .year = 2024}), DateTime::of(2024, 4, 1));
    EXPECT_EQ(recurrence::GetDateOfDay({.day = 1, .week = 1, .month = 4, .year = 2024}), DateTime::of(2024, 4, 7));
}

TEST(GetDateOfDay, GivesTheFourthForAFifthThatTheMonthDoesNotHave) {
    EXPECT_EQ(recurrence::GetDateOfDay({.day = 4, .week = 5, .month = 4, .year = 2024}),
              DateTime::of(2024, 4, 24));
    EXPECT_EQ(recurrence::GetDateOfDay({.day = 4, .week = 5, .month = 4, .year = 2024, .week_4_flagged = true}),
              std::nullopt);
}

TEST(GetDateOfDay, RunsOnIntoJanuaryFromDecember) {
    EXPECT_EQ(recurrence::GetDateOfDay({.day = 4, .week = 5, .month = 12, .year = 2024}),
              DateTime::of(2025, 1, 1));
    EXPECT_EQ(recurrence::GetDateOfDay({.day = 4, .week = 5, .month = 12, .year = 2024, .week_4_flagged = true}),
              DateTime::of(2025, 1, 1));
}

} // namespace
