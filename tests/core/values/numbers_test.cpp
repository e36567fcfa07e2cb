#include "core/values/numbers.h"

#include "support/failure_number.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace values;
using support::failure_number;

TEST(ParseNumber, ReadsDecimalNumbers) {
    EXPECT_EQ(parse_number("42"), 42);
    EXPECT_EQ(parse_number("  -1.5 "), -1.5);
    EXPECT_EQ(parse_number("+7"), 7);
    EXPECT_EQ(parse_number(".5"), 0.5);
    EXPECT_EQ(parse_number("5."), 5);
    EXPECT_EQ(parse_number("1e3"), 1000);
    EXPECT_EQ(parse_number("1E-2"), 0.01);
    EXPECT_EQ(parse_number("1e-999"), 0);
}

TEST(ParseNumber, ReadsColours) {
    EXPECT_EQ(parse_number("&HFFC0C0"), 0xFFC0C0);
    EXPECT_EQ(parse_number("&H00FFFFFF"), 0xFFFFFF);
    EXPECT_EQ(parse_number("&HC0E0FF"), 0xC0E0FF);
    EXPECT_EQ(parse_number("&H40C0"), 16576);
    EXPECT_EQ(parse_number("&H0"), 0);
    EXPECT_EQ(parse_number("&H000000FF"), 255);
    EXPECT_EQ(parse_number(" &hff "), 255);
}

TEST(ParseNumber, TakesUpToFourHexadecimalDigitsAsASignedNumberOf16Bits) {
    EXPECT_EQ(parse_number("&HFFFF"), -1);
    EXPECT_EQ(parse_number("&H8000"), -32768);
    EXPECT_EQ(parse_number("&H7FFF"), 32767);
    EXPECT_EQ(parse_number("&HFFFF&"), 65535);
    EXPECT_EQ(parse_number("&H0FFFF"), 65535);
    EXPECT_EQ(parse_number("&HFFFFFFFF"), -1);
    EXPECT_EQ(parse_number("&H80000000&"), -2147483648.0);
}

TEST(ParseNumber, IsAbsentWhereThereIsNoNumber) {
    for (const char* text :
         {"",     " ",   "x",     "1x",    "1 2", "-",   "+",    ".",    "-.",          "e5",
          "1e",   "1e+", "1.2.3", "1,5",   "&H",  "&HG", "&H-1", "-&H1", "&H123456789", "&HFF&&",
          "0x10", "inf", "nan",   "1e999", "--1"})
        EXPECT_FALSE(is_numeric(text)) << text;
}

TEST(LeadingNumber, TakesWhatStandsAtTheStart) {
    EXPECT_EQ(leading_number("24 and 57"), 24);
    EXPECT_EQ(leading_number("-3.5x"), -3.5);
    EXPECT_EQ(leading_number("1.2.3"), 1.2);
    EXPECT_EQ(leading_number("1e"), 1);
    EXPECT_EQ(leading_number("&HFFz"), 255);
    EXPECT_EQ(leading_number(" 16 15\t198"), 1615198);
    EXPECT_EQ(leading_number(""), 0);
    EXPECT_EQ(leading_number("x1"), 0);
    EXPECT_EQ(leading_number("-"), 0);
    EXPECT_EQ(leading_number("1e999"), HUGE_VAL);
    EXPECT_EQ(leading_number("-1e999"), -HUGE_VAL);
}

TEST(ToInteger, RoundsHalvesToEven) {
    EXPECT_EQ(to_int32("0.5"), 0);
    EXPECT_EQ(to_int32("1.5"), 2);
    EXPECT_EQ(to_int32("2.5"), 2);
    EXPECT_EQ(to_int32("2.51"), 3);
    EXPECT_EQ(to_int32("-0.5"), 0);
    EXPECT_EQ(to_int32("-1.5"), -2);
    EXPECT_EQ(to_int32("-2.5"), -2);
    EXPECT_EQ(to_int16(7.5), 8);
}

TEST(ToInteger, FailsWith13WhereThereIsNoNumber) {
    EXPECT_EQ(failure_number([] { to_int16(""); }), 13);
    EXPECT_EQ(failure_number([] { to_int32("twelve"); }), 13);
    EXPECT_EQ(failure_number([] { to_double("1x"); }), 13);
}

TEST(ToInteger, FailsWith6BeyondItsRange) {
    EXPECT_EQ(to_int16("32767.4"), 32767);
    EXPECT_EQ(to_int16("-32768.5"), -32768);
    EXPECT_EQ(failure_number([] { to_int16("32767.5"); }), 6);
    EXPECT_EQ(failure_number([] { to_int16("-32769"); }), 6);
    EXPECT_EQ(failure_number([] { to_int16("&HFFFF&"); }), 6);
    EXPECT_EQ(to_int32("2147483647"), 2147483647);
    EXPECT_EQ(failure_number([] { to_int32("2147483648"); }), 6);
    EXPECT_EQ(failure_number([] { to_int32("1e300"); }), 6);
    EXPECT_EQ(failure_number([] { to_double("1e999"); }), 6);
    EXPECT_EQ(failure_number([] { to_int32(HUGE_VAL); }), 6);
    EXPECT_EQ(failure_number([] { to_int32(std::nan("")); }), 6);
}

TEST(SingleText, HasSevenSignificantDigitsAtMost) {
    EXPECT_EQ(single_text(4815), "4815");
    EXPECT_EQ(single_text(0.25), "0.25");
    EXPECT_EQ(single_text(-1800), "-1800");
    EXPECT_EQ(single_text(0), "0");
    EXPECT_EQ(single_text(1.0 / 3), "0.3333333");
    EXPECT_EQ(single_text(12345678), "1.234568E+07");
    EXPECT_EQ(single_text(0.00001), "1E-05");
}
