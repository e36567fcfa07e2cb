#include "desk/import/colours.h"

#include <gtest/gtest.h>

namespace {

using importing::colour_of;

TEST(ColourOf, PutsBlueIntoTheHighByte) {
    EXPECT_EQ(colour_of("#102030"), 0x302010u);
    EXPECT_EQ(colour_of("red"), 0x0000FFu);
    EXPECT_EQ(colour_of("blue"), 0xFF0000u);
}

TEST(ColourOf, ReadsNamesInAnyCaseAndShortNumbers) {
    EXPECT_EQ(colour_of(" RebeccaPurple "), 0x993366u);
    EXPECT_EQ(colour_of("#f80"), 0x0088FFu);
}

TEST(ColourOf, KnowsNoOtherText) {
    for (const char* text : {"", "#", "#12", "#1234567", "#12345g", "#-12345", "redd", "12345678"})
        EXPECT_FALSE(colour_of(text)) << text;
}

TEST(NearestName, IsTheColoursOwnWhereItHasOneAndElseAClose) {
    EXPECT_EQ(importing::nearest_name(*importing::colour_of("tomato")), "tomato");
    EXPECT_EQ(importing::nearest_name(0x0101FF), "red");
    EXPECT_EQ(importing::nearest_name(0x00FE0000), "blue");
    EXPECT_EQ(importing::nearest_name(0xFFFFFFFF), "white");
}

} // namespace
