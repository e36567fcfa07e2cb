#include "desk/store/schema.h"

#include "desk/store/expect_failure.h"
#include "desk/store/imported_records.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>

using store::Migration;
using store::SqliteConnection;
using store::Store;
using support::content_of;
using support::store_failure;
using support::TemporaryDatabase;
using support::TemporaryFolder;
using support::write_file;
using values::DateTime;

namespace {

// Runs a script on a file that need not be there yet.
void run_script(const std::string& path, const std::string& script) {
    sqlite3* database = nullptr;
    ASSERT_EQ(sqlite3_open(path.c_str(), &database), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(database, script.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(database);
    sqlite3_close(database);
}

std::int64_t number(SqliteConnection& connection, std::string_view sql) {
    store::Rows rows = connection.query(sql);
    return rows.step() ? rows.number(0) : -1;
}

std::string tables_of(const std::string& path) {
    SqliteConnection connection(path, SqliteConnection::Mode::read_write);
    std::string result;
    store::Rows rows =
        connection.query("SELECT type, name, sql FROM sqlite_master WHERE sql IS NOT NULL ORDER BY type, name");
    while (rows.step())
        result += rows.text(0) + " " + rows.text(1) + "\n" + rows.text(2) + "\n";
    return result;
}

void expect_failure_with(const std::string& path, const std::string& part) {
    const std::string sentence = store_failure([&] { Store::open(path); });
    EXPECT_NE(sentence.find(part), std::string::npos) << sentence;
    EXPECT_NE(sentence.find(path), std::string::npos) << sentence;
}

} // namespace

TEST(Schema, MakesFilesForTheirOwnerAlone) {
    const mode_t usual = ::umask(0);
    TemporaryDatabase database;
    database.store().add(store::Contact{});
    for (const char* ending : {"", "-wal", "-shm"}) {
        struct stat status = {};
        ASSERT_EQ(::stat((database.path() + ending).c_str(), &status), 0) << ending;
        EXPECT_EQ(status.st_mode & 0777, 0600U) << ending;
    }
    ::umask(usual);
}

TEST(Schema, RefusesAMissingFile) {
    const TemporaryFolder folder;
    expect_failure_with(folder.file("none.desk"), "There is no database");
    EXPECT_FALSE(std::filesystem::exists(folder.file("none.desk")));
}

TEST(Schema, RefusesAFolder) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.file("contacts.desk"));
    expect_failure_with(folder.file("contacts.desk"), "is a folder");
}

TEST(Schema, RefusesAPipe) { expect_failure_with("/dev/null", "can't be opened"); }

TEST(Schema, RefusesAnEmptyFileAndLeavesItEmpty) {
    const TemporaryFolder folder;
    write_file(folder.file("empty.desk"), "");
    expect_failure_with(folder.file("empty.desk"), "isn't a contact database");
    EXPECT_EQ(content_of(folder.file("empty.desk")), "");
}

TEST(Schema, RefusesATextAndLeavesItAsItIs) {
    const TemporaryFolder folder;
    const std::string text(5000, 'x');
    write_file(folder.file("letter.txt"), text);
    expect_failure_with(folder.file("letter.txt"), "isn't a contact database");
    EXPECT_EQ(content_of(folder.file("letter.txt")), text);
}

TEST(Schema, RefusesADatabaseOfAnotherProgramAndLeavesItAsItIs) {
    const TemporaryFolder folder;
    run_script(folder.file("music.db"), "CREATE TABLE songs (title); PRAGMA application_id = 77");
    const std::string before = content_of(folder.file("music.db"));
    expect_failure_with(folder.file("music.db"), "isn't a contact database");
    EXPECT_EQ(content_of(folder.file("music.db")), before);
}

TEST(Schema, RefusesADatabaseOfANewerVersionAndLeavesItAsItIs) {
    TemporaryDatabase database;
    database.close();
    run_script(database.path(), "PRAGMA user_version = 999");
    const std::string before = content_of(database.path());
    expect_failure_with(database.path(), "newer version");
    EXPECT_EQ(content_of(database.path()), before);
}

