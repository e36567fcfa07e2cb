#include "core/values/text_forms.h"

#include "support/failure_number.h"
#include "support/locales.h"

#include <gtest/gtest.h>

using namespace values;
using support::english_gb;
using support::french;
using support::german;

namespace {

const DateTime morning = DateTime::of(2024, 1, 5, 9, 5, 30);
const DateTime evening = DateTime::of(2024, 11, 25, 21, 5);

const Locale* const locales[] = {&english_us(), &english_gb(), &german(), &french()};

// Dates of every month and weekday and times of every hour, in no regular order.
template <typename Check>
void for_many_dates(Check check) {
    for (const Locale* locale : locales) {
        DateTime value = DateTime::of(1896, 2, 29, 0, 0, 1);
        for (int i = 0; i < 4000; ++i) {
            check(value, *locale);
            if (::testing::Test::HasFailure())
                return;
            value = DateTime::from_seconds(value.seconds() + 1'737'931 + i % 86'399);
        }
    }
}

} // namespace

TEST(ShortDate, FollowsTheLocale) {
    EXPECT_EQ(short_date(morning, english_us()), "1/5/2024");
    EXPECT_EQ(short_date(morning, english_gb()), "05/01/2024");
    EXPECT_EQ(short_date(morning, german()), "05.01.2024");
    EXPECT_EQ(short_date(morning, french()), "05/01/2024");
}

TEST(DefaultText, HasDateAndLongTime) {
    EXPECT_EQ(default_text(morning, english_us()), "1/5/2024 9:05:30 AM");
    EXPECT_EQ(default_text(evening, english_gb()), "25/11/2024 21:05:00");
    EXPECT_EQ(default_text(evening, german()), "25.11.2024 21:05:00");
}

TEST(DefaultText, DropsAZeroTimeOrAZeroDate) {
    EXPECT_EQ(default_text(morning.date(), english_us()), "1/5/2024");
    EXPECT_EQ(default_text(morning.time(), english_us()), "9:05:30 AM");
    EXPECT_EQ(default_text(DateTime(), english_us()), "12:00:00 AM");
    EXPECT_EQ(default_text(DateTime(), german()), "00:00:00");
}

TEST(TextForms, WriteOneMorningAndOneEvening) {
    EXPECT_EQ(yyyymmdd(morning), "20240105");
    EXPECT_EQ(medium_time(morning, english_us()), "09:05 AM");
    EXPECT_EQ(medium_time(evening, german()), "09:05 PM");
    EXPECT_EQ(hh_nn_am_pm(evening), "09:05 PM");
    EXPECT_EQ(hh_nn(morning), "09:05");
    EXPECT_EQ(hh_nn(evening), "21:05");
    EXPECT_EQ(h_nn(morning), "9:05");
    EXPECT_EQ(h_nn(evening), "21:05");
    EXPECT_EQ(medium_time(evening, english_us()), "09:05 PM");
    EXPECT_EQ(weekday_name(morning, english_us()), "Friday");
    EXPECT_EQ(weekday_name(morning, french()), "vendredi");
}

TEST(TextForms, UseTheLocalesMarksOnlyWhereToldTo) {
    Locale locale = english_us();
    locale.am = "a.m.";
    locale.pm = "p.m.";
    EXPECT_EQ(medium_time(evening, locale), "09:05 p.m.");
    EXPECT_EQ(hh_nn_am_pm(evening), "09:05 PM");
}

TEST(TextForms, DefaultTextIsReadBackAsItWas) {
    for_many_dates([](DateTime value, const Locale& locale) {
        EXPECT_EQ(parse_date(default_text(value, locale), locale), value) << default_text(value, locale);
        EXPECT_EQ(parse_date(default_text(value.date(), locale), locale), value.date()) << value.seconds();
        EXPECT_EQ(parse_date(default_text(value.time(), locale), locale), value.time()) << value.seconds();
    });
}

TEST(TextForms, DatesAreReadBackAsTheyWere) {
    for_many_dates([](DateTime value, const Locale& locale) {
        EXPECT_EQ(parse_date(short_date(value, locale), locale), value.date()) << short_date(value, locale);
        EXPECT_EQ(parse_date(yyyymmdd(value), locale), value.date()) << yyyymmdd(value);
    });
}

TEST(TextForms, TimesAreReadBackToTheMinute) {
    for_many_dates([](DateTime value, const Locale& locale) {
        const DateTime time = value.time_to_the_minute();
        for (const std::string& text : {medium_time(value, locale), hh_nn_am_pm(value), hh_nn(value), h_nn(value),
                                        medium_time(value, locale)})
            EXPECT_EQ(parse_date(text, locale), time) << text;
    });
}

TEST(TextForms, TheEndsOfTheCalendarAreReadBack) {
    for (const Locale* locale : locales)
        for (const DateTime value : {DateTime::of(100, 1, 1, 0, 0, 1), DateTime::of(9999, 12, 31, 23, 59, 59)})
            EXPECT_EQ(parse_date(default_text(value, *locale), *locale), value) << locale->name;
}

TEST(ToDate, FailsWith13WhereThereIsNoDate) {
    EXPECT_EQ(to_date("1/5/2024", english_us()), DateTime::of(2024, 1, 5));
    EXPECT_EQ(support::failure_number([] { to_date("tomorrow", english_us()); }), 13);
    EXPECT_EQ(support::failure_number([] { to_date("", english_us()); }), 13);
}
