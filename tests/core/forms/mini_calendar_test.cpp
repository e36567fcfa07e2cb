#include "core/forms/mini_calendar.h"

#include "core/shell/shell_world.h"

#include <gtest/gtest.h>

namespace {

using forms::title_strip::Press;

TEST(TitleStrip, HasItsCloseBoxOnePixelFromTheRightEdgeWhateverTheWidth) {
    for (const int width : {40, 200, 333}) {
        const auto box = forms::title_strip::close_box(width);
        EXPECT_EQ(box.Left, width - 7);
        EXPECT_EQ(box.Top, 1);
        EXPECT_EQ(box.Right, width - 1);
        EXPECT_EQ(box.Bottom, 7);
    }
}

TEST(TitleStrip, DragsBesideTheCloseBoxAndClosesInIt) {
    const auto box = forms::title_strip::close_box(100); // from 93,1 to 99,7
    const auto press = [&](int x, int y) { return forms::title_strip::press(1, x, y, box); };
    EXPECT_EQ(press(50, 4), Press::drags);
    EXPECT_EQ(press(92, 1), Press::drags);
    EXPECT_EQ(press(93, 0), Press::drags);
    EXPECT_EQ(press(93, 1), Press::closes);
    EXPECT_EQ(press(98, 6), Press::closes);
    EXPECT_EQ(press(99, 6), Press::drags);
    EXPECT_EQ(press(98, 7), Press::drags);
}

TEST(TitleStrip, EndsAboveItsEighthPixel) {
    const auto box = forms::title_strip::close_box(100);
    EXPECT_EQ(forms::title_strip::press(1, 50, 7, box), Press::drags);
    EXPECT_EQ(forms::title_strip::press(1, 50, 8, box), Press::ignored);
}

TEST(TitleStrip, TakesTheLeftButtonOnly) {
    const auto box = forms::title_strip::close_box(100);
    EXPECT_EQ(forms::title_strip::press(2, 95, 3, box), Press::ignored);
    EXPECT_EQ(forms::title_strip::press(4, 50, 3, box), Press::ignored);
}

class MiniCalendarPlace : public ::testing::Test, protected support::ShellWorld {};

TEST_F(MiniCalendarPlace, IsAThirdOfAnInchFromTheCornerAtFirst) {
    const auto place = forms::stored_mini_calendar_place(values);
    EXPECT_EQ(place.top, 500);
    EXPECT_EQ(place.left, 500);
}

TEST_F(MiniCalendarPlace, ComesBackAsItWasStored) {
    forms::store_mini_calendar_place({.top = -45, .left = 12345}, values);
    EXPECT_EQ(stored("MiniCalTop"), "-45");
    EXPECT_EQ(stored("MiniCalLeft"), "12345");
    const auto place = forms::stored_mini_calendar_place(values);
    EXPECT_EQ(place.top, -45);
    EXPECT_EQ(place.left, 12345);
}

TEST_F(MiniCalendarPlace, ThatIsNoNumberFails) {
    store("MiniCalLeft", "left");
    EXPECT_THROW(forms::stored_mini_calendar_place(values), values::Failure);
}

} // namespace
