#include "ui/grid_widget/watched_grid.h"

#include <gtest/gtest.h>

namespace {

TEST(GridMouse, SelectsTheCellUnderALeftPress) {
    WatchedGrid grid;
    grid.click(Qt::LeftButton, grid.middle_of(3, 4));
    EXPECT_EQ(grid.selection(), "3,4 to 3,4");
    EXPECT_EQ(grid.presses, (std::vector<Press>{{1, 0, 3, 4}}));
}

TEST(GridMouse, FindsTheCellInAScrolledGrid) {
    WatchedGrid grid;
    grid.model.TopRow(11);
    grid.click(Qt::LeftButton, grid.middle_of(13, 4));
    EXPECT_EQ(grid.selection(), "13,4 to 13,4");
    EXPECT_EQ(grid.presses, (std::vector<Press>{{1, 0, 13, 4}}));
}

TEST(GridMouse, LeavesTheSelectionToTheListenerOnARightPress) {
    WatchedGrid grid;
    grid.click(Qt::RightButton, grid.middle_of(3, 4));
    EXPECT_EQ(grid.selection(), "1,2 to 1,2");
    EXPECT_EQ(grid.presses, (std::vector<Press>{{2, 0, 3, 4}}));
}

TEST(GridMouse, TellsOfShiftCtrlAndAlt) {
    WatchedGrid grid;
    grid.click(Qt::RightButton, grid.middle_of(3, 4), Qt::ShiftModifier);
    grid.click(Qt::LeftButton, grid.middle_of(3, 4), Qt::ControlModifier);
    grid.click(Qt::MiddleButton, grid.middle_of(3, 4), Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(grid.presses, (std::vector<Press>{{2, 1, 3, 4}, {1, 2, 3, 4}, {4, 7, 3, 4}}));
}

TEST(GridMouse, DrawsASelection) {
    WatchedGrid grid;
    QTest::mousePress(grid.view(), Qt::LeftButton, {}, grid.middle_of(2, 3));
    grid.draw_to(grid.middle_of(5, 4));
    EXPECT_EQ(grid.selection(), "2,3 to 5,4");
    grid.draw_to(grid.middle_of(1, 2));
    EXPECT_EQ(grid.selection(), "2,3 to 1,2");
    QTest::mouseRelease(grid.view(), Qt::LeftButton, {}, grid.middle_of(1, 2));
    QTest::mouseMove(grid.view(), grid.middle_of(6, 4));
    EXPECT_EQ(grid.selection(), "2,3 to 1,2");
}

TEST(GridMouse, KeepsADrawnSelectionOutOfTheTitles) {
    WatchedGrid grid;
    QTest::mousePress(grid.view(), Qt::LeftButton, {}, grid.middle_of(2, 3));
    grid.draw_to(QPoint(5, 5));
    EXPECT_EQ(grid.selection(), "2,3 to 1,2");
}

TEST(GridMouse, ScrollsWhileASelectionIsDrawnBeyondTheView) {
    WatchedGrid grid;
    QTest::mousePress(grid.view(), Qt::LeftButton, {}, grid.middle_of(2, 3));
    grid.draw_to(QPoint(grid.middle_of(2, 3).x(), grid.view()->height() + 20));
    EXPECT_TRUE(QTest::qWaitFor([&grid] { return grid.model.TopRow() > 2; }));
    EXPECT_GT(grid.model.RowSel(), 9);
    QTest::mouseRelease(grid.view(), Qt::LeftButton);
}

TEST(GridMouse, ExtendsTheSelectionWithShift) {
    WatchedGrid grid;
    grid.click(Qt::LeftButton, grid.middle_of(4, 5), Qt::ShiftModifier);
    EXPECT_EQ(grid.selection(), "1,2 to 4,5");
}

TEST(GridMouse, DropsTheSelectionAtALeftPressOnATitle) {
    WatchedGrid grid;
    grid.model.RowSel(5);
    grid.click(Qt::LeftButton, grid.middle_of(0, 4));
    EXPECT_EQ(grid.selection(), "1,2 to 1,2");
    EXPECT_EQ(grid.presses, (std::vector<Press>{{1, 0, 0, 4}}));
}

TEST(GridMouse, KeepsTheSelectionAtARightPressOnATitle) {
    WatchedGrid grid;
    grid.model.RowSel(5);
    grid.click(Qt::RightButton, grid.middle_of(0, 4));
    EXPECT_EQ(grid.selection(), "1,2 to 5,2");
}

TEST(GridMouse, DrawsNoSelectionFromATitle) {
    WatchedGrid grid;
    QTest::mousePress(grid.view(), Qt::LeftButton, {}, grid.middle_of(0, 4));
    grid.draw_to(grid.middle_of(4, 5));
    EXPECT_EQ(grid.selection(), "1,2 to 1,2");
}

TEST(GridMouse, LeavesTheCurrentCellAtAPressBehindTheLastOne) {
    WatchedGrid grid;
    grid.model.Cols(4);
    ShownGrid::settle();
    grid.click(Qt::LeftButton, QPoint(600, 100));
    EXPECT_EQ(grid.selection(), "1,2 to 1,2");
    EXPECT_EQ(grid.presses, (std::vector<Press>{{1, 0, 3, -1}}));
}

TEST(GridMouse, TellsOfADoubleClick) {
    WatchedGrid grid;
    grid.click(Qt::LeftButton, grid.middle_of(3, 4));
    QTest::mouseDClick(grid.view(), Qt::LeftButton, {}, grid.middle_of(3, 4));
    EXPECT_EQ(grid.double_clicks, 1);
    EXPECT_EQ(grid.presses.size(), 1u);
    EXPECT_EQ(grid.selection(), "3,4 to 3,4");
}

TEST(GridMouse, TakesTwoQuickRightPressesForTwo) {
    WatchedGrid grid;
    grid.click(Qt::RightButton, grid.middle_of(3, 4));
    QTest::mouseDClick(grid.view(), Qt::RightButton, {}, grid.middle_of(3, 4));
    EXPECT_EQ(grid.double_clicks, 0);
    EXPECT_EQ(grid.presses.size(), 2u);
}

} // namespace
