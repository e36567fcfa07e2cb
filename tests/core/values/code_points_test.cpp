#include "core/values/code_points.h"

#include <gtest/gtest.h>

using values::append_code_point;
using values::first_code_point;

TEST(CodePoints, EveryOneIsReadBackAsItWasWritten) {
    for (char32_t value = 0; value <= 0x10FFFF; value += value < 0x3000 ? 1 : 97) {
        std::string text;
        append_code_point(text, value);
        const auto read = first_code_point(text);
        if (value >= 0xD800 && value <= 0xDFFF) {
            ASSERT_FALSE(read) << std::hex << static_cast<unsigned>(value);
        } else {
            ASSERT_TRUE(read) << std::hex << static_cast<unsigned>(value);
            ASSERT_EQ(read->value, value);
            ASSERT_EQ(read->bytes, text.size());
        }
    }
}

TEST(CodePoints, AnEmptyTextHasNone) { EXPECT_FALSE(first_code_point("")); }
