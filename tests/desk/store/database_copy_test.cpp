#include "desk/store/expect_failure.h"
#include "desk/store/store.h"
#include "support/full_disk.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

using store::Store;
using support::store_failure;

namespace {

bool to_the_end(int, int) { return true; }

class DatabaseCopy : public testing::Test {
protected:
    DatabaseCopy() {
        database.store().together([&] {
            for (int i = 0; i < 5000; ++i)
                database.store().add(store::Contact{.fields = {{26, "Contact " + std::to_string(i)}}});
        });
    }
    static std::size_t contacts_in(const std::string& path) { return Store::open(path)->contacts().size(); }

    support::TemporaryDatabase database;
    support::TemporaryFolder folder;
    std::string copy = folder.file("copy.desk");
};

TEST_F(DatabaseCopy, HoldsAllAndIsADatabaseOfItsOwn) {
    int last_done = 0, last_all = 0;
    EXPECT_TRUE(database.store().save_copy(copy, [&](int done, int all) {
        EXPECT_GE(done, last_done);
        last_done = done;
        last_all = all;
        return true;
    }));
    EXPECT_GT(last_all, 0);
    EXPECT_EQ(last_done, last_all);
    EXPECT_EQ(contacts_in(copy), 5000U);
    Store::open(copy)->add(store::Contact{});
    EXPECT_EQ(contacts_in(copy), 5001U);
    EXPECT_EQ(database.store().contacts().size(), 5000U);
    struct stat status = {};
    ASSERT_EQ(::stat(copy.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
}

TEST_F(DatabaseCopy, ReplacesAFileAndLeavesNoneBesideIt) {
    support::write_file(copy, "old");
    support::write_file(copy + "-wal", "the log of what was there");
    EXPECT_TRUE(database.store().save_copy(copy, to_the_end));
    EXPECT_EQ(folder.count(), 1);
    EXPECT_EQ(contacts_in(copy), 5000U);
}

TEST_F(DatabaseCopy, LeavesWhatWasThereWhenItIsStopped) {
    support::write_file(copy, "old");
    EXPECT_FALSE(database.store().save_copy(copy, [](int, int) { return false; }));
    EXPECT_EQ(support::content_of(copy), "old");
    EXPECT_EQ(folder.count(), 1);
}

TEST_F(DatabaseCopy, LeavesWhatWasThereOnAFullDisk) {
    support::write_file(copy, "old");
    {
        const support::FullDisk disk(100'000);
        EXPECT_NE(store_failure([&] { database.store().save_copy(copy, to_the_end); }), "");
    }
    EXPECT_EQ(support::content_of(copy), "old");
    EXPECT_EQ(folder.count(), 1);
}

TEST_F(DatabaseCopy, IsRefusedOverTheDatabaseItself) {
    EXPECT_NE(store_failure([&] { database.store().save_copy(database.path(), to_the_end); }).find("another name"),
              std::string::npos);
    EXPECT_EQ(database.store().contacts().size(), 5000U);
}

TEST_F(DatabaseCopy, IsRefusedInAFolderThatIsMissing) {
    EXPECT_NE(store_failure([&] { database.store().save_copy(folder.file("none/copy.desk"), to_the_end); }), "");
}

TEST_F(DatabaseCopy, SavesADatabaseThatWasDeletedEvenToItsOwnPath) {
    database.store().add(store::Contact{});
    std::filesystem::remove(database.path());
    EXPECT_TRUE(database.store().save_copy(database.path(), to_the_end));
    database.close();
    EXPECT_EQ(contacts_in(database.path()), 5001U);
}

// What happens to a database's file while it is open.
class MovedDatabase : public DatabaseCopy {
protected:
    void expect_nothing_stored() {
        const auto before = database.store().contacts().size();
        const std::string sentence = store_failure([&] { database.store().add(store::Contact{}); });
        EXPECT_NE(sentence.find("was moved, deleted or replaced while it was open, so nothing was stored"),
                  std::string::npos)
            << sentence;
        EXPECT_EQ(database.store().contacts().size(), before);
    }
};

TEST_F(MovedDatabase, TakesNothingOnceItWasDeleted) {
    std::filesystem::remove(database.path());
    expect_nothing_stored();
}

TEST_F(MovedDatabase, TakesNothingOnceItHasAnotherName) {
    std::filesystem::rename(database.path(), folder.file("elsewhere.desk"));
    expect_nothing_stored();
}

TEST_F(MovedDatabase, TakesNothingOnceAnotherStandsInItsPlace) {
    ASSERT_TRUE(database.store().save_copy(copy, to_the_end));
    std::filesystem::copy_file(copy, database.path() + ".new");
    std::filesystem::rename(database.path() + ".new", database.path());
    expect_nothing_stored();
}

TEST_F(MovedDatabase, TakesMoreWhenItIsBackInItsPlace) {
    std::filesystem::rename(database.path(), folder.file("elsewhere.desk"));
    expect_nothing_stored();
    std::filesystem::rename(folder.file("elsewhere.desk"), database.path());
    database.store().add(store::Contact{});
    EXPECT_EQ(database.store().contacts().size(), 5001U);
}

} // namespace
