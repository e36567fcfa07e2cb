#include "core/values/text_forms.h"

#include "support/locales.h"

#include <gtest/gtest.h>

using namespace values;
using support::english_gb;
using support::french;
using support::german;

namespace {

const DateTime fifth_of_january = DateTime::of(2024, 1, 5);

void expect_all(std::initializer_list<const char*> texts, const Locale& locale, DateTime expected) {
    for (const char* text : texts)
        EXPECT_EQ(parse_date(text, locale), expected) << text << " in " << locale.name;
}

} // namespace

TEST(ParseDate, ReadsTheLocalesOrder) {
    expect_all({"1/5/2024", "01/05/2024", "1-5-2024", "1.5.2024", " 1/5/24 "}, english_us(), fifth_of_january);
    expect_all({"5/1/2024", "05.01.24", "5-1-2024"}, english_gb(), fifth_of_january);
    expect_all({"5.1.2024", "05/01/2024"}, german(), fifth_of_january);
    expect_all({"05/01/2024", "5.1.2024"}, french(), fifth_of_january);
}

TEST(ParseDate, TakesAnotherOrderWhereTheLocalesMakesNoDate) {
    expect_all({"25/1/2024", "2024/1/25", "25-1-24"}, english_us(), DateTime::of(2024, 1, 25));
    expect_all({"1/25/2024", "2024/1/25"}, german(), DateTime::of(2024, 1, 25));
}

TEST(ParseDate, ReadsIsoInEveryLocale) {
    for (const Locale* locale : {&english_us(), &english_gb(), &german(), &french()}) {
        expect_all({"2024-01-05", "20240105"}, *locale, fifth_of_january);
        expect_all({"2024-01-05 09:00:00", "2024-01-05T09:00", "2024-01-05T09:00:00"}, *locale,
                   fifth_of_january.plus_minutes(540));
    }
}

TEST(ParseDate, ReadsMonthNames) {
    expect_all({"January 5, 2024", "Jan 5 2024", "5 January 2024", "5-Jan-24", "Friday, January 5, 2024",
                "2024 Jan 5", "Jan. 5, 2024"},
               english_us(), fifth_of_january);
    expect_all({"5. Januar 2024", "Freitag, 5. Januar 2024", "5 Jan 2024", "5 January 2024"}, german(),
               fifth_of_january);
    expect_all({"5 mars 2024", "5 MARS 2024"}, french(), DateTime::of(2024, 3, 5));
    expect_all({"1 août 2024", "1 Aoû 2024", "1 AOÛT 2024"}, french(), DateTime::of(2024, 8, 1));
    expect_all({"1. märz 2024", "1. MÄRZ 2024"}, german(), DateTime::of(2024, 3, 1));
    expect_all({"January 2024", "2024 January"}, english_us(), DateTime::of(2024, 1, 1));
}

TEST(ParseDate, RefusesABeginningOfTwoMonths) { EXPECT_FALSE(parse_date("5 jui 2024", french())); }

TEST(ParseDate, ReadsTimesWithOrWithoutSecondsAndMarksInEveryLocale) {
    for (const Locale* locale : {&english_us(), &english_gb(), &german(), &french()}) {
        expect_all({"12:00:00PM", "12:00", "12:00 pm", "12 PM", "12:00:00"}, *locale,
                   DateTime::time_of_day(12, 0));
        expect_all({"9:05", "09:05 AM", "9:05am", "9:05:00 a"}, *locale, DateTime::time_of_day(9, 5));
        expect_all({"21:05", "9:05 PM", "09:05:00 p"}, *locale, DateTime::time_of_day(21, 5));
        expect_all({"12:30 AM", "0:30", "00:30:00"}, *locale, DateTime::time_of_day(0, 30));
    }
}

TEST(ParseDate, ReadsDateAndTimeInEitherOrder) {
    const DateTime nine = fifth_of_january.plus_minutes(540);
    expect_all(
        {"1/5/2024 9:00:00 AM", "1/5/2024 9:00", "9:00 1/5/2024", "January 5, 2024, 9 AM", "1/5/2024, 9:00"},
        english_us(), nine);
}

TEST(ParseDate, ReadsALocaleWhoseTimesHaveTheSeparatorOfItsDates) {
    Locale finnish = english_gb();
    finnish.short_date = "d.M.yyyy";
    finnish.long_time = "H.mm.ss";
    expect_all({"5.1.2024 9.00.00", "5.1.2024 9.00", "5.1.2024 9:00"}, finnish,
               fifth_of_january.plus_minutes(540));
    expect_all({"9.05.00", "9.05"}, finnish, DateTime::time_of_day(9, 5));
}

TEST(ParseDate, IsAbsentWhereThereIsNoDate) {
    for (const char* text : {"",
                             "   ",
                             "x",
                             "5",
                             "45000",
                             "1/5",
                             "Friday",
                             "January",
                             "January 5",
                             "13:60",
                             "24:00",
                             "9:5:99",
                             "13 AM",
                             "1/2/3/4",
                             "31/31/2024",
                             "2/30/2024",
                             "-1/5/2024",
                             "1/5/2024-",
                             "1//5/2024",
                             "1/5/2024 x",
                             "9:00 x",
                             ":",
                             "9:",
                             "AM",
                             "1/5/20245",
                             "20241305",
                             "1/5/2024 9:00 6",
                             "5 9:00 January 2024",
                             "Jan Feb 2024",
                             "99999999999999",
                             "9:00 9:00",
                             "1/5/99999999999"})
        EXPECT_FALSE(parse_date(text, english_us())) << text;
}

TEST(ParseDate, SurvivesAnyBytes) {
    std::string text;
    for (int i = 0; i < 20000; ++i) {
        text += static_cast<char>((i * 7919) >> 3);
        if (text.size() > 40)
            text.erase(0, 13);
        const auto value = parse_date(text, french());
        EXPECT_TRUE(!value || value->year() >= 100);
    }
}
