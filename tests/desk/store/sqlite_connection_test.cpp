#include "desk/store/sqlite_connection.h"

#include "desk/store/expect_failure.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

using store::Rows;
using store::SqliteConnection;
using support::store_failure;
using support::TemporaryDatabase;

namespace {

class Connections : public testing::Test {
protected:
    TemporaryDatabase database;
    SqliteConnection connection{database.path(), SqliteConnection::Mode::read_write};
};

} // namespace

TEST_F(Connections, GiveBackWhatWasBound) {
    using namespace std::string_literals;
    const std::string with_zero = "a\0b"s;
    Rows rows = connection.query("SELECT ?, ?, ?, ?, ?, ?, ?", std::int64_t(1) << 40, -7, true, with_zero, nullptr,
                                 std::optional<int>(3), std::optional<std::string>());
    ASSERT_TRUE(rows.step());
    EXPECT_EQ(rows.number(0), std::int64_t(1) << 40);
    EXPECT_EQ(rows.small_number(1), -7);
    EXPECT_TRUE(rows.flag(2));
    EXPECT_EQ(rows.text(3), with_zero);
    EXPECT_TRUE(rows.is_null(4));
    EXPECT_EQ(rows.text(4), "");
    EXPECT_EQ(rows.number(4), 0);
    EXPECT_EQ(rows.number(5), 3);
    EXPECT_TRUE(rows.is_null(6));
    EXPECT_FALSE(rows.step());
}

TEST_F(Connections, TellAnEmptyTextFromNone) {
    Rows rows = connection.query("SELECT ?, ?", "", std::string_view());
    ASSERT_TRUE(rows.step());
    EXPECT_FALSE(rows.is_null(0));
    EXPECT_FALSE(rows.is_null(1));
}

TEST_F(Connections, RunTheSameStatementInsideItself) {
    const std::string_view sql = "SELECT 1 UNION SELECT 2 ORDER BY 1";
    Rows outer = connection.query(sql);
    ASSERT_TRUE(outer.step());
    {
        Rows inner = connection.query(sql);
        EXPECT_TRUE(inner.step());
        EXPECT_EQ(inner.number(0), 1);
    }
    ASSERT_TRUE(outer.step());
    EXPECT_EQ(outer.number(0), 2);
    EXPECT_FALSE(outer.step());
}

TEST_F(Connections, ForgetTheParametersOfTheRunBefore) {
    const std::string_view sql = "SELECT ?";
    connection.run(sql, "old");
    Rows rows = connection.query(sql);
    ASSERT_TRUE(rows.step());
    EXPECT_TRUE(rows.is_null(0));
}

TEST_F(Connections, WorkOnAfterAStatementThatFailed) {
    store_failure([&] { connection.run("INSERT INTO counters (name, value) VALUES (?, 1)", "revision"); });
    connection.run("INSERT INTO counters (name, value) VALUES (?, 1)", "another");
    EXPECT_EQ(connection.changed_rows(), 1);
}

TEST_F(Connections, FailWithTheFilesNameWhenATableIsMissing) {
    const std::string sentence = store_failure([&] { connection.run("SELECT 1 FROM no_such_table"); });
    EXPECT_NE(sentence.find(database.path()), std::string::npos);
    EXPECT_NE(sentence.find("damaged"), std::string::npos);
}

TEST_F(Connections, GiveUpOnADatabaseThatStaysLocked) {
    connection.execute("BEGIN IMMEDIATE");
    const std::string sentence = store_failure([&] { database.store().add(store::Contact{}); });
    EXPECT_NE(sentence.find("locked by another program"), std::string::npos);
    connection.execute("ROLLBACK");
    database.store().add(store::Contact{});
    EXPECT_EQ(database.store().contacts().size(), 1u);
}

TEST_F(Connections, RunNoCodeThatAFileBrings) {
    connection.execute("CREATE TABLE trace (text)");
    connection.execute("CREATE TRIGGER spy AFTER INSERT ON users BEGIN INSERT INTO trace VALUES (new.name); END");
    const auto store = database.open_again();
    store->add(store::User{.name = "Ann"});
    EXPECT_FALSE(connection.query("SELECT 1 FROM trace").step());
}
