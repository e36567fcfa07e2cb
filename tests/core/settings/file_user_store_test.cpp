#include "core/settings/file_user_store.h"

#include "support/plain_files.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <stdexcept>

using settings::FileUserStore;
using Values = std::vector<std::pair<std::string, std::string>>;

namespace {

class FileUserStoreTest : public ::testing::Test {
protected:
    support::TemporaryFolder folder;
    std::string path = folder.file("per-user.txt");
    support::PlainFiles files;
    FileUserStore store{files, path};
};

const std::string awkward_texts[] = {"",
                                     " ",
                                     "  both ends  ",
                                     "\t",
                                     "two\nlines\r\n",
                                     std::string("a\0b", 3),
                                     "\"quoted\"",
                                     "'",
                                     "\"",
                                     "50%",
                                     "%41",
                                     "%",
                                     "a=b",
                                     "=",
                                     "[a]",
                                     "]",
                                     "; no comment",
                                     "@",
                                     "C:\\folder\\file.ini",
                                     "/home/zoë/file.ini",
                                     "€ 😀",
                                     "bytes \xFF\xE9",
                                     "\xEF\xBB\xBF",
                                     std::string(50'000, 'x')};

} // namespace

TEST_F(FileUserStoreTest, ReadsWhatWasWritten) {
    EXPECT_FALSE(store.read("Orvanta\\Settings", "Left"));
    EXPECT_TRUE(store.write("Orvanta\\Settings", "Left", "100"));
    EXPECT_EQ(store.read("Orvanta\\Settings", "Left"), "100");
    EXPECT_EQ(support::content_of(path), "[Orvanta\\Settings]\nLeft=100\n");
    EXPECT_TRUE(store.write("Orvanta\\Settings", "Left", "200"));
    EXPECT_EQ(store.read("Orvanta\\Settings", "Left"), "200");
    EXPECT_EQ(folder.count(), 1);
}

TEST_F(FileUserStoreTest, AValueMayBeAnyText) {
    for (const std::string& text : awkward_texts) {
        EXPECT_TRUE(store.write("branch", "name", text)) << text;
        EXPECT_EQ(store.read("branch", "name"), text);
        EXPECT_EQ(store.list("branch"), (Values{{"name", text}}));
    }
}

TEST_F(FileUserStoreTest, ANameMayBeAnyText) {
    Values expected;
    for (const std::string& text : awkward_texts) {
        EXPECT_TRUE(store.write("branch", text, "value of " + text)) << text;
        expected.emplace_back(text, "value of " + text);
    }
    for (const std::string& text : awkward_texts)
        EXPECT_EQ(store.read("branch", text), "value of " + text);
    EXPECT_EQ(store.list("branch"), expected);
    for (const std::string& text : awkward_texts)
        EXPECT_TRUE(store.remove("branch", text)) << text;
    EXPECT_EQ(store.list("branch"), Values{});
}

TEST_F(FileUserStoreTest, ABranchMayBeAnyTextButEmpty) {
    for (const std::string& text : awkward_texts) {
        EXPECT_EQ(store.write(text, "name", "value of " + text), !text.empty()) << text;
        if (!text.empty()) {
            EXPECT_EQ(store.read(text, "name"), "value of " + text);
            EXPECT_TRUE(store.remove_branch(text)) << text;
        }
    }
    EXPECT_EQ(support::content_of(path), "");
}

TEST_F(FileUserStoreTest, CaseDoesntCountInNames) {
    EXPECT_TRUE(store.write("Orvanta\\Settings", "Left", "1"));
    EXPECT_EQ(store.read("orvanta\\settings", "LEFT"), "1");
}

TEST_F(FileUserStoreTest, RemovingIsFalseWhenThereIsNothing) {
    EXPECT_FALSE(store.remove("branch", "name"));
    EXPECT_FALSE(store.remove_branch("branch"));
    EXPECT_EQ(folder.count(), 0);
    store.write("branch", "name", "1");
    EXPECT_FALSE(store.remove("branch", "other"));
    EXPECT_FALSE(store.remove_branch("other"));
    EXPECT_TRUE(store.remove("branch", "name"));
    EXPECT_FALSE(store.remove("branch", "name"));
}

TEST_F(FileUserStoreTest, ABranchIsRemovedWithThoseBelowIt) {
    for (const char* branch : {"Orvanta", "Orvanta\\Off", "Orvanta\\Off\\Deep", "Orvanta\\Office"})
        store.write(branch, "name", "1");
    EXPECT_TRUE(store.remove_branch("orvanta\\off"));
    EXPECT_FALSE(store.read("Orvanta\\Off", "name"));
    EXPECT_FALSE(store.read("Orvanta\\Off\\Deep", "name"));
    EXPECT_TRUE(store.read("Orvanta\\Office", "name"));
    EXPECT_TRUE(store.remove_branch("Orvanta"));
    EXPECT_FALSE(store.read("Orvanta\\Office", "name"));
}

TEST_F(FileUserStoreTest, AReadSeesWhatAnotherProcessWrote) {
    FileUserStore other(files, path);
    EXPECT_TRUE(other.write("branch", "name", "1"));
    EXPECT_EQ(store.read("branch", "name"), "1");
    EXPECT_TRUE(store.write("branch", "second", "2"));
    EXPECT_EQ(other.read("branch", "second"), "2");
    EXPECT_EQ(other.read("branch", "name"), "1");
}

TEST_F(FileUserStoreTest, ABlocksChangesAreKeptAtOnceAtItsEnd) {
    store.write("branch", "old", "1");
    const std::string before = support::content_of(path);
    EXPECT_TRUE(store.together([&] {
        for (int i = 0; i < 100; ++i)
            EXPECT_TRUE(store.write("branch", "name" + std::to_string(i), std::to_string(i)));
        EXPECT_TRUE(store.remove("branch", "old"));
        EXPECT_TRUE(store.together([&] { store.write("inner", "name", "2"); }));
        EXPECT_EQ(store.read("branch", "name7"), "7");
        EXPECT_EQ(store.list("branch").size(), 100U);
        EXPECT_EQ(support::content_of(path), before);
    }));
    FileUserStore other(files, path);
    EXPECT_EQ(other.list("branch").size(), 100U);
    EXPECT_EQ(other.list("branch")[99].first, "name99");
    EXPECT_EQ(other.read("inner", "name"), "2");
    EXPECT_FALSE(other.read("branch", "old"));
}

TEST_F(FileUserStoreTest, ABlockThatFailsKeepsWhatItChangedBefore) {
    EXPECT_THROW(store.together([&] {
        store.write("branch", "name", "1");
        throw std::runtime_error("failed");
    }),
                 std::runtime_error);
    EXPECT_EQ(FileUserStore(files, path).read("branch", "name"), "1");
    EXPECT_TRUE(store.write("branch", "second", "2"));
    EXPECT_EQ(FileUserStore(files, path).read("branch", "second"), "2");
}

TEST_F(FileUserStoreTest, WritingIsFalseWhereTheFolderIsMissing) {
    FileUserStore nowhere(files, folder.file("missing/per-user.txt"));
    EXPECT_FALSE(nowhere.write("branch", "name", "1"));
    EXPECT_FALSE(nowhere.together([&] { nowhere.write("branch", "name", "1"); }));
    EXPECT_FALSE(nowhere.read("branch", "name"));
}

TEST_F(FileUserStoreTest, AHandWrittenFileIsUnderstood) {
    support::write_file(path, "; mine\r\n[Orvanta\\Settings]\r\nSettingsFile = C:\\100%\\a%2\r\n");
    EXPECT_EQ(store.read("Orvanta\\Settings", "SettingsFile"), "C:\\100%\\a%2");
    EXPECT_TRUE(store.write("Orvanta\\Settings", "Left", "1"));
    EXPECT_EQ(support::content_of(path),
              "; mine\r\n[Orvanta\\Settings]\r\nSettingsFile = C:\\100%\\a%2\r\nLeft=1\r\n");
}
