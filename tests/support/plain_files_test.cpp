#include "support/plain_files.h"

#include "support/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using support::content_of;
using support::write_file;

namespace {

constexpr std::size_t plenty = 1000;

class PlainFilesTest : public ::testing::Test {
protected:
    support::TemporaryFolder folder;
    std::string path = folder.file("a file.txt");
    support::PlainFiles files;
};

} // namespace

TEST_F(PlainFilesTest, KnowsFilesAndFolders) {
    EXPECT_FALSE(files.exists(path));
    write_file(path, "x");
    EXPECT_TRUE(files.exists(path));
    EXPECT_TRUE(files.exists(folder.path()));
    EXPECT_FALSE(files.exists(""));
}

TEST_F(PlainFilesTest, ReadsAWholeFile) {
    write_file(path, std::string("a\0b\r\n", 5));
    const auto content = files.read(path, plenty);
    ASSERT_TRUE(content);
    EXPECT_EQ(content->bytes, std::string("a\0b\r\n", 5));
    EXPECT_EQ(content->stamp, files.stamp(path));
}

TEST_F(PlainFilesTest, ReadsNeitherFoldersNorMissingNorTooLargeFiles) {
    EXPECT_FALSE(files.read(path, plenty));
    EXPECT_FALSE(files.stamp(path));
    EXPECT_FALSE(files.read(folder.path(), plenty));
    EXPECT_FALSE(files.stamp(folder.path()));
    write_file(path, "12345");
    EXPECT_TRUE(files.read(path, 5));
    EXPECT_FALSE(files.read(path, 4));
}

TEST_F(PlainFilesTest, AStampChangesWithSizeOrTime) {
    write_file(path, "12345");
    const auto first = files.stamp(path);
    support::age(path);
    const auto second = files.stamp(path);
    EXPECT_NE(first, second);
    write_file(path, "123456");
    fs::last_write_time(path, fs::last_write_time(path) - std::chrono::minutes(1));
    EXPECT_NE(second, files.stamp(path));
}

TEST_F(PlainFilesTest, AStampProvesNothingWhileTheFileIsYoung) {
    write_file(path, "x");
    EXPECT_FALSE(files.read(path, plenty)->settled);
    support::age(path);
    EXPECT_TRUE(files.read(path, plenty)->settled);
}

TEST_F(PlainFilesTest, ReplacesAndLeavesNothingElse) {
    EXPECT_TRUE(files.replace(path, "old"));
    EXPECT_TRUE(files.replace(path, "new and longer"));
    EXPECT_EQ(content_of(path), "new and longer");
    EXPECT_TRUE(files.replace(path, ""));
    EXPECT_EQ(content_of(path), "");
    EXPECT_EQ(folder.count(), 1);
}

TEST_F(PlainFilesTest, ReplacingIsANewFileSoThatReadersKeepTheOldOne) {
    write_file(path, "old");
    std::ifstream reader(path);
    ASSERT_TRUE(files.replace(path, "new"));
    std::string seen;
    reader >> seen;
    EXPECT_EQ(seen, "old");
}

TEST_F(PlainFilesTest, ReplacingKeepsPermissionsAndLinks) {
    const std::string target = folder.file("target.txt");
    write_file(target, "old");
    const auto permissions = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    fs::permissions(target, permissions);
    fs::create_symlink("target.txt", path);
    ASSERT_TRUE(files.replace(path, "new"));
    EXPECT_TRUE(fs::is_symlink(path));
    EXPECT_EQ(content_of(target), "new");
    EXPECT_EQ(fs::status(target).permissions(), permissions);
}

TEST_F(PlainFilesTest, RefusesWhatCantBeReplaced) {
    EXPECT_FALSE(files.replace(folder.file("missing/file.txt"), "new"));
    EXPECT_FALSE(files.replace(folder.path(), "new"));
    EXPECT_FALSE(files.replace("", "new"));
    fs::create_symlink("loop.txt", folder.file("loop.txt"));
    EXPECT_FALSE(files.replace(folder.file("loop.txt"), "new"));
}

TEST_F(PlainFilesTest, RefusesAReadOnlyFile) {
    write_file(path, "old");
    fs::permissions(path, fs::perms::owner_read);
    EXPECT_FALSE(files.replace(path, "new"));
    EXPECT_EQ(content_of(path), "old");
    EXPECT_EQ(folder.count(), 1);
}

TEST_F(PlainFilesTest, ALockKeepsOthersOutUntilItGoes) {
    auto lock = files.lock(path);
    ASSERT_TRUE(lock);
    EXPECT_EQ(folder.count(), 1);
    lock.reset();
    EXPECT_EQ(folder.count(), 0);
    EXPECT_TRUE(files.lock(path));
}

TEST_F(PlainFilesTest, ALockThatItsProcessLeftBehindIsBroken) {
    auto lock = files.lock(path);
    support::age(path + ".lock");
    EXPECT_TRUE(files.lock(path));
}

TEST_F(PlainFilesTest, ThereIsNoLockInAMissingFolder) {
    EXPECT_FALSE(files.lock(folder.file("missing/file.txt")));
}
