#include "ui/dialogs/frm_mini_calendar.h"

#include "support/fake_window.h"
#include "support/platform_world.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QTableView>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

namespace {

using values::DateTime;

class FrmMiniCalendar : public ::testing::Test, protected support::PlatformWorld {
protected:
    FrmMiniCalendar() {
        dates.datNow = DateTime::of(2024, 1, 10);
        dates.datCurrentNow = DateTime::of(2024, 2, 14); // a Wednesday
    }
    void open() {
        form = std::make_unique<ui::frmMiniCalendar>(here, values, dates, nullptr);
        form->show();
        QCoreApplication::processEvents();
    }
    QCalendarWidget* mvwMonth() { return form->findChild<QCalendarWidget*>("mvwMonth"); }
    // Clicks the day that is so many after the selected one, in its week.
    void click_day(int days) {
        auto* view = form->findChild<QTableView*>("qt_calendar_calendarview");
        ASSERT_NE(view, nullptr);
        const QModelIndex selected = view->currentIndex();
        const QModelIndex day = selected.sibling(selected.row(), selected.column() + days);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(day).center());
    }
    void click(QPoint place, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(form.get(), button, {}, place);
    }
    QPoint close_box() { return {form->width() - 4, 4}; }
    void drag(QPoint from, QPoint by) {
        QTest::mousePress(form.get(), Qt::LeftButton, {}, from);
        QTest::mouseMove(form.get(), from + by);
        QCoreApplication::processEvents();
        QTest::mouseRelease(form.get(), Qt::LeftButton, {}, from);
    }
    QColor title_color() { return form->grab().toImage().pixelColor(5, 4); }

    support::FakeWindow window;
    const host::Platform here{machine(), window};
    forms::JumpDates dates;
    std::unique_ptr<ui::frmMiniCalendar> form;
};

