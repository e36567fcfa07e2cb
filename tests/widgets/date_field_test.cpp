#include "widgets/date_field.h"

#include "core/values/failure.h"
#include "support/locales.h"

#include <QAction>
#include <QCalendarWidget>
#include <QTest>
#include <gtest/gtest.h>

using values::DateTime;
using widgets::DateField;

namespace {

class DateFieldTest : public testing::Test {
protected:
    DateFieldTest() {
        QObject::connect(&field, &DateField::date_changed, [this] { ++changes; });
        field.set_date(DateTime::of(2024, 3, 6, 14, 30));
        field.show();
    }
    void retype(const char* text) {
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, text);
        QTest::keyClick(&field, Qt::Key_Return);
    }
    DateField field;
    int changes = 0;
};

} // namespace

TEST_F(DateFieldTest, ShowsTheDateWithoutItsTime) {
    EXPECT_EQ(field.text(), "3/6/2024");
    EXPECT_EQ(field.date(), DateTime::of(2024, 3, 6));
}

TEST_F(DateFieldTest, WritesAndReadsTheDatesOfItsLocale) {
    DateField german;
    german.set_locale(support::german());
    german.set_date(DateTime::of(2024, 3, 6));
    EXPECT_EQ(german.text(), "06.03.2024");
    german.setText("7.4.2024");
    EXPECT_EQ(german.date(), DateTime::of(2024, 4, 7));
}

TEST_F(DateFieldTest, TakesOtherFormsAndWritesThemInItsOwn) {
    retype("2024-04-07");
    EXPECT_EQ(field.text(), "4/7/2024");
    EXPECT_EQ(field.date(), DateTime::of(2024, 4, 7));
    EXPECT_EQ(changes, 1);
    retype("4/7/2024");
    EXPECT_EQ(changes, 1);
}

TEST_F(DateFieldTest, WhatIsNoDateStaysAsItWasTypedAndFails) {
    for (const char* text : {"soon", "13/45/2024", "9:30 AM"}) {
        retype(text);
        EXPECT_EQ(field.text(), text);
        EXPECT_THROW(field.date(), values::Failure) << text;
        EXPECT_EQ(field.known_date(), DateTime::of(2024, 3, 6));
    }
    EXPECT_EQ(changes, 0);
}

TEST_F(DateFieldTest, AnEmptyLineIsNoDateAndNoFailure) {
    retype("");
    EXPECT_EQ(field.date(), std::nullopt);
    field.set_date(std::nullopt);
    EXPECT_EQ(field.text(), "");
}

TEST_F(DateFieldTest, TheKeysStepByDaysAcrossTheMonth) {
    field.set_date(DateTime::of(2024, 2, 29));
    QTest::keyClick(&field, Qt::Key_Up);
    EXPECT_EQ(field.text(), "3/1/2024");
    QTest::keyClick(&field, Qt::Key_Down);
    QTest::keyClick(&field, Qt::Key_Down);
    EXPECT_EQ(field.text(), "2/28/2024");
    EXPECT_EQ(changes, 3);
}

TEST_F(DateFieldTest, ADayIsPickedFromTheCalendar) {
    EXPECT_FALSE(field.actions().front()->icon().pixmap(16).isNull());
    field.actions().front()->trigger();
    auto* calendar = field.findChild<QCalendarWidget*>();
    ASSERT_NE(calendar, nullptr);
    EXPECT_EQ(calendar->selectedDate(), QDate(2024, 3, 6));
    QWidget* days = calendar->findChild<QWidget*>("qt_calendar_calendarview");
    QTest::keyClick(days, Qt::Key_Right);
    QTest::keyClick(days, Qt::Key_Return);
    EXPECT_EQ(field.text(), "3/7/2024");
    EXPECT_FALSE(calendar->isVisible());
}

TEST_F(DateFieldTest, TheKeysStayWithinTheDatesThatThereAre) {
    field.set_date(DateTime::of(9999, 12, 31));
    QTest::keyClick(&field, Qt::Key_Up);
    EXPECT_EQ(field.date(), DateTime::of(9999, 12, 31));
    field.set_date(DateTime::of(100, 1, 1));
    QTest::keyClick(&field, Qt::Key_Down);
    EXPECT_EQ(field.known_date(), DateTime::of(100, 1, 1));
}

TEST_F(DateFieldTest, TheCalendarOffersNoDateThatThereIsNot) {
    field.set_date(DateTime::of(9999, 12, 31));
    field.actions().front()->trigger();
    const auto* calendar = field.findChild<QCalendarWidget*>();
    EXPECT_EQ(calendar->minimumDate(), QDate(100, 1, 1));
    EXPECT_EQ(calendar->maximumDate(), QDate(9999, 12, 31));
}

// In a locale of two digits for the year, its text alone is another century's.
TEST_F(DateFieldTest, TheDateThatItWasGivenStaysItsOwnUntilAnotherIsTyped) {
    values::Locale two_digits = values::english_us();
    two_digits.short_date = "M/d/yy";
    field.set_locale(two_digits);
    field.set_date(DateTime::of(1905, 3, 6));
    EXPECT_EQ(field.date(), DateTime::of(1905, 3, 6));
}
