#include "core/table/axis.h"

#include "support/line_at.h"

#include <gtest/gtest.h>

using support::line_at;

namespace {

// Five lines after one fixed one; the third is hidden.
//
//   line      0    1    2    3    4    5
//   size     30  100  100    0  100   50
//   offset    0   30  130  230  230  330   380
table::Axis six_lines() {
    table::Axis axis(100);
    axis.resize(6);
    axis.set_size(0, 30);
    axis.set_size(3, 0);
    axis.set_size(5, 50);
    return axis;
}

TEST(Axis, GivesNewLinesTheStandardSize) {
    table::Axis axis(70);
    axis.resize(2);
    axis.set_size(1, 5);
    axis.resize(3);
    EXPECT_EQ(axis.size(0), 70);
    EXPECT_EQ(axis.size(1), 5);
    EXPECT_EQ(axis.size(2), 70);
}

TEST(Axis, AddsUpTheSizesBeforeALine) {
    const table::Axis axis = six_lines();
    EXPECT_EQ(axis.offset(0), 0);
    EXPECT_EQ(axis.offset(3), 230);
    EXPECT_EQ(axis.offset(4), 230);
    EXPECT_EQ(axis.total(), 380);
}

TEST(Axis, FollowsALaterChangeOfASize) {
    table::Axis axis = six_lines();
    EXPECT_EQ(axis.total(), 380);
    axis.set_size(1, 10);
    EXPECT_EQ(axis.total(), 290);
    EXPECT_EQ(axis.position(2), 40);
}

TEST(Axis, FindsTheVisibleLineAtAPlace) {
    const table::Axis axis = six_lines();
    EXPECT_EQ(line_at(axis, 0), 0);
    EXPECT_EQ(line_at(axis, 29), 0);
    EXPECT_EQ(line_at(axis, 30), 1);
    EXPECT_EQ(line_at(axis, 229), 2);
    EXPECT_EQ(line_at(axis, 230), 4);
    EXPECT_EQ(line_at(axis, 379), 5);
    EXPECT_EQ(line_at(axis, 380), -1);
    EXPECT_EQ(line_at(axis, -1), -1);
}

// With line 2 first, line 1 is rolled away under the fixed line.
TEST(Axis, CountsTheScrolledLinesOutOfPositions) {
    table::Axis axis = six_lines();
    axis.set_first(2);
    EXPECT_EQ(axis.position(0), 0);
    EXPECT_EQ(axis.position(1), -70);
    EXPECT_EQ(axis.position(2), 30);
    EXPECT_EQ(axis.position(4), 130);
    EXPECT_EQ(line_at(axis, 29), 0);
    EXPECT_EQ(line_at(axis, 30), 2);
    EXPECT_EQ(line_at(axis, 280), -1);
}

TEST(Axis, KeepsItsFirstLineInsideWhenItShrinksAndOutOfTheFixedOnes) {
    table::Axis axis = six_lines();
    axis.set_first(5);
    axis.resize(3);
    EXPECT_EQ(axis.first(), 2);
    axis.resize(1);
    EXPECT_EQ(axis.first(), 1);
    axis.resize(6);
    axis.set_fixed(2);
    EXPECT_EQ(axis.first(), 2);
}

} // namespace
