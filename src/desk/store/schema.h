#pragma once

#include "desk/store/sqlite_connection.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

// The versions of the database's tables. The version stands in the file's header beside the mark that makes the
// file a contact database, so that both are written by the transaction that makes the tables.
namespace store {

inline constexpr int application_id = 0x4F52564E;

// Brings the tables from the version before to version `to`.
struct Migration {
    int to;
    std::string_view script;
};
const std::vector<Migration>& migrations(); // by rising version, the first makes the tables of an empty file

// Runs the migrations that the file hasn't had, all of them or, at a failure, none.
void migrate(SqliteConnection& connection, const std::vector<Migration>& migrations);

// Makes a file with empty tables; a failure leaves no file. Opens an existing one, looks whether it is a contact
// database that this program understands, and brings it up to date.
std::unique_ptr<SqliteConnection> create_database(const std::string& path);
std::unique_ptr<SqliteConnection> open_database(const std::string& path);

} // namespace store
