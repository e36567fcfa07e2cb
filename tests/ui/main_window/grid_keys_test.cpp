#include "ui/main_window/grid_hands.h"

#include "window_world.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>

namespace {

using act::CommandNumber;

// Real key events on the grid of the window. Ann's meeting of Wednesday at 9:00 stands in row 2, column 5.
class GridKeys : public ::testing::Test, protected support::WindowWorld {
protected:
    GridKeys() {
        load();
        window.resize(1250, 800);
        grid = control<ui::GridWidget>("msgSched");
        window.activateWindow();
        grid->setFocus();
        settle();
        settle();
    }
    void click(int row, int col) {
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->cell_rect(row, col).center());
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(grid, key, modifiers); }
    // As the platform sends it for the Menu key.
    void press_menu_key() {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QCoreApplication::sendEvent(grid, &event);
    }
    // What the menu offers when the key opens it, and where it opens. Then it is closed by what is done with it.
    struct Opened {
        QStringList entries;
        QPoint place;
    };
    Opened menu_opened_by(const std::function<void()>& key, const std::function<void(QMenu&)>& use = close_menu) {
        Opened opened;
        QTimer::singleShot(0, &window, [&] {
            auto* menu = control<QMenu>("mnuPopup");
            ASSERT_EQ(QApplication::activePopupWidget(), menu);
            opened.place = menu->pos();
            for (const QAction* action : menu->actions())
                if (action->isVisible() && action->isEnabled() && !action->isSeparator())
                    opened.entries << action->text();
            use(*menu);
        });
        key();
        return opened;
    }
    static void close_menu(QMenu& menu) { QTest::keyClick(&menu, Qt::Key_Escape); }
    static void choose_last(QMenu& menu) {
        QTest::keyClick(&menu, Qt::Key_Up);
        QTest::keyClick(&menu, Qt::Key_Return);
    }
    QPoint middle_on_screen(int row, int col) const {
        return grid->viewport()->mapToGlobal(grid->cell_rect(row, col).center());
    }
    const grid::clsMsgSchedCell& selected() { return window.calendar().grid.selection.selected(); }
    std::vector<CommandNumber> commands() { return server.application().commands; }

    ui::GridWidget* grid;
};

TEST_F(GridKeys, ArrowsMoveTheCellThatCommandsWorkOn) {
    click(2, 5);
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    EXPECT_EQ(selected().Row(), 3);
    EXPECT_EQ(selected().Col(), 6);
    press(Qt::Key_Left);
    press(Qt::Key_Up);
    EXPECT_EQ(selected().Row(), 2);
    EXPECT_EQ(selected().Col(), 5);
    EXPECT_EQ(selected().ContactID(), chris);
}

TEST_F(GridKeys, EnterOnAnEmptyCellSchedulesAsADoubleClickDoes) {
    click(2, 5);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(commands(), std::vector{CommandNumber::schedule_activity});
    EXPECT_EQ(shell.started, std::vector<std::string>{"ActivityWin"});
    EXPECT_EQ(values.read("Activity", "Time", ""), "11:00:00 AM");
}

TEST_F(GridKeys, EnterOnAnActivityGoesToItsContactAsADoubleClickDoes) {
    click(1, 5);
    press(Qt::Key_Down);
    press(Qt::Key_Enter);
    EXPECT_EQ(server.application().shown_contact, chris);
    EXPECT_TRUE(shell.started.empty());
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(GridKeys, EnterOnAClickedDaysTitleOpensTheDay) {
    click(0, 5);
    press(Qt::Key_Return);
    settle();
    EXPECT_EQ(window.calendar().grid.layout.NumDays(), 1);
    EXPECT_EQ(window.calendar().grid.layout.StartDate(), values::DateTime::of(2024, 1, 10));
    EXPECT_TRUE(commands().empty());
}

TEST_F(GridKeys, EnterAfterAnArrowMeansTheCellAndNoLongerTheClickedTitle) {
    click(0, 5);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(window.calendar().grid.layout.NumDays(), 7);
    EXPECT_EQ(commands(), std::vector{CommandNumber::schedule_activity});
}

TEST_F(GridKeys, TheMenuKeyOpensTheMenuAtTheCurrentCell) {
    click(2, 5);
    const Opened opened = menu_opened_by([this] { press_menu_key(); });
    EXPECT_EQ(opened.entries,
              (QStringList{"Reschedule Activity...", "View/Edit Activity Details...", "Send Activity...",
                           "Clear Activity...", "Create Lookup (This cell)", "Create Lookup (All cells)"}));
    EXPECT_EQ(opened.place, middle_on_screen(2, 5));
    EXPECT_EQ(selected().ContactID(), chris);
}

TEST_F(GridKeys, ShiftWithF10OpensTheSameMenu) {
    click(2, 5);
    press(Qt::Key_Down);
    const Opened opened = menu_opened_by([this] { press(Qt::Key_F10, Qt::ShiftModifier); });
    EXPECT_EQ(opened.entries, (QStringList{"Schedule", "Create Lookup (All cells)"}));
    EXPECT_EQ(opened.place, middle_on_screen(3, 5));
}

TEST_F(GridKeys, TheMenuKeyOnASelectionByShiftAndArrowsLooksUpItsContacts) {
    click(1, 5);
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Right, Qt::ShiftModifier);
    const Opened opened = menu_opened_by([this] { press_menu_key(); }, choose_last);
    EXPECT_EQ(opened.entries, QStringList{"Create Lookup (Selection)"});
    EXPECT_EQ(server.application().lookup, chris);
    EXPECT_TRUE(window.isMinimized());
}

TEST_F(GridKeys, TheMenuKeyOnAClickedTitleOpensTheTitlesMenu) {
    click(0, 5);
    const Opened opened = menu_opened_by([this] { press_menu_key(); });
    EXPECT_EQ(opened.entries, (QStringList{"Create Lookup (Column)", "Reset Column Width"}));
}

TEST_F(GridKeys, EscapeClosesTheMenuAndNothingHappens) {
    click(2, 5);
    menu_opened_by([this] { press_menu_key(); });
    EXPECT_TRUE(commands().empty());
    EXPECT_EQ(server.application().lookup, "");
    EXPECT_EQ(at(9), "Chris Smith");
}

TEST_F(GridKeys, EscapeGivesUpADragAndLeavesTheGridAsItWas) {
    const QPoint from = grid->cell_rect(2, 5).center(), to = grid->cell_rect(4, 6).center();
    const auto before = database.store().revision();
    QTest::mousePress(grid->viewport(), Qt::LeftButton, Qt::ControlModifier, from);
    ASSERT_TRUE(grid->is_dragging());
    QMouseEvent move(QEvent::MouseMove, to, grid->viewport()->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::ControlModifier);
    QCoreApplication::sendEvent(grid->viewport(), &move);
    press(Qt::Key_Escape);
    EXPECT_FALSE(grid->is_dragging());
    QTest::mouseRelease(grid->viewport(), Qt::LeftButton, Qt::ControlModifier, to);
    EXPECT_EQ(database.store().revision(), before);
    EXPECT_EQ(at(9), "Chris Smith");
    EXPECT_EQ(grid->model().Row(), 2);
    EXPECT_EQ(grid->model().Col(), 5);
    EXPECT_TRUE(box.shown.empty());
}

} // namespace