TEST(Schema, RefusesAFileThatWasCutInHalf) {
    TemporaryDatabase database;
    database.store().together([&] {
        for (int i = 0; i < 300; ++i)
            database.store().add(store::Contact{});
    });
    database.close();
    const auto size = std::filesystem::file_size(database.path());
    std::filesystem::resize_file(database.path(), size / 2);
    expect_failure_with(database.path(), "damaged");
    EXPECT_EQ(std::filesystem::file_size(database.path()), size / 2);
}

TEST(Schema, RefusesAFileOfWhichOnlyTheHeaderIsLeft) {
    TemporaryDatabase database;
    database.close();
    std::filesystem::resize_file(database.path(), 100);
    expect_failure_with(database.path(), "");
}

TEST(Schema, RefusesADatabaseWithoutOneOfItsTables) {
    TemporaryDatabase database;
    database.close();
    run_script(database.path(), "DROP TABLE exceptions");
    expect_failure_with(database.path(), "damaged");
}

TEST(Schema, FailsAsDamagedWhenAPageInTheMiddleIsOverwritten) {
    TemporaryDatabase database;
    database.store().together([&] {
        for (int i = 0; i < 3000; ++i)
            database.store().add(store::Activity{.start = DateTime::of(2024, 3, 11).plus_minutes(i)});
    });
    database.close();
    std::string bytes = content_of(database.path());
    std::fill(bytes.begin() + 100000, bytes.end(), '\x55');
    write_file(database.path(), bytes);
    const std::string sentence = store_failure([&] { database.open_again()->activities({}); });
    EXPECT_NE(sentence.find("damaged"), std::string::npos) << sentence;
}

TEST(Schema, MakesNoDatabaseOverAnExistingFile) {
    const TemporaryFolder folder;
    write_file(folder.file("letter.txt"), "Dear all");
    const std::string sentence = store_failure([&] { Store::create(folder.file("letter.txt")); });
    EXPECT_NE(sentence.find("already"), std::string::npos);
    EXPECT_EQ(content_of(folder.file("letter.txt")), "Dear all");
}

TEST(Schema, MakesNoDatabaseInAFolderThatThereIsNot) {
    const TemporaryFolder folder;
    const std::string sentence = store_failure([&] { Store::create(folder.file("none/contacts.desk")); });
    EXPECT_NE(sentence.find("can't be made"), std::string::npos);
}

TEST(Schema, MakesADatabaseUnderANameFullOfSigns) {
    const TemporaryFolder folder;
    const std::string path = folder.file("file:a?b#c%20 \"d'.desk");
    Store::create(path);
    EXPECT_TRUE(std::filesystem::exists(path));
    EXPECT_TRUE(Store::open(path)->contacts().empty());
}

TEST(Schema, WritesTheFileAheadAndWaitsForTheDisk) {
    TemporaryDatabase database;
    database.close();
    const auto connection = store::open_database(database.path());
    store::Rows mode = connection->query("PRAGMA journal_mode");
    ASSERT_TRUE(mode.step());
    EXPECT_EQ(mode.text(0), "wal");
    EXPECT_EQ(number(*connection, "PRAGMA synchronous"), 2);
    EXPECT_EQ(number(*connection, "PRAGMA foreign_keys"), 1);
}

