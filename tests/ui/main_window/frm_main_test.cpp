#include "ui/main_window/frm_main.h"

#include "window_world.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QEventLoop>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <gtest/gtest.h>

#include <functional>

namespace {

class FrmMain : public ::testing::Test, protected support::WindowWorld {
protected:
    void choose(const char* entry) {
        auto* action = control<QAction>(entry);
        ASSERT_NE(action, nullptr);
        action->trigger();
        settle();
    }
    // A caption as it is shown, without the mark of its key.
    static QString plain(QString caption) { return caption.remove('&'); }
    QStringList menu(const char* name) {
        QStringList entries;
        for (const QAction* action : control<QMenu>(name)->actions())
            entries << (action->isSeparator() ? QStringLiteral("-") : plain(action->text()));
        return entries;
    }
    // The database closes while a procedure waits for the user; the end that wants to come ends the waiting.
    void close_database_while(const std::function<void()>& waits) {
        end_while([this] { events.OnDatabaseClose(); }, waits);
    }
    void end_while(const std::function<void()>& end, const std::function<void()>& waits) {
        QEventLoop outer;
        int ends_while_it_waits = -1, ends_behind_it = -1;
        QTimer::singleShot(0, &window, [&] {
            QTimer::singleShot(0, &window, [&] {
                end();
                ends_while_it_waits = program.ends;
            });
            waits();
            ends_behind_it = program.ends;
        });
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, [&] {
            if (program.ends > 0)
                outer.quit();
        });
        poll.start(5);
        outer.exec();
        EXPECT_EQ(ends_while_it_waits, 0);
        EXPECT_EQ(ends_behind_it, 0);
        EXPECT_EQ(program.ends, 1);
    }
};

TEST_F(FrmMain, HasItsControlsByName) {
    EXPECT_NE(control<ui::GridWidget>("msgSched"), nullptr);
    EXPECT_NE(control<QToolButton>("cmdPrevious"), nullptr);
    EXPECT_NE(control<QToolButton>("cmdNext"), nullptr);
    EXPECT_NE(control<QComboBox>("cboGoTo"), nullptr);
    EXPECT_NE(control<QComboBox>("cboUsers"), nullptr);
    EXPECT_NE(control<QPushButton>("cmdFilter"), nullptr);
    EXPECT_NE(control<QLabel>("lblYear"), nullptr);
    ASSERT_EQ(window.face().view_boxes.size(), 2U);
    EXPECT_EQ(plain(window.face().view_boxes[0]->text()), "Daily");
    EXPECT_EQ(plain(window.face().view_boxes[1]->text()), "Weekly");
    EXPECT_EQ(window.face().half_day_boxes.size(), 2U);
}

TEST_F(FrmMain, ShowsTheWeekOfTheDatabase) {
    load();
    EXPECT_TRUE(box.shown.empty());
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.windowTitle(), "Orvanta");
    EXPECT_TRUE(at(9).startsWith("Chris Smith")) << at(9).toStdString();
    EXPECT_EQ(at(10), "");
    EXPECT_EQ(control<QLabel>("lblYear")->text(), "2024");
    EXPECT_EQ(control<QComboBox>("cboUsers")->count(), 1);
    EXPECT_EQ(control<QComboBox>("cboUsers")->itemText(0), "Ann");
    EXPECT_EQ(control<QComboBox>("cboUsers")->currentIndex(), -1);
}

TEST_F(FrmMain, OffersWhatItCanDoAndNothingElse) {
    load();
    EXPECT_EQ(menu("mnuFile"), (QStringList{"Quick Refresh", "Full Refresh", "-", "Exit"}));
    EXPECT_EQ(menu("mnuOptionsMenu"), QStringList{"Days Off..."});
    EXPECT_EQ(menu("mnuHelp"), (QStringList{"User's manual", "-", "About..."}));
    for (const char* name :
         {"cmdPrevious", "cmdNext", "lblGoTo", "cboGoTo", "chkView_0", "chkView_1", "chkAMPM_0", "chkAMPM_1"})
        EXPECT_TRUE(control<QWidget>(name)->isVisible()) << name;
    EXPECT_FALSE(control<QWidget>("cmdFilter")->isVisible());
}

TEST_F(FrmMain, StaysHiddenWhenItsStartIsStopped) {
    program.is_second = true;
    load();
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(program.ends, 1);
    EXPECT_EQ(stored("WeeklyView"), "0");
    EXPECT_EQ(stored("Width"), "18000");
    EXPECT_EQ(stored("Height"), "11400");
}

TEST_F(FrmMain, ShowsWhatIsNewAfterAFullRefresh) {
    load();
    add_meeting(11);
    choose("mnuFullRefresh");
    EXPECT_TRUE(at(11).startsWith("Chris Smith"));
    EXPECT_TRUE(at(9).startsWith("Chris Smith"));
}

