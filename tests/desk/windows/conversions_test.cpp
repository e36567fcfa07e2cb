#include "desk/windows/conversions.h"

#include "support/locales.h"

#include <gtest/gtest.h>

using values::DateTime;
using windows::duration_text;

TEST(Conversions, ADateAndATimeGoToQtAndBackUnchanged) {
    const auto moment = DateTime::of(2024, 2, 29, 23, 59, 58);
    EXPECT_EQ(windows::date_of(moment), QDate(2024, 2, 29));
    EXPECT_EQ(windows::time_of(moment), QTime(23, 59, 58));
    EXPECT_EQ(windows::joined(windows::date_of(moment), windows::time_of(moment)), moment);
}

TEST(Conversions, ADateAloneIsMidnight) {
    EXPECT_EQ(windows::joined(QDate(2024, 3, 6)), DateTime::of(2024, 3, 6));
}

TEST(Conversions, TimesAreShownWithoutSecondsInTheClockOfTheLocale) {
    const auto moment = DateTime::of(2024, 3, 6, 14, 5, 9);
    EXPECT_EQ(windows::time_text(moment, values::english_us()), "2:05 PM");
    EXPECT_EQ(windows::time_text(moment, support::german()), "14:05");
}

TEST(Conversions, DatesAreShownInTheOrderOfTheLocale) {
    const auto moment = DateTime::of(2024, 3, 6);
    EXPECT_EQ(windows::date_text(moment, values::english_us()), "3/6/2024");
    EXPECT_EQ(windows::date_text(moment, support::german()), "06.03.2024");
}

TEST(Conversions, DurationsAreToldInDaysHoursAndMinutes) {
    EXPECT_EQ(duration_text(0), "0 minutes");
    EXPECT_EQ(duration_text(1), "1 minute");
    EXPECT_EQ(duration_text(45), "45 minutes");
    EXPECT_EQ(duration_text(60), "1 hour");
    EXPECT_EQ(duration_text(150), "2 hours 30 minutes");
    EXPECT_EQ(duration_text(2 * 1440 + 1), "2 days 1 minute");
}

TEST(Conversions, TextsKeepLettersOfAllKinds) {
    EXPECT_EQ(windows::stored(windows::shown("Jürgen Łoś")), "Jürgen Łoś");
}