TEST(Schema, OpensADatabaseThatVersion1Left) {
    const TemporaryFolder folder;
    const std::string path = folder.file("old.desk");
    run_script(path, content_of(std::string(TEST_DATA) + "/desk/version_1.sql"));
    {
        const auto store = Store::open(path);
        const auto activities = store->activities({});
        ASSERT_EQ(activities.size(), 2u);
        EXPECT_EQ(activities[0].regarding, "Weekly meeting");
        EXPECT_EQ(activities[0].recurrence.kind, store::RecurrenceKind::weekly);
        EXPECT_EQ(activities[0].exceptions, std::vector<DateTime>{DateTime::of(2024, 3, 18)});
        EXPECT_EQ(activities[1].contacts.size(), 2u);
        EXPECT_EQ(activities[1].details, "Bring the slides.");
        EXPECT_EQ(store->users().size(), 1u);
        EXPECT_EQ(store->groups().front().contacts.size(), 1u);
        EXPECT_EQ(store->notes(activities[1].contacts.front()).size(), 1u);
        EXPECT_LT(activities[1].id, store->add(store::Activity{}));
    }
    TemporaryDatabase fresh;
    fresh.close();
    EXPECT_EQ(tables_of(path), tables_of(fresh.path()));
}

TEST(Schema, OpensADatabaseThatVersion2Left) {
    const TemporaryFolder folder;
    const std::string path = folder.file("old.desk");
    run_script(path, content_of(std::string(TEST_DATA) + "/desk/version_2.sql"));
    std::string identity;
    {
        const auto store = Store::open(path);
        const auto activities = store->activities({});
        ASSERT_EQ(activities.size(), 2u);
        EXPECT_EQ(activities[1].contacts.size(), 2u);
        identity = store->identity();
        EXPECT_EQ(identity.size(), 16u);
        store->imported_records().remember({.uid = "round", .record = activities[0].id});
        EXPECT_EQ(store->imported_records().of(store::RecordKind::activity, "", "round").size(), 1u);
    }
    EXPECT_EQ(Store::open(path)->identity(), identity);
    TemporaryDatabase fresh;
    EXPECT_NE(fresh.store().identity(), identity);
    fresh.close();
    EXPECT_EQ(tables_of(path), tables_of(fresh.path()));
}

namespace {

class Migrations : public testing::Test {
protected:
    TemporaryFolder folder;
    std::string path = folder.file("migrated.db");
    std::vector<Migration> steps = {{1, "CREATE TABLE first (a)"},
                                    {2, "INSERT INTO first VALUES (20); CREATE TABLE second (a)"},
                                    {3, "INSERT INTO second SELECT a + 1 FROM first"}};
    std::unique_ptr<SqliteConnection> connection;

    void SetUp() override {
        write_file(path, "");
        connection = std::make_unique<SqliteConnection>(path, SqliteConnection::Mode::read_write);
    }
    std::int64_t number(std::string_view sql) { return ::number(*connection, sql); }
};

} // namespace

TEST_F(Migrations, RunInTheirOrderFromAnEmptyFile) {
    store::migrate(*connection, steps);
    EXPECT_EQ(number("SELECT a FROM second"), 21);
    EXPECT_EQ(number("PRAGMA user_version"), 3);
    EXPECT_EQ(number("PRAGMA application_id"), store::application_id);
}

TEST_F(Migrations, RunOnlyThoseThatTheFileHasNotHad) {
    store::migrate(*connection, {steps[0]});
    connection->execute("INSERT INTO first VALUES (5)");
    store::migrate(*connection, steps);
    store::migrate(*connection, steps);
    EXPECT_EQ(number("SELECT count(*) FROM first"), 2);
    EXPECT_EQ(number("SELECT count(*) FROM second"), 2);
}

TEST_F(Migrations, LeaveTheFileAsItWasWhenOneFails) {
    store::migrate(*connection, {steps[0]});
    steps[2].script = "INSERT INTO second VALUES (1); INSERT INTO nowhere VALUES (1)";
    store_failure([&] { store::migrate(*connection, steps); });
    EXPECT_EQ(number("PRAGMA user_version"), 1);
    EXPECT_EQ(number("SELECT count(*) FROM first"), 0);
    EXPECT_EQ(number("SELECT count(*) FROM sqlite_master"), 1);
    EXPECT_FALSE(connection->in_transaction());
}
