#include "core/act/list_filter.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using values::DateTime;
namespace filter_dates = act::filter_dates;
namespace filter_mask = act::filter_mask;

const values::Locale& locale = values::english_us();

} // namespace

TEST(FilterMask, HasABitForEachTypeAndEachPriority) {
    EXPECT_EQ(filter_mask::cleared, 2);
    EXPECT_EQ(filter_mask::of(act::ActivityType::call), 4);
    EXPECT_EQ(filter_mask::of(act::ActivityType::meeting), 8);
    EXPECT_EQ(filter_mask::of(act::ActivityType::to_do), 16);
    EXPECT_EQ(filter_mask::of(act::Priority::high), 32);
    EXPECT_EQ(filter_mask::of(act::Priority::medium), 64);
    EXPECT_EQ(filter_mask::of(act::Priority::low), 128);
    EXPECT_EQ(filter_mask::every_priority, 224);
}

TEST(FilterDates, WritesARangeAndReadsItBack) {
    const filter_dates::Range week{DateTime::of(2024, 1, 7), DateTime::of(2024, 1, 14)};
    EXPECT_EQ(filter_dates::text_of(week, locale), "6\\1/7/2024\\1/14/2024");
    const auto read = filter_dates::range_of("6\\1/7/2024\\1/14/2024", locale);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->first, week.first);
    EXPECT_EQ(read->last, week.last);
}

TEST(FilterDates, ReadsDaysAlone) {
    const auto read = filter_dates::range_of("6\\1/7/2024 9:00:00 AM\\1/14/2024 5:00:00 PM", locale);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->first, DateTime::of(2024, 1, 7));
    EXPECT_EQ(read->last, DateTime::of(2024, 1, 14));
}

TEST(FilterDates, ReadsNoRangeFromAnythingElse) {
    for (const std::string dates : {"", "1", "2", "6", "6\\1/7/2024", "6\\1/7/2024\\", "6\\1/7/2024\\1/14/2024\\",
                                    "5\\1/7/2024\\1/14/2024", "6\\soon\\1/14/2024", "6\\1/7/2024\\later"})
        EXPECT_FALSE(filter_dates::range_of(dates, locale)) << dates;
}
