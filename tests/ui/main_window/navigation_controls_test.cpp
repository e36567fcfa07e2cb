#include "ui/main_window/frm_main.h"

#include "window_world.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <gtest/gtest.h>

namespace {

// Remembers the pointers that stood over the grid while it changed.
class PointerWatch : private table::GridObserver {
public:
    PointerWatch(table::GridModel& grid, const QWidget& viewport) : grid_(grid), viewport_(viewport) {
        grid_.add_observer(*this);
    }
    ~PointerWatch() { grid_.remove_observer(*this); }

    bool saw_hourglass = false;

private:
    void grid_changed(table::GridChange) override {
        saw_hourglass = saw_hourglass || viewport_.cursor().shape() == Qt::WaitCursor;
    }

    table::GridModel& grid_;
    const QWidget& viewport_;
};

class NavigationControls : public ::testing::Test, protected support::WindowWorld {
protected:
    void SetUp() override {
        load();
        window.activateWindow();
        settle();
    }
    void click(const char* name) {
        auto* widget = control<QWidget>(name);
        // A box is clicked on its mark, not behind its caption.
        const QPoint place =
            qobject_cast<QCheckBox*>(widget) ? QPoint(8, widget->height() / 2) : widget->rect().center();
        QTest::mouseClick(widget, Qt::LeftButton, {}, place);
        settle();
    }
    QComboBox* cboGoTo() { return control<QComboBox>("cboGoTo"); }
    // Opens the list and chooses an entry with the mouse.
    void choose_with_mouse(int entry) {
        cboGoTo()->showPopup();
        settle();
        QAbstractItemView* view = cboGoTo()->view();
        const QPoint place = view->visualRect(view->model()->index(entry, 0)).center();
        QTest::mouseMove(view->viewport(), place);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
        settle();
    }
    QString title(int column) {
        return QString::fromStdString(window.calendar().grid.msgSched.TextMatrix(0, column));
    }
    bool is_checked(const char* name) { return control<QCheckBox>(name)->isChecked(); }
    bool grid_has_focus() { return control<QWidget>("msgSched")->hasFocus(); }
    const QWidget& viewport() { return *control<ui::GridWidget>("msgSched")->viewport(); }
};

TEST_F(NavigationControls, StepByTheirButtons) {
    click("cmdNext");
    EXPECT_EQ(title(2), "Sunday Jan. 14");
    EXPECT_TRUE(grid_has_focus());
    EXPECT_EQ(control<QLabel>("lblYear")->text(), "2024");
    click("cmdPrevious");
    click("cmdPrevious");
    EXPECT_EQ(title(2), "Sunday Dec. 31");
    EXPECT_EQ(control<QLabel>("lblYear")->text(), "2023");
}

TEST_F(NavigationControls, SpeakOfWeeksInAllViews) {
    click("chkView_0");
    EXPECT_EQ(control<QToolButton>("cmdPrevious")->toolTip(), "Move backward one week");
    EXPECT_EQ(control<QToolButton>("cmdNext")->toolTip(), "Move forward one week");
}

TEST_F(NavigationControls, JumpAtAnEntryChosenWithTheMouse) {
    choose_with_mouse(12);
    EXPECT_EQ(cboGoTo()->currentText(), "Today + 1 month");
    EXPECT_EQ(title(2), "Sunday Feb. 4");
}

TEST_F(NavigationControls, JumpAtTheSameEntryAgain) {
    choose_with_mouse(9);
    click("cmdNext");
    EXPECT_EQ(cboGoTo()->currentIndex(), 0);
    choose_with_mouse(9);
    EXPECT_EQ(title(2), "Sunday Jan. 7");
}

TEST_F(NavigationControls, MoveThroughTheClosedListWithoutJumpingUntilEnter) {
    cboGoTo()->setFocus();
    for (int step = 0; step < 15; ++step)
        QTest::keyClick(cboGoTo(), Qt::Key_Down);
    EXPECT_EQ(cboGoTo()->currentText(), "Today + 1 year");
    EXPECT_EQ(title(2), "Sunday Jan. 7");
    QTest::keyClick(cboGoTo(), Qt::Key_Return);
    EXPECT_EQ(title(2), "Sunday Jan. 5");
}

TEST_F(NavigationControls, OpenTheListForAllItsEntriesAtOnce) {
    cboGoTo()->showPopup();
    settle();
    const QAbstractItemView* view = cboGoTo()->view();
    const QRect first = view->visualRect(view->model()->index(0, 0));
    const QRect last = view->visualRect(view->model()->index(15, 0));
    EXPECT_GE(first.top(), 0);
    EXPECT_GT(last.top(), first.top());
    EXPECT_LT(last.bottom(), view->viewport()->height());
    EXPECT_GE(view->viewport()->width(), view->sizeHintForColumn(0));
    cboGoTo()->hidePopup();
}

TEST_F(NavigationControls, ShowTheDayAndTheWeekByTheBoxes) {
    click("chkView_0");
    EXPECT_TRUE(is_checked("chkView_0"));
    EXPECT_FALSE(is_checked("chkView_1"));
    EXPECT_EQ(window.calendar().grid.msgSched.Cols(), 3);
    EXPECT_TRUE(grid_has_focus());
    click("chkView_1");
    EXPECT_FALSE(is_checked("chkView_0"));
    EXPECT_EQ(window.calendar().grid.msgSched.Cols(), 9);
    click("chkView_1");
    EXPECT_FALSE(is_checked("chkView_1"));
    EXPECT_EQ(window.calendar().grid.msgSched.Cols(), 9);
}

TEST_F(NavigationControls, ShowTheHalfOfTheDayByTheBoxes) {
    window.resize(900, 300);
    settle();
    click("chkAMPM_1");
    EXPECT_EQ(window.calendar().grid.msgSched.TopRow(), 5);
    click("chkAMPM_0");
    EXPECT_EQ(window.calendar().grid.msgSched.TopRow(), 1);
    EXPECT_FALSE(is_checked("chkAMPM_1"));
}

TEST_F(NavigationControls, OpenTheMiniCalendarAndGoWhereItSays) {
    click("cmdNext");
    bool was_shown = false;
    QTimer::singleShot(0, &window, [&] {
        QWidget* form = QApplication::activeModalWidget();
        was_shown = form && form->objectName() == "frmMiniCalendar";
        if (was_shown)
            QTest::keyClick(form->findChild<QWidget*>("qt_calendar_calendarview"), Qt::Key_Return);
    });
    cboGoTo()->setCurrentIndex(1);
    QTest::keyClick(cboGoTo(), Qt::Key_Return);
    EXPECT_TRUE(was_shown);
    EXPECT_EQ(title(2), "Sunday Jan. 7");
    EXPECT_FALSE(window.calendar().navigation.dates.bDateNowCancel);
}

TEST_F(NavigationControls, ShowTheHourglassOverTheGridWhileTheyWork) {
    const auto hourglass_stood_while = [&](const std::function<void()>& work) {
        PointerWatch watch(window.calendar().grid.msgSched, viewport());
        work();
        EXPECT_EQ(viewport().cursor().shape(), Qt::ArrowCursor);
        return watch.saw_hourglass;
    };
    EXPECT_TRUE(hourglass_stood_while([&] { click("cmdNext"); }));
    EXPECT_TRUE(hourglass_stood_while([&] { click("cmdPrevious"); }));
    EXPECT_TRUE(hourglass_stood_while([&] {
        cboGoTo()->setCurrentIndex(9);
        QTest::keyClick(cboGoTo(), Qt::Key_Return);
    }));
    EXPECT_TRUE(hourglass_stood_while([&] { click("chkView_0"); }));
    EXPECT_TRUE(hourglass_stood_while([&] { click("chkView_1"); }));
    EXPECT_TRUE(hourglass_stood_while([&] { control<QAction>("mnuFullRefresh")->trigger(); }));
    clock.time = clock.time.plus_minutes(1);
    database.now = clock.time.plus_minutes(1);
    add_meeting(11);
    EXPECT_TRUE(hourglass_stood_while([&] { control<QAction>("mnuRefresh")->trigger(); }));
    add_meeting(12);
    EXPECT_TRUE(hourglass_stood_while([&] {
        for (int minute = 0; minute < 15; ++minute)
            tmrRefresh.fire();
    }));
}

TEST_F(NavigationControls, AreReachedInTheirOrderByTheTabKey) {
    control<QWidget>("cmdPrevious")->setFocus();
    QStringList order;
    for (int step = 0; step < 9; ++step) {
        order << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order, (QStringList{"cmdPrevious", "cmdNext", "cboGoTo", "chkView_0", "chkView_1", "chkAMPM_0",
                                  "chkAMPM_1", "cboUsers", "msgSched"}))
        << order.join(' ').toStdString();
}

TEST_F(NavigationControls, AnswerTheirKeys) {
    QTest::keyClick(&window, Qt::Key_J, Qt::AltModifier);
    EXPECT_TRUE(cboGoTo()->hasFocus());
    QTest::keyClick(&window, Qt::Key_D, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return is_checked("chkView_0"); }));
    QTest::keyClick(&window, Qt::Key_W, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return is_checked("chkView_1"); }));
}

TEST_F(NavigationControls, FitBesideEachOtherHoweverNarrowTheWindowIsMade) {
    for (const int width : {1200, 680, 400, 134}) {
        window.resize(width, 500);
        settle();
        expect_controls_beside_each_other();
    }
}

TEST_F(NavigationControls, OpenTheManual) {
    control<QAction>("mnuUsers")->trigger();
    EXPECT_EQ(shell.opened, std::vector<std::string>{"/program/orvanta_manual.pdf"});
}

} // namespace
