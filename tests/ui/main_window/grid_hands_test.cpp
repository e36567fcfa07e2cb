#include "ui/main_window/grid_hands.h"

#include "window_world.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

// Real mouse events on the grid of the window.
class GridHands : public ::testing::Test, protected support::WindowWorld {
protected:
    GridHands() {
        load();
        window.resize(1250, 800);
        settle();
        settle();
        grid = control<ui::GridWidget>("msgSched");
    }
    void send(QEvent::Type type, QPoint place, Qt::MouseButton button, Qt::MouseButtons held,
              Qt::KeyboardModifiers keys = Qt::NoModifier) {
        QMouseEvent event(type, place, grid->viewport()->mapToGlobal(place), button, held, keys);
        QCoreApplication::sendEvent(grid->viewport(), &event);
    }
    QPoint middle(int row, int col) const {
        EXPECT_FALSE(grid->cell_rect(row, col).isEmpty());
        return grid->cell_rect(row, col).center();
    }

    ui::GridWidget* grid;
};

TEST_F(GridHands, MoveAnActivityByCtrlAndTheMouse) {
    const QPoint from = middle(2, 5), to = middle(4, 6);
    send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_TRUE(grid->is_dragging());
    send(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, Qt::ControlModifier);
    send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton, Qt::ControlModifier);
    const auto activities = database.store().activities({});
    ASSERT_EQ(activities.size(), 1U);
    EXPECT_EQ(activities[0].start, values::DateTime::of(2024, 1, 11, 11));
    EXPECT_EQ(at(9), "");
}

TEST_F(GridHands, MinimiseTheWindowForALookup) {
    send(QEvent::MouseButtonPress, middle(2, 5), Qt::LeftButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, middle(2, 5), Qt::LeftButton, Qt::NoButton);
    EXPECT_FALSE(window.isMinimized());
    window.calendar().interaction.lookups.mnupopGoto_Click();
    EXPECT_TRUE(window.isMinimized());
    EXPECT_EQ(server.application().lookup, chris);
}

TEST_F(GridHands, ShowOnARightClickWhatCanBeDoneWithAnActivity) {
    QStringList entries;
    QTimer::singleShot(0, &window, [&] {
        for (const QAction* action : control<QMenu>("mnuPopup")->actions())
            if (action->isVisible() && action->isEnabled() && !action->isSeparator())
                entries << action->text();
        QApplication::activePopupWidget()->close();
    });
    send(QEvent::MouseButtonPress, middle(2, 5), Qt::RightButton, Qt::RightButton);
    EXPECT_EQ(entries,
              (QStringList{"Reschedule Activity...", "View/Edit Activity Details...", "Send Activity...",
                           "Clear Activity...", "Create Lookup (This cell)", "Create Lookup (All cells)"}));
}

} // namespace
