#include "core/shell/sizing.h"

#include "shell_world.h"

#include <gtest/gtest.h>

namespace {

class Sizing : public ::testing::Test, protected support::ShellWorld {
protected:
    std::vector<int> widths() {
        std::vector<int> result;
        for (int col = 0; col < calendar.grid.msgSched.Cols(); ++col)
            result.push_back(calendar.grid.msgSched.ColWidth(col));
        return result;
    }
};

TEST_F(Sizing, GivesTheGridTheWindowLessWhatStandsRoundIt) {
    start();
    window.place.width = 20000;
    window.place.height = 10000;
    calendar.sizing.Form_Resize();
    EXPECT_EQ(window.grid_width, 19000);
    EXPECT_EQ(window.lblYear_width, 19000);
    EXPECT_EQ(window.grid_height, 8200);
}

TEST_F(Sizing, KeepsTheWidthsOfTheColumns) {
    start();
    calendar.grid.msgSched.ColWidth(3, 777);
    calendar.grid.msgSched.ColWidth(4, 0);
    const std::vector<int> before = widths();
    for (const int width : {20000, 9000, 3300, 1500}) { // at 3300 the first two columns leave no room
        window.place.width = width;
        calendar.sizing.Form_Resize();
        EXPECT_EQ(widths(), before) << width;
    }
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(Sizing, SizesTheGridBeforeItIsFirstShownToo) {
    load();
    calendar.sizing.Form_Resize();
    EXPECT_EQ(window.grid_width, window.place.width - 1000);
    EXPECT_EQ(window.grid_height, window.place.height - 1800);
}

TEST_F(Sizing, LeavesAMinimisedWindowAlone) {
    start();
    window.state = shell::WindowState::minimised;
    calendar.sizing.Form_Resize();
    EXPECT_EQ(window.grid_width, 0);
}

} // namespace
