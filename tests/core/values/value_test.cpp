#include "core/values/value.h"

#include "support/failure_number.h"
#include "support/locales.h"

#include <gtest/gtest.h>

using namespace values;
using support::english_gb;
using support::failure_number;
using support::german;

namespace {

const Value nothing;
const Value number = std::int64_t{42};
const Value text = std::string("1/5/2024");
const Value date = DateTime::of(2024, 1, 5, 9, 0);

} // namespace

TEST(ValueAsText, IsTheDefaultFormOfEachKind) {
    EXPECT_EQ(text_of(nothing, english_us()), "");
    EXPECT_EQ(text_of(number, english_us()), "42");
    EXPECT_EQ(text_of(text, english_us()), "1/5/2024");
    EXPECT_EQ(text_of(date, english_us()), "1/5/2024 9:00:00 AM");
    EXPECT_EQ(text_of(date, german()), "05.01.2024 09:00:00");
}

TEST(ValueAsDate, ReadsTextsInTheLocale) {
    EXPECT_EQ(date_of(date, english_us()), DateTime::of(2024, 1, 5, 9, 0));
    EXPECT_EQ(date_of(text, english_us()), DateTime::of(2024, 1, 5));
    EXPECT_EQ(date_of(text, english_gb()), DateTime::of(2024, 5, 1));
    EXPECT_FALSE(date_of(nothing, english_us()));
    EXPECT_FALSE(date_of(number, english_us()));
    EXPECT_FALSE(date_of(Value(std::string("soon")), english_us()));
}

TEST(ValueAsNumber, ReadsTextsAndCountsTheDaysOfDates) {
    EXPECT_EQ(int16_of(number), 42);
    EXPECT_EQ(int16_of(Value(std::string("2.5"))), 2);
    EXPECT_EQ(int32_of(date), 45296);
    EXPECT_EQ(failure_number([] { int16_of(date); }), 6);
    EXPECT_EQ(failure_number([] { int16_of(nothing); }), 13);
    EXPECT_EQ(failure_number([] { int32_of(text); }), 13);
    EXPECT_EQ(failure_number([] { int16_of(Value(std::int64_t{32768})); }), 6);
    EXPECT_EQ(failure_number([] { int32_of(Value(INT64_MAX)); }), 6);
}
