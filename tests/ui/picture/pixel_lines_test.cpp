#include "ui/picture/pixel_lines.h"

#include "support/line_at.h"

#include <gtest/gtest.h>

namespace {

using picture::PixelLines;

// A title of 20 pixels and ten lines of 40.
table::Axis sample_axis() {
    table::Axis axis(600);
    axis.resize(11);
    axis.set_fixed(1);
    axis.set_size(0, 300);
    return axis;
}

TEST(PixelLines, PlaceLinesOneBehindTheOther) {
    const PixelLines lines(sample_axis(), 200);
    EXPECT_EQ(lines.begin(0), 0);
    EXPECT_EQ(lines.begin(1), 20);
    EXPECT_EQ(lines.end(1), 60);
    EXPECT_EQ(lines.total_end(), 420);
    EXPECT_EQ(lines.fixed_end(), 20);
}

TEST(PixelLines, ShowOnlyWhatLiesInTheView) {
    table::Axis axis = sample_axis();
    EXPECT_EQ(PixelLines(axis, 101).shown(), (std::vector<int>{0, 1, 2, 3}));
    EXPECT_EQ(PixelLines(axis, 100).shown(), (std::vector<int>{0, 1, 2}));
    axis.set_first(7);
    EXPECT_EQ(PixelLines(axis, 101).shown(), (std::vector<int>{0, 7, 8, 9}));
}

TEST(PixelLines, BeginTheFirstScrolledLineAtTheEndOfTheTitles) {
    table::Axis axis = sample_axis();
    axis.set_first(7);
    const PixelLines lines(axis, 200);
    EXPECT_EQ(lines.begin(7), 20);
    EXPECT_EQ(lines.at(0), 0);
    EXPECT_EQ(lines.at(20), 7);
    EXPECT_EQ(lines.at(59), 7);
    EXPECT_EQ(lines.at(60), 8);
}

TEST(PixelLines, FindNoLineOutsideTheGrid) {
    const PixelLines lines(sample_axis(), 1000);
    EXPECT_EQ(lines.at(-1), -1);
    EXPECT_EQ(lines.at(419), 10);
    EXPECT_EQ(lines.at(420), -1);
}

TEST(PixelLines, PassOverHiddenLines) {
    table::Axis axis = sample_axis();
    axis.set_size(2, 0);
    const PixelLines lines(axis, 101);
    EXPECT_EQ(lines.shown(), (std::vector<int>{0, 1, 3, 4}));
    EXPECT_FALSE(lines.shows(2));
    EXPECT_EQ(lines.at(60), 3);
    EXPECT_EQ(lines.scrollable().size(), 9u);
}

TEST(PixelLines, KeepALineAsHighHoweverFarItIsScrolled) {
    table::Axis axis(820); // 54 2/3 pixels
    axis.resize(50);
    axis.set_fixed(1);
    const int before = PixelLines(axis, 300).size(20);
    axis.set_first(19);
    EXPECT_EQ(PixelLines(axis, 300).size(20), before);
}

TEST(PixelLines, ScrollNoFurtherThanToTheLastLine) {
    const PixelLines lines(sample_axis(), 120); // room for two lines and a half
    EXPECT_EQ(lines.last_scroll_position(), 8); // lines 9 and 10
    EXPECT_EQ(lines.lines_in_view(), 2);
    EXPECT_EQ(PixelLines(sample_axis(), 420).last_scroll_position(), 0);
}

TEST(PixelLines, ScrollAsLittleAsShowsALine) {
    table::Axis axis = sample_axis();
    axis.set_first(4);
    const PixelLines lines(axis, 140); // 4, 5 and 6
    EXPECT_EQ(lines.first_to_show(2), 2);
    EXPECT_EQ(lines.first_to_show(5), 4);
    EXPECT_EQ(lines.first_to_show(6), 4);
    EXPECT_EQ(lines.first_to_show(7), 5);
    EXPECT_EQ(lines.first_to_show(0), 4) << "titles always show";
}

TEST(PixelLines, TurnPlacesIntoTwipsOfTheSameLine) {
    table::Axis axis(820);
    axis.resize(50);
    axis.set_fixed(1);
    axis.set_first(13);
    const PixelLines lines(axis, 600);
    for (int place = 0; place < 600; ++place) {
        const int twips = lines.twips_from_pixels(place, axis);
        const int line = lines.at(place);
        EXPECT_GT(twips, axis.position(line)) << place;
        EXPECT_LT(twips, axis.position(line) + axis.size(line)) << place;
    }
}

TEST(PixelLines, TurnPlacesOutsideIntoTwipsOutside) {
    const table::Axis axis = sample_axis();
    const PixelLines lines(axis, 1000);
    EXPECT_LT(lines.twips_from_pixels(-1, axis), 0);
    EXPECT_GT(lines.twips_from_pixels(420, axis), 6300);
}

TEST(PixelLines, FindTheBorderNearAPlace) {
    const PixelLines lines(sample_axis(), 200);
    EXPECT_EQ(lines.border_at(57, 3), 1);
    EXPECT_EQ(lines.border_at(63, 3), 1);
    EXPECT_EQ(lines.border_at(64, 3), -1);
}

TEST(PixelLines, FindALineThatIsNoLargerThanATwip) {
    table::Axis axis = sample_axis();
    axis.set_size(1, 607);
    axis.set_size(2, 1);
    const PixelLines lines(axis, 200);
    ASSERT_EQ(lines.at(60), 2);
    EXPECT_EQ(support::line_at(axis, lines.twips_from_pixels(60, axis)), 2);
}

} // namespace