TEST_F(FrmMain, ShowsWhatIsNewAfterAQuickRefresh) {
    load();
    database.now = clock.time.plus_minutes(1);
    add_meeting(11);
    choose("mnuRefresh");
    EXPECT_TRUE(at(11).startsWith("Chris Smith"));
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(FrmMain, TellsAboutItself) {
    load();
    choose("mnuAbout");
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_EQ(box.shown[0].text, "Orvanta\r1.2.3");
}

TEST_F(FrmMain, EndsByItsExitEntry) {
    load();
    choose("mnuExit");
    EXPECT_EQ(program.ends, 1);
    EXPECT_EQ(stored("WeeklyView"), "1");
}

TEST_F(FrmMain, EndsOnceHoweverOftenItIsClosed) {
    load();
    window.close();
    window.close();
    choose("mnuExit");
    EXPECT_EQ(program.ends, 1);
}

TEST_F(FrmMain, EndsWithItsDatabaseAndStoresItsPlace) {
    load();
    window.move(100, 50);
    window.resize(900, 600);
    events.OnDatabaseClose();
    EXPECT_EQ(program.ends, 1);
    EXPECT_EQ(stored("Left"), "1500");
    EXPECT_EQ(stored("Top"), "750");
    EXPECT_EQ(stored("Width"), "13500");
    EXPECT_EQ(stored("Height"), "9000");
    EXPECT_EQ(stored("RowHeightWeekly1"), "820");
}

TEST_F(FrmMain, EndsAfterTheProcedureThatWaitsInABox) {
    load();
    QDialog dialog;
    close_database_while([&] { dialog.exec(); });
}

TEST_F(FrmMain, EndsAfterTheProcedureThatWaitsInAMenu) {
    load();
    QMenu menu;
    menu.addAction("Schedule");
    close_database_while([&] { menu.exec(QPoint(10, 10)); });
}

TEST_F(FrmMain, LeavesABoxThatOnlyTellsUntilItIsReadAndEndsThen) {
    load();
    QMessageBox told(QMessageBox::NoIcon, "Orvanta error", "The contact desk ended.", QMessageBox::Ok, &window);
    bool was_read = false;
    close_database_while([&] {
        QTimer::singleShot(200, &told, [&] { // the end has tried ten times by then
            EXPECT_TRUE(told.isVisible());
            was_read = true;
            QTest::mouseClick(told.button(QMessageBox::Ok), Qt::LeftButton);
        });
        told.exec();
    });
    EXPECT_TRUE(was_read);
}

TEST_F(FrmMain, ClosesABoxThatAsksAsByItsNo) {
    load();
    QMessageBox asked(QMessageBox::Question, "Auto-refresh", "Refresh?", QMessageBox::Yes | QMessageBox::No,
                      &window);
    int answer = QMessageBox::Yes;
    close_database_while([&] { answer = asked.exec(); });
    EXPECT_EQ(answer, QMessageBox::No);
}

TEST_F(FrmMain, AtOnceClosesABoxThatOnlyTellsAsWell) {
    load();
    QMessageBox told(QMessageBox::NoIcon, "Orvanta", "1.2.3", QMessageBox::Ok, &window);
    end_while([&] { window.unload_at_once(); }, [&] { told.exec(); });
}

TEST_F(FrmMain, AtOnceClosesABoxThatAnEndAlreadyWaitsFor) {
    load();
    QMessageBox told(QMessageBox::NoIcon, "Orvanta error", "The contact desk ended.", QMessageBox::Ok, &window);
    close_database_while([&] {
        QTimer::singleShot(100, &told, [&] {
            EXPECT_TRUE(told.isVisible());
            window.unload_at_once();
        });
        told.exec();
    });
}

TEST_F(FrmMain, HidesAndWaitsTwoSecondsWhenItRestartsACT) {
    load();
    window.calendar().departure.RestartAct = true;
    window.close();
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(program.ends, 0);
    tmr2.fire();
    tmr2.fire();
    EXPECT_EQ(program.ends, 1);
}

TEST_F(FrmMain, KeepsTheGridAsLargeAsItIsTold) {
    load();
    const QWidget* grid = control<QWidget>("msgSched");
    for (const QSize size : {QSize(1000, 600), QSize(700, 400), QSize(700, 245)}) {
        window.resize(size);
        settle();
        EXPECT_EQ(grid->width(), qRound((size.width() * 15 - 1000) / 15.0));
        EXPECT_EQ(grid->height(), qRound((size.height() * 15 - 1800) / 15.0));
        EXPECT_EQ(control<QLabel>("lblYear")->width(), grid->width());
        EXPECT_TRUE(grid->parentWidget()->rect().contains(grid->geometry())) << size.width();
    }
}

TEST_F(FrmMain, TakesUpItsPlaceAndState) {
    store("Left", "1500");
    store("Top", "3000");
    store("Width", "12000");
    store("Height", "7500");
    store("WindowState", "2");
    load();
    EXPECT_TRUE(window.isMaximized());
    window.setWindowState(Qt::WindowNoState);
    settle();
    EXPECT_EQ(window.pos(), QPoint(100, 200));
    EXPECT_EQ(window.size(), QSize(800, 500));
}

// The end of a box makes the window the active one again.
TEST_F(FrmMain, TellsOnceOfAStoredStateThatIsNone) {
    store("WindowState", "7");
    box.while_shown = [&] {
        ASSERT_LT(box.shown.size(), 10U);
        QEvent activation(QEvent::WindowActivate);
        QCoreApplication::sendEvent(&window, &activation);
    };
    load();
    EXPECT_EQ(boxes(), std::vector<std::string>{"Error 380: 'Invalid property value'"});
    window.resize(1000, 600);
    settle();
    EXPECT_FALSE(window.calendar().grid.bLoading);
}

TEST_F(FrmMain, ComesUpWithRoomForItsControlsBesideAStoredWidthThatIsTooSmall) {
    store("Width", "3000");
    store("Height", "6000");
    load();
    expect_controls_beside_each_other();
    EXPECT_EQ(control<QWidget>("msgSched")->width(), control<QWidget>("picBar")->width());
}

TEST_F(FrmMain, KeepsTheSizeOfItsDesignBesideAStoredOneThatIsTooSmall) {
    store("Width", "2000");
    store("Height", "9000");
    store("Left", "150");
    load();
    EXPECT_EQ(window.size(), QSize(1200, 760));
    EXPECT_EQ(window.x(), 10);
}

} // namespace
