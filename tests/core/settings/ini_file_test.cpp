#include "core/settings/ini_file.h"

#include "support/plain_files.h"
#include "support/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using settings::IniDocument;
using settings::IniFile;
using support::content_of;
using support::write_file;

namespace {

// Plain files that count how often one is read, and that another program can lock.
class WatchedFiles : public support::PlainFiles {
public:
    std::optional<host::FileStamp> stamp(const std::string& path) const override {
        return locked ? std::nullopt : PlainFiles::stamp(path);
    }
    std::optional<host::FileContent> read(const std::string& path, std::size_t most) const override {
        ++reads;
        return locked ? std::nullopt : PlainFiles::read(path, most);
    }

    mutable int reads = 0;
    bool locked = false;
};

class IniFileTest : public ::testing::Test {
protected:
    std::string value(const char* key = "a") { return file.read().value("s", key).value_or("absent"); }
    bool set(const std::string& text, const char* key = "a") {
        return file.change([&](IniDocument& document) { return document.set("s", key, text); });
    }

    support::TemporaryFolder folder;
    std::string path = folder.file("settings.ini");
    WatchedFiles files;
    IniFile file{files, path};
};

} // namespace

TEST_F(IniFileTest, AMissingFileIsEmpty) {
    EXPECT_EQ(value(), "absent");
    EXPECT_EQ(folder.count(), 0);
}

TEST_F(IniFileTest, TheFirstChangeMakesTheFile) {
    EXPECT_TRUE(set("1"));
    EXPECT_EQ(content_of(path), "[s]\na=1\n");
    EXPECT_EQ(folder.count(), 1);
}

TEST_F(IniFileTest, AWrittenValueIsSeenByTheNextRead) {
    EXPECT_TRUE(set("1"));
    EXPECT_EQ(value(), "1");
    EXPECT_TRUE(set("2"));
    EXPECT_EQ(value(), "2");
}

TEST_F(IniFileTest, AnUnchangedFileIsReadOnce) {
    write_file(path, "[s]\na=1\n");
    support::age(path);
    for (int i = 0; i < 1000; ++i)
        ASSERT_EQ(value(), "1");
    EXPECT_EQ(files.reads, 1);
}

TEST_F(IniFileTest, WhatAnotherProgramWritesIsSeenByTheNextRead) {
    write_file(path, "[s]\na=1\n");
    EXPECT_EQ(value(), "1");
    write_file(path, "[s]\na=22\n");
    EXPECT_EQ(value(), "22");
    fs::remove(path);
    EXPECT_EQ(value(), "absent");
}

TEST_F(IniFileTest, ASecondWriteWithinOneTickOfTheClockIsSeenThoughTheSizeIsTheSame) {
    write_file(path, "[s]\na=1\n");
    const auto tick = fs::last_write_time(path);
    for (const char* text : {"[s]\na=2\n", "[s]\na=3\n", "[s]\na=4\n"}) {
        write_file(path, text);
        fs::last_write_time(path, tick);
        ASSERT_EQ(value(), std::string(text).substr(6, 1));
    }
}

TEST_F(IniFileTest, AFileOfADifferentTimeIsReadAgainThoughTheSizeIsTheSame) {
    write_file(path, "[s]\na=1\n");
    support::age(path);
    EXPECT_EQ(value(), "1");
    write_file(path, "[s]\na=2\n");
    EXPECT_EQ(value(), "2");
}

TEST_F(IniFileTest, TheSameValueDoesntTouchTheFile) {
    write_file(path, "[s]\na=1\n");
    support::age(path);
    const auto before = fs::last_write_time(path);
    EXPECT_TRUE(set("1"));
    EXPECT_EQ(fs::last_write_time(path), before);
}

TEST_F(IniFileTest, AChangeStartsFromWhatAnotherProgramWrote) {
    EXPECT_TRUE(set("1"));
    write_file(path, "; theirs\n[s]\nb=2\n");
    EXPECT_TRUE(set("3"));
    EXPECT_EQ(content_of(path), "; theirs\n[s]\nb=2\na=3\n");
}

TEST_F(IniFileTest, ALockedFileIsEmptyAndIsntWritten) {
    write_file(path, "[s]\na=1\n");
    files.locked = true;
    EXPECT_EQ(value(), "absent");
    EXPECT_FALSE(set("2"));
    files.locked = false;
    EXPECT_EQ(value(), "1");
    EXPECT_EQ(content_of(path), "[s]\na=1\n");
}

TEST_F(IniFileTest, AFolderOrAMissingFolderIsEmptyAndIsntWritten) {
    for (const std::string& place : {folder.path(), folder.file("missing/settings.ini"), std::string()}) {
        IniFile other(files, place);
        EXPECT_FALSE(other.read().value("s", "a")) << place;
        EXPECT_FALSE(other.change([](IniDocument& document) { return document.set("s", "a", "1"); })) << place;
    }
    EXPECT_EQ(folder.count(), 0);
}

TEST_F(IniFileTest, AReadOnlyFileIsReadAndIsntWritten) {
    write_file(path, "[s]\na=1\n");
    fs::permissions(path, fs::perms::owner_read);
    EXPECT_EQ(value(), "1");
    EXPECT_FALSE(set("2"));
    EXPECT_EQ(value(), "1");
}

TEST_F(IniFileTest, AFileThatIsNoSettingsFileBySizeIsEmptyAndIsntWritten) {
    write_file(path, "[s]\na=1\n");
    const std::uintmax_t size = 100 * 1024 * 1024;
    fs::resize_file(path, size);
    EXPECT_EQ(value(), "absent");
    EXPECT_FALSE(set("2"));
    EXPECT_EQ(fs::file_size(path), size);
}

TEST_F(IniFileTest, TheLargestFileIsReadWhateverItHolds) {
    std::string lines;
    while (lines.size() + 4 <= IniFile::most_bytes)
        lines += "[]=\n";
    write_file(path, lines);
    EXPECT_EQ(value(), "absent");
    EXPECT_FALSE(set("the file would grow beyond what can be read"));
    EXPECT_EQ(fs::file_size(path), lines.size());
    write_file(path, std::string(IniFile::most_bytes, '\0'));
    EXPECT_EQ(value(), "absent");
}

TEST_F(IniFileTest, ARefusedChangeLeavesTheFileAlone) {
    write_file(path, "[s]\na=1\n");
    EXPECT_FALSE(set("1\n2"));
    EXPECT_FALSE(file.change([](IniDocument& document) {
        document.set("s", "a", "2");
        return false;
    }));
    EXPECT_EQ(content_of(path), "[s]\na=1\n");
    EXPECT_EQ(value(), "1");
}
