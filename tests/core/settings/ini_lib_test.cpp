#include "core/settings/ini_lib.h"

#include "core/values/text.h"
#include "support/fake_message_box.h"
#include "support/fake_window.h"
#include "support/plain_files.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <new>

using settings::IniLib;
using support::content_of;
using support::write_file;
using Names = std::vector<std::string>;

namespace {

class IniLibTest : public ::testing::Test {
protected:
    IniLibTest() { ini.SettingsFile = path; }

    std::string numeric(const char* key, const char* type, const char* substitute) {
        std::string file;
        return ini.GetKeyValue("s", key, "DEF", type, substitute, file);
    }

    support::TemporaryFolder folder;
    std::string path = folder.file("Orvanta.ini");
    std::string other = folder.file("other.ini");
    support::PlainFiles files;
    support::FakeMessageBox box;
    host::ApplicationInfo application{.title = "Orvanta"};
    support::FakeWindow window;
    host::Guard guarded{box, application, window};
    IniLib ini{files, guarded};
};

using GetKeyValue = IniLibTest;
using WriteKeyValue = IniLibTest;
using DeleteSection = IniLibTest;
using Extract_Keys = IniLibTest;
using FileExists = IniLibTest;

} // namespace

TEST_F(GetKeyValue, GivesTheDefaultForAMissingFileSectionOrKey) {
    EXPECT_EQ(ini.GetKeyValue("s", "a", "DEF"), "DEF");
    write_file(path, "[s]\na=1\n");
    EXPECT_EQ(ini.GetKeyValue("t", "a", "DEF"), "DEF");
    EXPECT_EQ(ini.GetKeyValue("s", "b", "DEF"), "DEF");
    EXPECT_EQ(ini.GetKeyValue("s", "a", "DEF"), "1");
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(GetKeyValue, GivesTheDefaultForAMissingFolder) {
    ini.SettingsFile = folder.file("missing/Orvanta.ini");
    EXPECT_EQ(ini.GetKeyValue("s", "a", "DEF"), "DEF");
    ini.SettingsFile = "";
    EXPECT_EQ(ini.GetKeyValue("s", "a", "DEF"), "DEF");
}

TEST_F(GetKeyValue, CutsAValueOf1000CharactersTo999) {
    for (const std::size_t length : {998, 999, 1000, 5000}) {
        std::string text;
        for (std::size_t i = 0; i < length; ++i)
            text += "é";
        ASSERT_TRUE(ini.WriteKeyValue("s", "a", text));
        EXPECT_EQ(values::length(ini.GetKeyValue("s", "a", "")), std::min<std::size_t>(length, 999));
    }
}

TEST_F(GetKeyValue, TakesAnEmptyValueForAbsent) {
    write_file(path, "[s]\na=\nb=\"\"\n");
    EXPECT_EQ(ini.GetKeyValue("s", "a", "DEF"), "DEF");
    EXPECT_EQ(ini.GetKeyValue("s", "b", "DEF"), "DEF");
}

TEST_F(GetKeyValue, ChecksNumericAndBooleanValuesAlone) {
    write_file(path, "[s]\nnumber= 42 \ncolor=&HFFC0C0\ntext=x\n");
    for (const char* type : {"Numeric", "Boolean"}) {
        EXPECT_EQ(numeric("number", type, "0"), "42");
        EXPECT_EQ(numeric("color", type, "0"), "&HFFC0C0");
        EXPECT_EQ(numeric("text", type, "0"), "0");
        EXPECT_EQ(numeric("text", type, ""), "x");
        EXPECT_EQ(numeric("missing", type, "0"), "0");
        EXPECT_EQ(numeric("missing", type, ""), "DEF");
    }
    EXPECT_EQ(numeric("text", "", "0"), "x");
    EXPECT_EQ(numeric("text", "Date", "0"), "x");
    EXPECT_EQ(numeric("text", "numeric", "0"), "x");
}

TEST_F(GetKeyValue, OverwritesAnEmptyFileArgumentAndReadsAnyOtherFile) {
    write_file(path, "[s]\na=settings\n");
    write_file(other, "[s]\na=other\n");
    std::string file;
    EXPECT_EQ(ini.GetKeyValue("s", "a", "", "", "", file), "settings");
    EXPECT_EQ(file, path);
    file = other;
    EXPECT_EQ(ini.GetKeyValue("s", "a", "", "", "", file), "other");
    EXPECT_EQ(file, other);
}

TEST_F(GetKeyValue, FollowsANewSettingsFile) {
    write_file(path, "[s]\na=old\n");
    write_file(other, "[s]\na=new\n");
    EXPECT_EQ(ini.GetKeyValue("s", "a", ""), "old");
    ini.SettingsFile = other;
    EXPECT_EQ(ini.GetKeyValue("s", "a", ""), "new");
}

TEST_F(GetKeyValue, UsesARelativePathAsItStands) {
    ini.SettingsFile = "orvanta-test-no-such-folder/Orvanta.ini";
    std::string file;
    EXPECT_EQ(ini.GetKeyValue("s", "a", "DEF", "", "", file), "DEF");
    EXPECT_EQ(file, "orvanta-test-no-such-folder/Orvanta.ini");
}

TEST_F(GetKeyValue, ShowsTheUsualBoxWhenReadingFails) {
    class FailingFiles : public support::PlainFiles {
        std::optional<host::FileStamp> stamp(const std::string&) const override { throw std::bad_alloc(); }
    } failing;
    IniLib broken(failing, guarded);
    broken.SettingsFile = path;
    EXPECT_EQ(broken.GetKeyValue("s", "a", "DEF"), "");
    ASSERT_EQ(box.shown.size(), 1u);
    EXPECT_EQ(box.shown[0].text.substr(0, 68),
              "Error 7: 'Out of memory'\rin IniLib: Function GetKeyValue - Line # 20");
}

TEST_F(WriteKeyValue, MakesFileAndSectionAndOverwritesAnEmptyFileArgument) {
    std::string file;
    EXPECT_TRUE(ini.WriteKeyValue("Settings", "1stday", "2", file));
    EXPECT_EQ(file, path);
    EXPECT_EQ(content_of(path), "[Settings]\n1stday=2\n");
}

TEST_F(WriteKeyValue, ResetsAKeyToItsDefaultByAnEmptyText) {
    EXPECT_TRUE(ini.WriteKeyValue("s", "a", "1"));
    EXPECT_TRUE(ini.WriteKeyValue("s", "a", ""));
    EXPECT_EQ(content_of(path), "[s]\na=\n");
    EXPECT_EQ(ini.GetKeyValue("s", "a", "DEF"), "DEF");
}

TEST_F(WriteKeyValue, IsFalseForAMissingFolderAndShowsNothing) {
    ini.SettingsFile = folder.file("missing/Orvanta.ini");
    EXPECT_FALSE(ini.WriteKeyValue("s", "a", "1"));
    EXPECT_TRUE(box.shown.empty());
    EXPECT_EQ(folder.count(), 0);
}

TEST_F(WriteKeyValue, IsFalseForAValueOfTwoLines) {
    EXPECT_FALSE(ini.WriteKeyValue("s", "a", "1\rb=2"));
    EXPECT_FALSE(ini.WriteKeyValue("s", "a", "1\nb=2"));
    EXPECT_EQ(folder.count(), 0);
}

TEST_F(DeleteSection, RemovesTheSectionAlone) {
    write_file(path, "[s]\na=1\n[t]\nb=2\n");
    EXPECT_TRUE(ini.DeleteSection("s"));
    EXPECT_EQ(content_of(path), "[t]\nb=2\n");
    std::string file = path;
    EXPECT_TRUE(ini.DeleteSection("t", file));
    EXPECT_EQ(content_of(path), "");
}

TEST_F(DeleteSection, SucceedsForAnAbsentSectionOrFile) {
    EXPECT_TRUE(ini.DeleteSection("s"));
    EXPECT_EQ(folder.count(), 0);
    write_file(path, "[t]\nb=2\n");
    EXPECT_TRUE(ini.DeleteSection("s"));
    EXPECT_EQ(content_of(path), "[t]\nb=2\n");
    ini.SettingsFile = folder.file("missing/Orvanta.ini");
    EXPECT_TRUE(ini.DeleteSection("s"));
}

TEST_F(DeleteSection, IsFalseForAFolder) {
    ini.SettingsFile = folder.path();
    EXPECT_FALSE(ini.DeleteSection("s"));
}

TEST_F(Extract_Keys, GivesTheNamesInFileOrder) {
    write_file(path, "[Colors]\nZoe=1\nAdam=2\n; no=3\nMia=4\n");
    std::string file;
    EXPECT_EQ(ini.Extract_Keys("colors", file), (Names{"Zoe", "Adam", "Mia"}));
    EXPECT_EQ(file, path);
}

TEST_F(Extract_Keys, IsEmptyForAnAbsentOrEmptySection) {
    EXPECT_EQ(ini.Extract_Keys("s"), Names{});
    write_file(path, "[s]\n; nothing\n");
    EXPECT_EQ(ini.Extract_Keys("s"), Names{});
    EXPECT_EQ(ini.Extract_Keys("t"), Names{});
}

TEST_F(Extract_Keys, GivesAllWhenNamesAndEndMarksJustFit) {
    // 199 names of 9 characters and one of 8: 1999 with their end marks, and one end mark more.
    std::string section = "[s]\n";
    for (int i = 0; i < 199; ++i)
        section += "name" + std::to_string(10000 + i) + "=\n";
    write_file(path, section + "12345678=\n");
    EXPECT_EQ(ini.Extract_Keys("s").size(), 200u);
    EXPECT_EQ(ini.Extract_Keys("s").back(), "12345678");
}

TEST_F(Extract_Keys, CutsATooLongListInsideANameAt1998Characters) {
    std::string section = "[s]\n";
    for (int i = 0; i < 300; ++i)
        section += "näme" + std::to_string(10000 + i) + "=\n";
    write_file(path, section);
    const Names names = ini.Extract_Keys("s");
    ASSERT_EQ(names.size(), 200u);
    EXPECT_EQ(names[198], "näme10198");
    EXPECT_EQ(names[199], "näme1019");
}

TEST_F(Extract_Keys, CutsOneEndlessName) {
    write_file(path, "[s]\n" + std::string(5000, 'x') + "=1\nb=2\n");
    EXPECT_EQ(ini.Extract_Keys("s"), Names{std::string(1998, 'x')});
}

TEST_F(FileExists, TakesFilesAndFolders) {
    EXPECT_FALSE(ini.FileExists(path));
    write_file(path, "");
    EXPECT_TRUE(ini.FileExists(path));
    EXPECT_TRUE(ini.FileExists(folder.path()));
    EXPECT_FALSE(ini.FileExists(""));
}

TEST_F(WriteKeyValue, TellsOnceOfEachFileThatCantBeWritten) {
    Names told;
    IniLib telling(files, guarded, [&](const std::string& file) { told.push_back(file); });
    telling.SettingsFile = folder.file("missing/Orvanta.ini");
    std::string second = folder.file("missing/second.ini");
    EXPECT_FALSE(telling.WriteKeyValue("s", "a", "1"));
    EXPECT_FALSE(telling.WriteKeyValue("s", "b", "1"));
    EXPECT_FALSE(telling.WriteKeyValue("s", "a", "1", second));
    EXPECT_EQ(told, (Names{telling.SettingsFile, second}));
}

TEST_F(WriteKeyValue, TellsNothingOfAValueThatCantStandInAFile) {
    Names told;
    IniLib telling(files, guarded, [&](const std::string& file) { told.push_back(file); });
    telling.SettingsFile = path;
    EXPECT_FALSE(telling.WriteKeyValue("s", "a", "two\nlines"));
    EXPECT_TRUE(told.empty());
}
