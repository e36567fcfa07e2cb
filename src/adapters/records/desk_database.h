#pragma once

#include "core/act/database.h"

#include <functional>
#include <memory>
#include <string>

namespace records {

// The contact desk's data, read and written in the database's file itself, beside the running desk. Opening ""
// asks `open_database_path` for the file that the desk has open; it gives an empty text when there is none and
// may fail by itself. Texts that stand for dates are read in the locale, which lives as long as the database.
//
// What has been read stays in memory, shared by all lists of one database, and is brought up to date by what has
// changed in the file since. The list of users alone stays as it was when the database was opened, since the
// program keeps positions in it.
std::unique_ptr<act::Database> make_database(std::function<std::string()> open_database_path,
                                             const values::Locale& locale = values::english_us());

} // namespace records
