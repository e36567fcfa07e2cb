#include "ui/grid_widget/grid_widget.h"

#include "support/line_at.h"
#include "ui/grid_widget/sample_grid.h"

#include <QScrollBar>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace {

// Counts how often a widget is painted.
class PaintCount : public QObject {
public:
    explicit PaintCount(QWidget* watched) { watched->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

void settle_fully() {
    for (int turn = 0; turn < 3; ++turn)
        QCoreApplication::processEvents();
}

TEST(GridWidget, PaintsOnceHoweverManyCellsChange) {
    ShownGrid grid;
    settle_fully();
    PaintCount paints(grid.view());
    for (int row = 1; row < grid.model.Rows(); ++row)
        for (int col = 0; col < grid.model.Cols(); ++col) {
            grid.model.Row(row);
            grid.model.Col(col);
            grid.model.Text("changed");
            grid.model.CellBackColor(0xc0e0ff);
        }
    EXPECT_EQ(paints.count, 0);
    settle_fully();
    EXPECT_EQ(paints.count, 1);
}

TEST(GridWidget, PaintsNothingWhenNothingChanges) {
    ShownGrid grid;
    settle_fully();
    PaintCount paints(grid.view());
    grid.model.Text(std::string(grid.model.Text()));
    settle_fully();
    EXPECT_EQ(paints.count, 0);
}

TEST(GridWidget, PaintsNothingWhileLocked) {
    ShownGrid grid;
    settle_fully();
    PaintCount paints(grid.view());
    grid.widget->lock_updates();
    grid.widget->lock_updates();
    grid.model.Text("changed");
    settle_fully();
    EXPECT_EQ(paints.count, 0);
    grid.widget->unlock_updates();
    settle_fully();
    EXPECT_EQ(paints.count, 1) << "locks aren't counted";
}

TEST(GridWidget, PaintsNothingWhileTheModelsRedrawIsOff) {
    ShownGrid grid;
    settle_fully();
    PaintCount paints(grid.view());
    grid.model.Redraw(false);
    grid.model.Text("changed");
    settle_fully();
    EXPECT_EQ(paints.count, 0);
    grid.model.Redraw(true);
    settle_fully();
    EXPECT_EQ(paints.count, 1);
}

TEST(GridWidget, StaysLockedWhenRedrawComesBackOn) {
    ShownGrid grid;
    grid.widget->lock_updates();
    grid.model.Redraw(false);
    grid.model.Redraw(true);
    EXPECT_FALSE(grid.view()->updatesEnabled());
    grid.widget->unlock_updates();
    EXPECT_TRUE(grid.view()->updatesEnabled());
}

TEST(GridWidget, StopsListeningWhenItGoes) {
    ShownGrid grid;
    grid.widget.reset();
    grid.model.Text("changed");
    EXPECT_EQ(grid.model.Text(), "changed");
}

TEST(GridWidget, ScrollsTheModelByItsScrollBars) {
    ShownGrid grid;
    grid.widget->verticalScrollBar()->setValue(4);
    grid.widget->horizontalScrollBar()->setValue(1);
    EXPECT_EQ(grid.model.TopRow(), 5);
    EXPECT_EQ(grid.model.LeftCol(), 3);
    EXPECT_EQ(grid.widget->cell_rect(5, 3).topLeft(), QPoint(200, 20));
    EXPECT_TRUE(grid.widget->cell_rect(4, 3).isEmpty());
}

TEST(GridWidget, KeepsTitlesInPlaceWhenItScrolls) {
    ShownGrid grid;
    write(grid.model, 0, 0, "Corner");
    const QRect corner(0, 0, 200, 20);
    ShownGrid::settle();
    const QImage before = grid.picture().copy(corner);
    grid.widget->verticalScrollBar()->setValue(6);
    grid.widget->horizontalScrollBar()->setValue(1);
    EXPECT_EQ(grid.picture().copy(corner), before);
    EXPECT_EQ(grid.widget->cell_rect(0, 0), QRect(0, 0, 100, 20));
}

TEST(GridWidget, MovesItsScrollBarsWithTheModel) {
    ShownGrid grid;
    grid.model.TopRow(9);
    ShownGrid::settle();
    EXPECT_EQ(grid.widget->verticalScrollBar()->value(), 8);
}

TEST(GridWidget, ScrollsNoFurtherThanToTheLastRow) {
    ShownGrid grid;
    grid.widget->verticalScrollBar()->setValue(1000);
    EXPECT_FALSE(grid.widget->cell_rect(39, 2).isEmpty());
    EXPECT_LE(grid.widget->cell_rect(39, 2).bottom(), grid.view()->height() - 1);
    EXPECT_GT(grid.widget->cell_rect(39, 2).bottom(), grid.view()->height() - 41);
}

TEST(GridWidget, ScrollsBackWhenTheGridGetsShorter) {
    ShownGrid grid;
    grid.widget->verticalScrollBar()->setValue(1000);
    grid.model.Rows(6);
    ShownGrid::settle();
    EXPECT_EQ(grid.model.TopRow(), 1);
    EXPECT_EQ(grid.widget->verticalScrollBar()->maximum(), 0);
}

TEST(GridWidget, SkipsHiddenColumnsWhenItScrolls) {
    ShownGrid grid;
    grid.model.ColWidth(3, 0);
    grid.widget->resize(420, 400);
    ShownGrid::settle();
    grid.widget->horizontalScrollBar()->setValue(1);
    EXPECT_EQ(grid.model.LeftCol(), 4);
}

TEST(GridWidget, ScrollsByTheWheel) {
    ShownGrid grid;
    const QPoint place = grid.middle_of(3, 3);
    QWheelEvent wheel(place, grid.view()->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(grid.view(), &wheel);
    EXPECT_GT(grid.model.TopRow(), 1);
}

TEST(GridWidget, KeepsTheCurrentCellVisibleByKeys) {
    ShownGrid grid;
    for (int press = 0; press < 20; ++press)
        grid.press_key(Qt::Key_Down);
    EXPECT_EQ(grid.model.Row(), 21);
    EXPECT_TRUE(grid.view()->rect().contains(grid.widget->cell_rect(21, 2)));
    grid.press_key(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(grid.model.TopRow(), 1);
    grid.press_key(Qt::Key_End);
    EXPECT_TRUE(grid.view()->rect().contains(grid.widget->cell_rect(1, 7)));
}

TEST(GridWidget, MovesByThePageThatShows) {
    ShownGrid grid;
    const int rows_in_view = (grid.view()->height() - 20) / 40;
    grid.press_key(Qt::Key_PageDown);
    EXPECT_EQ(grid.model.Row(), 1 + rows_in_view);
}

TEST(GridWidget, KeepsTheFarEndVisibleWhenShiftExtends) {
    ShownGrid grid;
    for (int press = 0; press < 15; ++press)
        grid.press_key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(grid.selection(), "1,2 to 16,2");
    EXPECT_TRUE(grid.view()->rect().contains(grid.widget->cell_rect(16, 2)));
}

TEST(GridWidget, TellsOfKeysThatMoveTheCursor) {
    ShownGrid grid;
    int moves = 0;
    QObject::connect(grid.widget.get(), &ui::GridWidget::cursor_moved, [&moves] { ++moves; });
    grid.press_key(Qt::Key_Right);
    grid.press_key(Qt::Key_A);
    grid.model.Row(3);
    EXPECT_EQ(moves, 1);
}

TEST(GridWidget, TakesEnterForTheDoubleClick) {
    ShownGrid grid;
    int clicks = 0;
    QObject::connect(grid.widget.get(), &ui::GridWidget::double_clicked, [&clicks] { ++clicks; });
    grid.press_key(Qt::Key_Return);
    grid.press_key(Qt::Key_Enter);
    EXPECT_EQ(clicks, 2);
}

TEST(GridWidget, ShowsTheCurrentCellBeforeEnterIsTaken) {
    ShownGrid grid;
    grid.model.Row(30);
    grid.press_key(Qt::Key_Return);
    EXPECT_FALSE(grid.widget->cell_rect(30, 2).isEmpty());
}

TEST(GridWidget, TakesNoKeyForACellOfAHiddenColumn) {
    ShownGrid grid;
    int told = 0;
    QObject::connect(grid.widget.get(), &ui::GridWidget::double_clicked, [&told] { ++told; });
    QObject::connect(grid.widget.get(), &ui::GridWidget::menu_requested, [&told] { ++told; });
    grid.model.ColWidth(2, 0);
    grid.press_key(Qt::Key_Return);
    grid.press_key(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(told, 0);
    grid.press_key(Qt::Key_Right);
    grid.press_key(Qt::Key_Return);
    EXPECT_EQ(told, 1);
}

// The places at which a menu was asked for.
std::vector<QPoint> asked_menus(ShownGrid& grid, const std::function<void()>& act) {
    std::vector<QPoint> places;
    QObject::connect(grid.widget.get(), &ui::GridWidget::menu_requested,
                     [&places](int x, int y) { places.emplace_back(x, y); });
    act();
    return places;
}

TEST(GridWidget, AsksForTheMenuOverTheCurrentCell) {
    ShownGrid grid;
    const auto places = asked_menus(grid, [&grid] {
        QContextMenuEvent menu_key(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QCoreApplication::sendEvent(grid.widget.get(), &menu_key);
        grid.press_key(Qt::Key_F10, Qt::ShiftModifier);
    });
    ASSERT_EQ(places.size(), 2u);
    EXPECT_EQ(places[0], places[1]);
    EXPECT_EQ(support::line_at(grid.model.columns(), places[0].x()), 2);
    EXPECT_EQ(support::line_at(grid.model.rows(), places[0].y()), 1);
}

TEST(GridWidget, ShowsTheCurrentCellBeforeItsMenu) {
    ShownGrid grid;
    grid.model.Row(30);
    asked_menus(grid, [&grid] { grid.press_key(Qt::Key_F10, Qt::ShiftModifier); });
    EXPECT_FALSE(grid.widget->cell_rect(30, 2).isEmpty());
}

TEST(GridWidget, LeavesTheMouseItsOwnMenu) {
    ShownGrid grid;
    const auto places = asked_menus(grid, [&grid] {
        QContextMenuEvent by_mouse(QContextMenuEvent::Mouse, grid.middle_of(3, 3), QPoint());
        QCoreApplication::sendEvent(grid.view(), &by_mouse);
    });
    EXPECT_TRUE(places.empty());
}

} // namespace