TEST_F(FrmMiniCalendar, OpensOnTheGivenDate) {
    open();
    EXPECT_EQ(mvwMonth()->selectedDate(), QDate(2024, 2, 14));
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(FrmMiniCalendar, IsAMonthUnderAStripOfEightPixelsAndNothingElse) {
    open();
    EXPECT_TRUE(form->windowFlags() & Qt::FramelessWindowHint);
    EXPECT_EQ(mvwMonth()->y(), 8);
    EXPECT_EQ(mvwMonth()->geometry().bottom() + 2, form->height());
}

TEST_F(FrmMiniCalendar, TakesOneClickOnADayToPickItAndClose) {
    open();
    click_day(2);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(dates.datNow, DateTime::of(2024, 2, 16));
    EXPECT_FALSE(dates.bDateNowCancel);
}

TEST_F(FrmMiniCalendar, TakesEnterForThePickOfTheSelectedDay) {
    open();
    auto* view = form->findChild<QTableView*>("qt_calendar_calendarview");
    QTest::keyClick(view, Qt::Key_Right);
    QTest::keyClick(view, Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(dates.datNow, DateTime::of(2024, 2, 15));
    EXPECT_FALSE(dates.bDateNowCancel);
}

TEST_F(FrmMiniCalendar, IsCancelledByItsCloseBox) {
    open();
    click(close_box());
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(dates.bDateNowCancel);
    EXPECT_EQ(dates.datNow, DateTime::of(2024, 1, 10));
}

TEST_F(FrmMiniCalendar, IsCancelledByTheEndOfTheProgram) {
    open();
    form->close();
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(dates.bDateNowCancel);
}

TEST_F(FrmMiniCalendar, StaysAtEscapeAndAtOtherButtons) {
    open();
    QTest::keyClick(form->findChild<QTableView*>("qt_calendar_calendarview"), Qt::Key_Escape);
    QTest::keyClick(form.get(), Qt::Key_Escape);
    click(close_box(), Qt::RightButton);
    EXPECT_TRUE(form->isVisible());
}

TEST_F(FrmMiniCalendar, IsDraggedByItsStripBesideTheCloseBox) {
    open();
    const QPoint before = form->pos();
    drag({20, 4}, {30, 25});
    EXPECT_EQ(form->pos(), before + QPoint(30, 25));
    EXPECT_TRUE(form->isVisible());
}

TEST_F(FrmMiniCalendar, IgnoresAPressBelowTheStrip) {
    open();
    const QPoint before = form->pos();
    drag({20, 8}, {30, 25});
    drag({form->width() - 4, 8}, {30, 25});
    EXPECT_EQ(form->pos(), before);
    EXPECT_TRUE(form->isVisible());
}

TEST_F(FrmMiniCalendar, TurnsItsMonthWithoutMovingOrClosing) {
    open();
    const QPoint before = form->pos();
    QTest::mouseClick(form->findChild<QToolButton*>("qt_calendar_nextmonth"), Qt::LeftButton);
    EXPECT_EQ(mvwMonth()->monthShown(), 3);
    EXPECT_EQ(form->pos(), before);
    EXPECT_TRUE(form->isVisible());
}

TEST_F(FrmMiniCalendar, OpensAThirdOfAnInchFromTheCornerAtFirst) {
    open();
    EXPECT_EQ(form->pos(), QPoint(33, 33));
}

TEST_F(FrmMiniCalendar, OpensWhereItWasLeftAfterAPick) {
    open();
    form->move(120, 90);
    click_day(1);
    EXPECT_EQ(stored("MiniCalLeft"), "1800");
    EXPECT_EQ(stored("MiniCalTop"), "1350");
    open();
    EXPECT_EQ(form->pos(), QPoint(120, 90));
}

TEST_F(FrmMiniCalendar, OpensWhereItWasLeftAfterACancel) {
    open();
    form->move(60, 150);
    click(close_box());
    EXPECT_EQ(stored("MiniCalLeft"), "900");
    EXPECT_EQ(stored("MiniCalTop"), "2250");
}

TEST_F(FrmMiniCalendar, TellsOfAPlaceThatIsNoNumberAndOpensAllTheSame) {
    store("MiniCalTop", "high");
    open();
    EXPECT_EQ(boxes(), std::vector<std::string>{"Error 13: 'Type mismatch'"});
    EXPECT_TRUE(form->isVisible());
}

TEST_F(FrmMiniCalendar, ShowsByTheColourOfItsStripWhetherItIsActive) {
    open();
    QEvent activate(QEvent::WindowActivate), deactivate(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(form.get(), &activate);
    const QColor active = title_color();
    QCoreApplication::sendEvent(form.get(), &deactivate);
    EXPECT_NE(title_color(), active);
    QCoreApplication::sendEvent(form.get(), &activate);
    EXPECT_EQ(title_color(), active);
}

TEST_F(FrmMiniCalendar, HasARaisedCloseBoxAtTheStripsRightEnd) {
    open();
    const QImage picture = form->grab().toImage();
    const int right = form->width();
    EXPECT_NE(picture.pixelColor(right - 4, 4), picture.pixelColor(right - 8, 4));
    EXPECT_EQ(picture.pixelColor(right - 1, 4), picture.pixelColor(right - 8, 4));
    EXPECT_GT(picture.pixelColor(right - 7, 1).lightness(), picture.pixelColor(right - 2, 6).lightness());
}

TEST(PlaceInView, IsThePlaceAsLongAsAnythingOfTheWindowIsOnAScreen) {
    const QList<QRect> screens{{0, 0, 800, 600}, {800, 0, 800, 600}};
    EXPECT_EQ(ui::place_in_view({-190, 10, 200, 150}, screens), QPoint(-190, 10));
    EXPECT_EQ(ui::place_in_view({1590, 590, 200, 150}, screens), QPoint(1590, 590));
}

TEST(PlaceInView, IsAtTheNearestEdgeOfTheFirstScreenForAWindowBeyondThemAll) {
    const QList<QRect> screens{{0, 0, 800, 600}};
    EXPECT_EQ(ui::place_in_view({-500, 10, 200, 150}, screens), QPoint(0, 10));
    EXPECT_EQ(ui::place_in_view({900, 10, 200, 150}, screens), QPoint(600, 10));
    EXPECT_EQ(ui::place_in_view({5000, 5000, 200, 150}, screens), QPoint(600, 450));
    EXPECT_EQ(ui::place_in_view({5000, 0, 900, 700}, screens), QPoint(0, 0));
}

} // namespace
