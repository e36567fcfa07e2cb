#include "core/engine/phone.h"

#include <gtest/gtest.h>

namespace {

using engine::Format_Phone;

TEST(Format_Phone, BringsANumberOfTenDigitsIntoThePattern) {
    EXPECT_EQ(Format_Phone("+1 (555) 123-4567"), "(555) 123-4567");
    EXPECT_EQ(Format_Phone("+15551234567"), "(555) 123-4567");
}

TEST(Format_Phone, LeavesAnyOtherTextAlone) {
    EXPECT_EQ(Format_Phone("(555) 123-4567"), "(555) 123-4567");
    EXPECT_EQ(Format_Phone("+44 20 7946 0000"), "+44 20 7946 0000");
    EXPECT_EQ(Format_Phone(""), "");
    EXPECT_EQ(Format_Phone(" +1 (555) 123-4567"), " +1 (555) 123-4567");
}

TEST(Format_Phone, RemovesEveryPlusOne) { EXPECT_EQ(Format_Phone("+1 (555) +1 123-4567"), "(555) 123-4567"); }

TEST(Format_Phone, FillsThePatternFromTheRight) {
    EXPECT_EQ(Format_Phone("+1 123-4567"), "() 123-4567");
    EXPECT_EQ(Format_Phone("+1 67"), "() -67");
    EXPECT_EQ(Format_Phone("+1 (0044) 555-123-4567"), "(0044555) 123-4567");
}

TEST(Format_Phone, KeepsWhatIsNoDigitButDropsTheMarks) {
    EXPECT_EQ(Format_Phone("+1 (555) 123-4567 x12"), "5551234567x12");
    EXPECT_EQ(Format_Phone("+1"), "");
}

} // namespace
