#include "core/shell/geometry.h"

#include "shell_world.h"

#include <gtest/gtest.h>

namespace {

class Geometry : public ::testing::Test, protected support::ShellWorld {
protected:
    void restore() { shell::restore_geometry(window, values); }
    void expect_place(int left, int top, int width, int height) {
        EXPECT_EQ(window.place.left, left);
        EXPECT_EQ(window.place.top, top);
        EXPECT_EQ(window.place.width, width);
        EXPECT_EQ(window.place.height, height);
    }
};

TEST_F(Geometry, WithoutStoredValuesIsHalfTheScreenInWhatWasItsMiddle) {
    restore();
    expect_place((28800 - 18000) / 2, (16200 - 11400) / 2, 14400, 8100);
}

TEST_F(Geometry, IsWhatWasStored) {
    store("Left", "-150");
    store("Top", "75.5");
    store("Width", "2001");
    store("Height", "3601");
    restore();
    expect_place(-150, 76, 2001, 3601);
}

TEST_F(Geometry, OfAWindowTooNarrowOrTooLowMovesItOnly) {
    store("Left", "300");
    store("Top", "450");
    store("Width", "2000");
    store("Height", "9000");
    restore();
    expect_place(300, 450, 18000, 11400);
    store("Width", "9000");
    store("Height", "3600");
    restore();
    expect_place(300, 450, 18000, 11400);
}

TEST_F(Geometry, ThatIsNoNumberFails) {
    store("Left", "300");
    store("Top", "high");
    try {
        restore();
        FAIL() << "no failure";
    } catch (const values::Failure& failure) {
        EXPECT_EQ(failure.number(), 13);
    }
    EXPECT_EQ(window.place.left, 300);
}

TEST_F(Geometry, ComesBackAsItWasStored) {
    window.place = {.left = 1234, .top = 567, .width = 30000, .height = 20000};
    window.state = shell::WindowState::maximised;
    shell::store_geometry(window, values);
    EXPECT_EQ(stored("WindowState"), "2");
    window.place = {};
    restore();
    expect_place(1234, 567, 30000, 20000);
}

} // namespace
