#include "core/values/pattern.h"

#include "support/locales.h"

#include <gtest/gtest.h>

using namespace values;
using support::english_gb;
using support::german;

namespace {

const DateTime afternoon = DateTime::of(2024, 3, 5, 15, 4, 9);

} // namespace

TEST(WrittenByPattern, RepeatsALetterForItsWidth) {
    EXPECT_EQ(written("d/M/yy", afternoon, english_us()), "5/3/24");
    EXPECT_EQ(written("dd.MM.yyyy", afternoon, english_us()), "05.03.2024");
    EXPECT_EQ(written("H:m:s", afternoon, english_us()), "15:4:9");
    EXPECT_EQ(written("hh:mm:ss tt", afternoon, english_us()), "03:04:09 PM");
}

TEST(WrittenByPattern, NamesDaysAndMonths) {
    EXPECT_EQ(written("dddd, d. MMMM yyyy", afternoon, german()), "Dienstag, 5. März 2024");
    EXPECT_EQ(written("ddd MMM", afternoon, english_us()), "Tue Mar");
    EXPECT_EQ(written("MMM", afternoon, german()), "Mär");
}

TEST(WrittenByPattern, Shows12AtMidnightAndNoon) {
    EXPECT_EQ(written("h tt", DateTime::time_of_day(0, 0), english_us()), "12 AM");
    EXPECT_EQ(written("h tt", DateTime::time_of_day(12, 0), english_us()), "12 PM");
    EXPECT_EQ(written("h tt", DateTime::time_of_day(23, 0), english_us()), "11 PM");
}

TEST(ReadByPattern, TakesFieldsOfAnyWidth) {
    EXPECT_EQ(read("dd.MM.yyyy", "5.3.2024", german()), DateTime::of(2024, 3, 5));
    EXPECT_EQ(read("M/d/yyyy", "03/05/24", english_us()), DateTime::of(2024, 3, 5));
}

TEST(ReadByPattern, ReadsAnUnusualLocale) {
    Locale locale = english_gb();
    locale.short_date = "yyyy. MM. dd.";
    locale.long_time = "tt h.mm.ss";
    locale.am = "de.";
    locale.pm = "du.";
    EXPECT_EQ(read("yyyy. MM. dd. tt h.mm.ss", "2024. 03. 05. du. 3.04.09", locale), afternoon);
}

TEST(ReadByPattern, IsAbsentWhenTheTextDiffers) {
    for (const char* text : {"", "5", "5/3", "5/3/2024 ", "5-3-2024", "32/3/2024", "5/13/2024", "x/3/2024"})
        EXPECT_FALSE(read("d/M/yyyy", text, english_gb())) << text;
    EXPECT_FALSE(read("h:mm tt", "9:00", english_us()));
    EXPECT_FALSE(read("dddd", "Friday", english_us()));
}

TEST(DateOfParts, ChecksEveryRange) {
    EXPECT_EQ(date_of({.year = 2024, .month = 2, .day = 29}), DateTime::of(2024, 2, 29));
    EXPECT_FALSE(date_of({.year = 2023, .month = 2, .day = 29}));
    EXPECT_FALSE(date_of({.year = 99}));
    EXPECT_FALSE(date_of({.year = 10000}));
    EXPECT_FALSE(date_of({.hour = 24}));
    EXPECT_FALSE(date_of({.minute = 60}));
    EXPECT_FALSE(date_of({.second = 60}));
}

TEST(DateOfParts, MovesTheAfternoonBy12Hours) {
    EXPECT_EQ(date_of({.hour = 12, .half = HalfDay::am}), DateTime::time_of_day(0, 0));
    EXPECT_EQ(date_of({.hour = 12, .half = HalfDay::pm}), DateTime::time_of_day(12, 0));
    EXPECT_EQ(date_of({.hour = 1, .half = HalfDay::pm}), DateTime::time_of_day(13, 0));
    EXPECT_EQ(date_of({.hour = 13, .half = HalfDay::pm}), DateTime::time_of_day(13, 0));
    EXPECT_FALSE(date_of({.hour = 13, .half = HalfDay::am}));
}

TEST(WholeYear, GivesShortYearsTheirCentury) {
    EXPECT_EQ(whole_year("0"), 2000);
    EXPECT_EQ(whole_year("29"), 2029);
    EXPECT_EQ(whole_year("30"), 1930);
    EXPECT_EQ(whole_year("99"), 1999);
    EXPECT_EQ(whole_year("0029"), 29);
    EXPECT_EQ(whole_year("1899"), 1899);
}
