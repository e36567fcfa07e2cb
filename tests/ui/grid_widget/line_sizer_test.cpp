#include "ui/grid_widget/line_sizer.h"

#include "ui/grid_widget/sample_grid.h"

#include <gtest/gtest.h>

namespace {

// The right border of a column's title, or the lower one of a row's.
QPoint column_border(const ShownGrid& grid, int col) { return {grid.widget->cell_rect(0, col).right() + 1, 10}; }
QPoint row_border(const ShownGrid& grid, int row) { return {30, grid.widget->cell_rect(row, 0).bottom() + 1}; }

void draw_border(const ShownGrid& grid, QPoint from, QPoint by) {
    QTest::mousePress(grid.view(), Qt::LeftButton, {}, from);
    grid.draw_to(from + by);
    QTest::mouseRelease(grid.view(), Qt::LeftButton, {}, from + by);
}

TEST(LineSizer, WidensAColumnInTwips) {
    const ShownGrid grid;
    draw_border(grid, column_border(grid, 3), {20, 0});
    EXPECT_EQ(grid.model.ColWidth(3), 1500 + 300);
    EXPECT_EQ(grid.model.ColWidth(4), 1500);
}

TEST(LineSizer, SizesARowAtItsTitle) {
    const ShownGrid grid;
    draw_border(grid, row_border(grid, 2), {0, -10});
    EXPECT_EQ(grid.model.RowHeight(2), 600 - 150);
}

TEST(LineSizer, SizesATitleColumnAndTheTitleRow) {
    const ShownGrid grid;
    draw_border(grid, column_border(grid, 1), {15, 0});
    EXPECT_EQ(grid.model.ColWidth(1), 1500 + 225);
    draw_border(grid, row_border(grid, 0), {0, 10});
    EXPECT_EQ(grid.model.RowHeight(0), 300 + 150);
}

TEST(LineSizer, LeavesALineLargeEnoughToBeDrawnBack) {
    const ShownGrid grid;
    draw_border(grid, column_border(grid, 3), {-300, 0});
    EXPECT_EQ(grid.model.ColWidth(3), ui::LineSizer::least_size * 15);
}

TEST(LineSizer, ChangesNothingWithoutAMove) {
    const ShownGrid grid;
    QTest::mouseClick(grid.view(), Qt::LeftButton, {}, column_border(grid, 3));
    EXPECT_EQ(grid.model.ColWidth(3), 1500);
}

TEST(LineSizer, DoesNothingAtBordersBetweenCells) {
    const ShownGrid grid;
    draw_border(grid, {grid.widget->cell_rect(3, 3).right() + 1, grid.middle_of(3, 3).y()}, {20, 0});
    EXPECT_EQ(grid.model.ColWidth(3), 1500);
}

TEST(LineSizer, ShowsItselfByThePointer) {
    const ShownGrid grid;
    QTest::mouseMove(grid.view(), column_border(grid, 3));
    EXPECT_EQ(grid.view()->cursor().shape(), Qt::SplitHCursor);
    QTest::mouseMove(grid.view(), row_border(grid, 3));
    EXPECT_EQ(grid.view()->cursor().shape(), Qt::SplitVCursor);
    QTest::mouseMove(grid.view(), grid.middle_of(3, 3));
    EXPECT_EQ(grid.view()->cursor().shape(), Qt::ArrowCursor);
}

TEST(LineSizer, NeitherSelectsNorTellsOfThePress) {
    const ShownGrid grid;
    int presses = 0;
    QObject::connect(grid.widget.get(), &ui::GridWidget::mouse_pressed, [&presses] { ++presses; });
    draw_border(grid, column_border(grid, 3), {20, 0});
    EXPECT_EQ(presses, 0);
    EXPECT_EQ(grid.selection(), "1,2 to 1,2");
}

TEST(LineSizer, GivesTheSizeBackOnEscape) {
    const ShownGrid grid;
    const QPoint border = column_border(grid, 3);
    QTest::mousePress(grid.view(), Qt::LeftButton, {}, border);
    grid.draw_to(border + QPoint(40, 0));
    EXPECT_EQ(grid.model.ColWidth(3), 1500 + 600);
    grid.press_key(Qt::Key_Escape);
    EXPECT_EQ(grid.model.ColWidth(3), 1500);
    grid.draw_to(border + QPoint(80, 0));
    EXPECT_EQ(grid.model.ColWidth(3), 1500);
}

TEST(LineSizer, EndsWhenTheLineIsGone) {
    ShownGrid grid;
    const QPoint border = column_border(grid, 3);
    QTest::mousePress(grid.view(), Qt::LeftButton, {}, border);
    grid.model.Cols(3);
    grid.draw_to(border + QPoint(40, 0));
    QTest::mouseRelease(grid.view(), Qt::LeftButton, {}, border);
    EXPECT_EQ(grid.model.ColWidth(2), 1500);
}

} // namespace
