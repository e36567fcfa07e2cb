#include "desk/windows/time_field.h"

#include "core/values/failure.h"
#include "desk_fixture.h"
#include "support/locales.h"

using values::DateTime;
using windows::TimeField;

namespace {

class TimeFieldTest : public testing::Test {
protected:
    TimeFieldTest() {
        field.set_locale(values::english_us());
        field.show();
    }
    void retype(const char* text) {
        field.lineEdit()->selectAll();
        QTest::keyClicks(field.lineEdit(), text);
    }
    TimeField field;
};

} // namespace

TEST_F(TimeFieldTest, ShowsATimeBetweenTheHalfHoursToo) {
    field.set_time(DateTime::of(2024, 3, 6, 14, 5));
    EXPECT_EQ(field.currentText(), "2:05 PM");
    EXPECT_EQ(field.time(), DateTime::time_of_day(14, 5));
}

TEST_F(TimeFieldTest, KeepsItsSecondsUntilAnotherTimeIsTyped) {
    field.set_time(DateTime::time_of_day(14, 5, 59));
    EXPECT_EQ(field.time(), DateTime::time_of_day(14, 5, 59));
    retype("2:06 PM");
    EXPECT_EQ(field.time(), DateTime::time_of_day(14, 6));
}

TEST_F(TimeFieldTest, TheKeysGoThroughTheHalfHours) {
    field.set_time(DateTime::time_of_day(9, 30));
    QTest::keyClick(&field, Qt::Key_Down);
    EXPECT_EQ(field.time(), DateTime::time_of_day(10, 0));
    EXPECT_EQ(field.count(), 48);
}

TEST_F(TimeFieldTest, TakesTheUsualForms) {
    for (const char* text : {"3:15 PM", "3:15 pm", "15:15"}) {
        retype(text);
        EXPECT_EQ(field.time(), DateTime::time_of_day(15, 15)) << text;
    }
}

TEST_F(TimeFieldTest, WhatIsNoTimeFails) {
    for (const char* text : {"noon", "25:00", "3/6/2024 9:00 AM"}) {
        retype(text);
        EXPECT_THROW(field.time(), values::Failure) << text;
    }
}

TEST_F(TimeFieldTest, ShowsTwentyFourHoursWhereTheLocaleDoes) {
    TimeField german;
    german.set_locale(support::german());
    german.set_time(DateTime::time_of_day(14, 5));
    EXPECT_EQ(german.currentText(), "14:05");
    EXPECT_EQ(german.itemText(47), "23:30");
}
