#include "shell/holidays.h"

#include "shell_world.h"

#include <gtest/gtest.h>

namespace {

class Holidays : public ::testing::Test, protected support::ShellWorld {
protected:
    std::string of(const std::string& text) {
        files.content["/program/holidays.dat"] = text;
        return holidays.Get_Holidays("/program/holidays.dat");
    }
    host::Guard guarded{box, application};
    shell::HolidayFile holidays{files, guarded};
};

TEST_F(Holidays, StandBetweenBars) {
    EXPECT_EQ(of("[Holidays]\r\n1/1/2024=New Year\r\n12/25/2024=Christmas\r\n"), "|1/1/2024||12/25/2024|");
}

TEST_F(Holidays, AreNoneWithoutAFile) {
    EXPECT_EQ(holidays.Get_Holidays("/program/holidays.dat"), "");
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(Holidays, AreNoneInAFileOfTheFirstLineAlone) {
    EXPECT_EQ(of("[Holidays]\r\n"), "");
    EXPECT_EQ(of("[Holidays]"), "");
    EXPECT_EQ(of(""), "");
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(Holidays, BeginBehindTheFirstLineWhateverItHolds) {
    EXPECT_EQ(of("1/1/2024=New Year\n5/1/2024=May Day\n"), "|5/1/2024|");
}

TEST_F(Holidays, AreReadWithAnyEndOfLine) {
    EXPECT_EQ(of("[Holidays]\n1/1/2024=a\r5/1/2024=b\r\n5/2/2024=c"), "|1/1/2024||5/1/2024||5/2/2024|");
}

TEST_F(Holidays, NeedNoDescription) {
    EXPECT_EQ(of("[Holidays]\n1/1/2024\n5/1/2024=a=b\n"), "|1/1/2024||5/1/2024|");
}

TEST_F(Holidays, OfAFileInWindowsCharactersAreRead) {
    EXPECT_EQ(of("[Holidays]\r\n1. M\xe4rz=F\xfchling\r\n"), "|1. März|");
}

TEST_F(Holidays, WithAnEmptyLineAreAFailure) {
    EXPECT_EQ(of("[Holidays]\r\n1/1/2024=New Year\r\n\r\n5/1/2024=May Day\r\n"), "");
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_TRUE(box.shown[0].text.starts_with(
        "Error 9: 'Subscript out of range'\rin frmMain: Function Get_Holidays - Line # 50\r"));
}

TEST_F(Holidays, ThatCantBeReadAreAFailure) {
    EXPECT_EQ(of(std::string(17 * 1024 * 1024, '\n')), "");
    EXPECT_EQ(boxes(), std::vector<std::string>{"Error 75: 'Path/File access error'"});
}

} // namespace
