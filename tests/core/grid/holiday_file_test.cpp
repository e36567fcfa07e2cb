#include "core/grid/holiday_file.h"

#include "core/shell/shell_world.h"

#include <gtest/gtest.h>

namespace {

class Holidays : public ::testing::Test, protected support::ShellWorld {
protected:
    Holidays() { holidays.HolidaysFile = "/program/holidays.dat"; }
    std::string of(const std::string& text) {
        files.content["/program/holidays.dat"] = text;
        return holidays.Get_Holidays();
    }
    host::Platform platform_with(host::Files& others) {
        return {{application, values::english_us(), clock, box, shell, others, folders, user_store}, window};
    }
    host::Platform here = platform_with(files);
    grid::HolidayFile holidays{here};
};

TEST_F(Holidays, StandBetweenBars) {
    EXPECT_EQ(of("[Holidays]\r\n1/1/2024=New Year\r\n12/25/2024=Christmas\r\n"), "|1/1/2024||12/25/2024|");
}

TEST_F(Holidays, AreNoneWithoutAFile) {
    EXPECT_EQ(holidays.Get_Holidays(), "");
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
        "Error 9: 'Subscript out of range'\rin frmMain: Function Get_Holidays - Line # 30\r"));
}

TEST_F(Holidays, ThatCantBeReadAreAFailure) {
    EXPECT_EQ(of(std::string(10 * 1024 * 1024, '\n')), "");
    EXPECT_EQ(boxes(), std::vector<std::string>{"Error 75: 'Path/File access error'"});
}

TEST_F(Holidays, AreReadFromNoiseAndNULs) {
    std::string noise = "[Holidays]\n";
    for (unsigned byte = 0; byte < 100000; ++byte)
        noise += static_cast<char>((byte * byte / 7 + byte) % 251 + 3);
    files.content["/program/holidays.dat"] = noise;
    EXPECT_GT(holidays.lines().size(), 10U);
    const std::string with_nul("|1/1\0/2024|", 11);
    EXPECT_EQ(of(std::string("[Holidays]\n1/1\0/2024=a\0b", 25)), with_nul);
    EXPECT_EQ(of(std::string(50000, '\0')), "");
}

TEST_F(Holidays, OfAFolderAreAFailure) {
    class Folder : public support::MemoryFiles {
        bool exists(const std::string&) const override { return true; }
    } folder;
    const host::Platform with_folder = platform_with(folder);
    grid::HolidayFile in_a_folder(with_folder);
    in_a_folder.HolidaysFile = holidays.HolidaysFile;
    EXPECT_EQ(in_a_folder.Get_Holidays(), "");
    EXPECT_EQ(boxes(), std::vector<std::string>{"Error 75: 'Path/File access error'"});
}

class HolidaysWritten : public Holidays {
protected:
    std::string written(std::span<const grid::Holiday> list) {
        holidays.write(list);
        return files.content["/program/holidays.dat"];
    }
};

TEST_F(HolidaysWritten, StandOnALineEachBehindTheHeader) {
    const grid::Holiday list[] = {{"1/1/2024", "New Year"}, {"12/25/2024", "Christmas = Noël"}};
    EXPECT_EQ(written(list), "[Holidays]\r\n1/1/2024=New Year\r\n12/25/2024=Christmas = Noël\r\n");
}

TEST_F(HolidaysWritten, AreTheHeaderAloneWhenThereAreNone) { EXPECT_EQ(written({}), "[Holidays]\r\n"); }

TEST_F(HolidaysWritten, KeepTheFilesEncodingAsLongAsItHasTheirCharacters) {
    files.content["/program/holidays.dat"] = "[Holidays]\r\n1. M\xe4rz=F\xfchling\r\n";
    const grid::Holiday fits[] = {{"1. März", "Fühling"}};
    EXPECT_EQ(written(fits), "[Holidays]\r\n1. M\xe4rz=F\xfchling\r\n");
    const grid::Holiday does_not[] = {{"1. März", "Frühling 春"}};
    EXPECT_EQ(written(does_not), "[Holidays]\r\n1. März=Frühling 春\r\n");
}

TEST_F(HolidaysWritten, LeaveAFileAloneThatCantBeWrittenOrCouldNotBeReadAgain) {
    files.content["/program/holidays.dat"] = "[Holidays]\r\n";
    EXPECT_THROW(written(std::vector{grid::Holiday{"1/1/2024", std::string(1024 * 1024, 'x')}}), values::Failure);
    files.read_only.insert("/program/holidays.dat");
    EXPECT_THROW(written(std::vector{grid::Holiday{"1/1/2024", "New Year"}}), values::Failure);
    EXPECT_EQ(files.content["/program/holidays.dat"], "[Holidays]\r\n");
}

} // namespace
