#include "desk/import/zone.h"

#include <gtest/gtest.h>

namespace {

using importing::Zone;
using values::DateTime;

// An hour ahead, two from 31 March 2024, 1:00 in UTC, to 27 October.
Zone berlin_2024() {
    return Zone(0, {{DateTime::of(2024, 10, 27, 1), 7200, 3600}, {DateTime::of(2024, 3, 31, 1), 3600, 7200}});
}

TEST(Zone, IsWhatItWasBeforeItsFirstChange) {
    EXPECT_EQ(berlin_2024().utc(DateTime::of(1950, 7, 1, 12)), DateTime::of(1950, 7, 1, 11));
    EXPECT_EQ(berlin_2024().wall_clock(DateTime::of(1950, 7, 1, 11)), DateTime::of(1950, 7, 1, 12));
}

TEST(Zone, GoesByItsChangesInWhateverOrderTheyCome) {
    EXPECT_EQ(berlin_2024().utc(DateTime::of(2024, 7, 1, 12)), DateTime::of(2024, 7, 1, 10));
    EXPECT_EQ(berlin_2024().wall_clock(DateTime::of(2024, 12, 1, 11)), DateTime::of(2024, 12, 1, 12));
}

TEST(Zone, ATimeInTheMissingHourIsThatOfTheClocksBefore) {
    EXPECT_EQ(berlin_2024().utc(DateTime::of(2024, 3, 31, 1, 59)), DateTime::of(2024, 3, 31, 0, 59));
    EXPECT_EQ(berlin_2024().utc(DateTime::of(2024, 3, 31, 2, 30)), DateTime::of(2024, 3, 31, 1, 30));
    EXPECT_EQ(berlin_2024().utc(DateTime::of(2024, 3, 31, 3)), DateTime::of(2024, 3, 31, 1));
    EXPECT_EQ(berlin_2024().wall_clock(DateTime::of(2024, 3, 31, 1, 30)), DateTime::of(2024, 3, 31, 3, 30));
}

TEST(Zone, ATimeThatComesTwiceIsTheFirst) {
    EXPECT_EQ(berlin_2024().utc(DateTime::of(2024, 10, 27, 2, 30)), DateTime::of(2024, 10, 27, 0, 30));
    EXPECT_EQ(berlin_2024().utc(DateTime::of(2024, 10, 27, 3)), DateTime::of(2024, 10, 27, 2));
}

TEST(Zone, WithoutAChangeItIsTheSameForEver) {
    EXPECT_EQ(Zone().utc(DateTime::of(2024, 3, 31, 2, 30)), DateTime::of(2024, 3, 31, 2, 30));
    EXPECT_EQ(Zone(-3600).wall_clock(DateTime::of(2024, 3, 31, 2, 30)), DateTime::of(2024, 3, 31, 1, 30));
}

} // namespace
