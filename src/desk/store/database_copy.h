#pragma once

#include "desk/store/sqlite_connection.h"

#include <string>

namespace store {

// As Store::save_copy.
bool copy_database(SqliteConnection& source, const std::string& path, const SqliteConnection::Progress& progress);

} // namespace store
