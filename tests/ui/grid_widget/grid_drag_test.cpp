#include "ui/grid_widget/watched_grid.h"

#include <gtest/gtest.h>

namespace {

// A drag that began on a cell, its button still down.
struct DraggedGrid : WatchedGrid {
    explicit DraggedGrid(int row, int col) {
        drags = true;
        settle();
        QTest::mousePress(view(), Qt::LeftButton, Qt::ControlModifier, middle_of(row, col));
    }
    int x(int col) const { return middle_of(model.TopRow(), col).x(); }
    int y(int row) const { return middle_of(row, model.LeftCol()).y(); }
    int right() const { return view()->width() - 5; }
    int bottom() const { return view()->height() - 5; }
    void let_go(QPoint place) const { QTest::mouseRelease(view(), Qt::LeftButton, Qt::ControlModifier, place); }
    // Whether the grid stays as it is scrolled for longer than a step would take.
    bool rests() {
        const int top = model.TopRow(), left = model.LeftCol();
        return !QTest::qWaitFor([&] { return model.TopRow() != top || model.LeftCol() != left; }, 400);
    }
};

TEST(GridDrag, DropsWhatIsDraggedWhereTheButtonIsLetGo) {
    WatchedGrid grid;
    grid.drags = true;
    QTest::mousePress(grid.view(), Qt::LeftButton, Qt::ControlModifier, grid.middle_of(2, 3));
    EXPECT_TRUE(grid.widget->is_dragging());
    grid.draw_to(grid.middle_of(5, 4));
    QTest::mouseRelease(grid.view(), Qt::LeftButton, Qt::ControlModifier, grid.middle_of(5, 4));
    EXPECT_FALSE(grid.widget->is_dragging());
    EXPECT_EQ(grid.selection(), "2,3 to 2,3") << "a drag draws no selection";
    ASSERT_EQ(grid.moves.size(), 1u);
    ASSERT_EQ(grid.drops.size(), 1u);
    EXPECT_EQ(support::line_at(grid.model.rows(), grid.drops[0].y()), 5);
    EXPECT_EQ(support::line_at(grid.model.columns(), grid.drops[0].x()), 4);
}

TEST(GridDrag, DropsNothingOutsideTheGrid) {
    WatchedGrid grid;
    grid.drags = true;
    QTest::mousePress(grid.view(), Qt::LeftButton, {}, grid.middle_of(2, 3));
    QTest::mouseRelease(grid.view(), Qt::LeftButton, {}, QPoint(-20, 40));
    EXPECT_FALSE(grid.widget->is_dragging());
    EXPECT_TRUE(grid.drops.empty());
}

TEST(GridDrag, HearsNoKeyButEscapeDuringADrag) {
    WatchedGrid grid;
    int opened = 0;
    QObject::connect(&*grid.widget, &ui::GridWidget::double_clicked, [&] { ++opened; });
    grid.drags = true;
    QTest::mousePress(grid.view(), Qt::LeftButton, {}, grid.middle_of(2, 3));
    grid.press_key(Qt::Key_Return);
    grid.press_key(Qt::Key_Down);
    EXPECT_EQ(opened, 0);
    EXPECT_EQ(grid.selection(), "2,3 to 2,3");
    EXPECT_TRUE(grid.widget->is_dragging());
}

TEST(GridDrag, AbandonsADragOnEscape) {
    WatchedGrid grid;
    grid.drags = true;
    QTest::mousePress(grid.view(), Qt::LeftButton, {}, grid.middle_of(2, 3));
    grid.press_key(Qt::Key_Escape);
    EXPECT_FALSE(grid.widget->is_dragging());
    grid.draw_to(grid.middle_of(5, 4));
    QTest::mouseRelease(grid.view(), Qt::LeftButton, {}, grid.middle_of(5, 4));
    EXPECT_TRUE(grid.moves.empty());
    EXPECT_TRUE(grid.drops.empty());
    EXPECT_EQ(grid.selection(), "2,3 to 2,3");
}

TEST(GridDrag, ShowsByThePointerWhetherADropIsPermitted) {
    WatchedGrid grid;
    grid.widget->begin_drag();
    const QImage permitted = grid.view()->cursor().pixmap().toImage();
    EXPECT_EQ(grid.view()->cursor().pixmap().deviceIndependentSize(), QSizeF(32, 32));
    grid.widget->show_drop_permitted(false);
    EXPECT_NE(grid.view()->cursor().pixmap().toImage(), permitted);
    grid.press_key(Qt::Key_Escape);
    EXPECT_EQ(grid.view()->cursor().shape(), Qt::ArrowCursor);
}

TEST(GridDrag, DrawsThePointerAnewOnlyWhenThePermissionChanges) {
    WatchedGrid grid;
    grid.widget->begin_drag();
    const QPixmap permitted = grid.view()->cursor().pixmap();
    grid.widget->show_drop_permitted(true);
    EXPECT_EQ(grid.view()->cursor().pixmap().cacheKey(), permitted.cacheKey());
    grid.widget->show_drop_permitted(false);
    grid.widget->show_drop_permitted(true);
    EXPECT_EQ(grid.view()->cursor().pixmap().toImage(), permitted.toImage());
    grid.press_key(Qt::Key_Escape);
    grid.widget->begin_drag();
    EXPECT_EQ(grid.view()->cursor().pixmap().toImage(), permitted.toImage()) << "in the next drag too";
}

TEST(GridDrag, ScrollsDownAndUpNearTheLowerAndTheUpperEdgeOfTheCells) {
    DraggedGrid grid(2, 3);
    grid.draw_to(QPoint(grid.x(3), grid.bottom()));
    EXPECT_TRUE(QTest::qWaitFor([&grid] { return grid.model.TopRow() > 2; }));
    EXPECT_EQ(grid.model.LeftCol(), 2);
    EXPECT_EQ(grid.selection(), "2,3 to 2,3");
    grid.draw_to(QPoint(grid.x(3), grid.y(grid.model.TopRow()) - 15));
    EXPECT_TRUE(QTest::qWaitFor([&grid] { return grid.model.TopRow() == 1; }));
}

TEST(GridDrag, ScrollsRightAndLeftNearTheRightAndTheLeftEdgeOfTheCells) {
    DraggedGrid grid(3, 3);
    grid.draw_to(QPoint(grid.right(), grid.y(3)));
    EXPECT_TRUE(QTest::qWaitFor([&grid] { return grid.model.LeftCol() > 3; }));
    EXPECT_EQ(grid.model.TopRow(), 1);
    grid.draw_to(QPoint(grid.x(grid.model.LeftCol()) - 45, grid.y(3)));
    EXPECT_TRUE(QTest::qWaitFor([&grid] { return grid.model.LeftCol() == 2; }));
}

TEST(GridDrag, ScrollsBothWaysInACorner) {
    DraggedGrid grid(3, 3);
    grid.draw_to(QPoint(grid.right(), grid.bottom()));
    EXPECT_TRUE(QTest::qWaitFor([&grid] { return grid.model.LeftCol() > 2 && grid.model.TopRow() > 2; }));
}

TEST(GridDrag, ScrollsBackOverTheTitlesWhichStay) {
    DraggedGrid grid(3, 3);
    grid.model.TopRow(5);
    grid.model.LeftCol(3);
    ShownGrid::settle();
    grid.draw_to(QPoint(5, 5));
    EXPECT_TRUE(QTest::qWaitFor([&grid] { return grid.model.LeftCol() == 2 && grid.model.TopRow() == 1; }));
    EXPECT_EQ(grid.widget->cell_rect(0, 0).topLeft(), QPoint(0, 0));
}

TEST(GridDrag, ScrollsOutsideTheViewToo) {
    DraggedGrid grid(3, 3);
    grid.draw_to(QPoint(grid.x(3), grid.view()->height() + 50));
    EXPECT_TRUE(QTest::qWaitFor([&grid] { return grid.model.TopRow() > 2; }));
}

TEST(GridDrag, ScrollsNoFurtherThanToTheLastRow) {
    DraggedGrid grid(3, 3);
    grid.model.TopRow(29);
    ShownGrid::settle();
    grid.draw_to(QPoint(grid.x(3), grid.bottom()));
    EXPECT_TRUE(QTest::qWaitFor([&grid] { return !grid.widget->cell_rect(39, 3).isEmpty(); }));
    grid.rests();
    EXPECT_GE(grid.widget->cell_rect(39, 3).bottom(), grid.bottom() - 45);
}

TEST(GridDrag, RestsAwayFromTheEdgesAndOnceTheButtonIsLetGo) {
    DraggedGrid grid(3, 3);
    grid.draw_to(QPoint(grid.x(3), grid.bottom()));
    EXPECT_TRUE(QTest::qWaitFor([&grid] { return grid.model.TopRow() > 1; }));
    grid.draw_to(QPoint(grid.x(4), grid.view()->height() / 2));
    EXPECT_TRUE(grid.rests());
    grid.draw_to(QPoint(grid.x(3), grid.bottom()));
    grid.let_go(QPoint(grid.x(3), grid.bottom()));
    EXPECT_TRUE(grid.rests());
}

TEST(GridDrag, DropsOnTheCellThatHasScrolledUnderThePointer) {
    DraggedGrid grid(3, 3);
    const QPoint place(grid.x(4), grid.bottom());
    const int row_before = grid.widget->cell_at(place).row;
    grid.draw_to(place);
    EXPECT_TRUE(QTest::qWaitFor([&grid] { return grid.model.TopRow() > 3; }));
    const int row = grid.widget->cell_at(place).row;
    EXPECT_GT(row, row_before);
    grid.let_go(place);
    ASSERT_EQ(grid.drops.size(), 1u);
    EXPECT_EQ(support::line_at(grid.model.rows(), grid.drops[0].y()), row);
    EXPECT_EQ(support::line_at(grid.model.columns(), grid.drops[0].x()), 4);
}

TEST(GridDrag, TellsOfThePlaceAgainWhenTheGridHasScrolledUnderThePointer) {
    DraggedGrid grid(3, 3);
    grid.draw_to(QPoint(grid.x(3), grid.bottom()));
    EXPECT_EQ(grid.moves.size(), 1u);
    EXPECT_TRUE(QTest::qWaitFor([&grid] { return grid.moves.size() > 2; }));
}

TEST(GridDrag, DoesNotScrollUnderAPointerThatHasNotLeftItsCell) {
    WatchedGrid grid;
    grid.drags = true;
    const int last_row = grid.widget->cell_at(QPoint(0, grid.view()->height() - 1)).row;
    const QPoint low(grid.middle_of(3, 3).x(), grid.view()->height() - 12);
    grid.model.RowHeight(last_row, 3000); // so that the last row that shows reaches far below the edge
    ShownGrid::settle();
    QTest::mousePress(grid.view(), Qt::LeftButton, Qt::ControlModifier, low);
    grid.draw_to(low + QPoint(2, 3));
    EXPECT_FALSE(QTest::qWaitFor([&grid] { return grid.model.TopRow() > 1; }, 400));
    grid.draw_to(low + QPoint(100, 3));
    EXPECT_TRUE(QTest::qWaitFor([&grid] { return grid.model.TopRow() > 1; }));
}

TEST(GridDrag, ScrollsBackOnEscapeSoThatTheGridIsUnchanged) {
    DraggedGrid grid(3, 3);
    grid.draw_to(QPoint(grid.right(), grid.bottom()));
    EXPECT_TRUE(QTest::qWaitFor([&grid] { return grid.model.LeftCol() > 2 && grid.model.TopRow() > 3; }));
    grid.press_key(Qt::Key_Escape);
    EXPECT_EQ(grid.model.TopRow(), 1);
    EXPECT_EQ(grid.model.LeftCol(), 2);
    EXPECT_EQ(grid.selection(), "3,3 to 3,3");
    EXPECT_TRUE(grid.rests());
}

TEST(GridDrag, IsGivenUpWhenSomebodyElseGetsTheFocus) {
    DraggedGrid grid(3, 3);
    QWidget box;
    box.show();
    box.activateWindow();
    box.setFocus();
    EXPECT_TRUE(QTest::qWaitFor([&grid] { return !grid.widget->hasFocus(); }));
    EXPECT_FALSE(grid.widget->is_dragging());
    grid.let_go(grid.middle_of(5, 4));
    EXPECT_TRUE(grid.drops.empty());
}

} // namespace
