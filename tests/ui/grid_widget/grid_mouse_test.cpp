#include "ui/grid_widget/sample_grid.h"

#include <gtest/gtest.h>

namespace {

struct Press {
    int button, shift, row, col;
    bool operator==(const Press&) const = default;
};

// The grid with a record of what it has told. A press is kept with the cell that its twips fall into.
struct WatchedGrid : ShownGrid {
    std::vector<Press> presses;
    std::vector<QPoint> drops, moves;
    int double_clicks = 0;
    bool drags = false; // begin a drag at a press

    WatchedGrid() {
        QObject::connect(widget.get(), &ui::GridWidget::mouse_pressed,
                         [this](int button, int shift, int x, int y) {
                             presses.push_back({button, shift, model.rows().at(y), model.columns().at(x)});
                             if (drags)
                                 widget->begin_drag();
                         });
        QObject::connect(widget.get(), &ui::GridWidget::double_clicked, [this] { ++double_clicks; });
        QObject::connect(widget.get(), &ui::GridWidget::dropped,
                         [this](int x, int y) { drops.emplace_back(x, y); });
        QObject::connect(widget.get(), &ui::GridWidget::drag_moved,
                         [this](int x, int y) { moves.emplace_back(x, y); });
    }
    void click(Qt::MouseButton button, QPoint place, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::mouseClick(view(), button, modifiers, place);
    }
};

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

TEST(GridMouse, DropsWhatIsDraggedWhereTheButtonIsLetGo) {
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
    EXPECT_EQ(grid.model.rows().at(grid.drops[0].y()), 5);
    EXPECT_EQ(grid.model.columns().at(grid.drops[0].x()), 4);
}

TEST(GridMouse, DropsNothingOutsideTheGrid) {
    WatchedGrid grid;
    grid.drags = true;
    QTest::mousePress(grid.view(), Qt::LeftButton, {}, grid.middle_of(2, 3));
    QTest::mouseRelease(grid.view(), Qt::LeftButton, {}, QPoint(-20, 40));
    EXPECT_FALSE(grid.widget->is_dragging());
    EXPECT_TRUE(grid.drops.empty());
}

TEST(GridMouse, AbandonsADragOnEscape) {
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

TEST(GridMouse, ShowsByThePointerWhetherADropIsPermitted) {
    WatchedGrid grid;
    grid.widget->begin_drag();
    const QImage permitted = grid.view()->cursor().pixmap().toImage();
    EXPECT_EQ(grid.view()->cursor().pixmap().deviceIndependentSize(), QSizeF(32, 32));
    grid.widget->show_drop_permitted(false);
    EXPECT_NE(grid.view()->cursor().pixmap().toImage(), permitted);
    grid.press_key(Qt::Key_Escape);
    EXPECT_EQ(grid.view()->cursor().shape(), Qt::ArrowCursor);
}

} // namespace
