#pragma once

#include "core/values/date_time.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace bench {

// The least that a refresh of a week can cost, straight from SQLite: its plain rows and every recurring row, each
// by an index. It works on a copy of the database with indexes of its own, so that it doesn't depend on those of
// the store, and so that the store can't use its.
class Floor {
public:
    // Copies the database, which nobody writes meanwhile, to a file that is not there yet.
    Floor(const std::string& database, const std::string& copy, values::DateTime first_of_week);
    ~Floor();
    Floor(const Floor&) = delete;
    Floor& operator=(const Floor&) = delete;

    // Reads every column of a row that the store keeps in memory.
    void read_whole_rows();
    // The best that we know: only the columns that placing needs, the recurring rows from an index that holds them
    // all, and the bare arithmetic of their days in the week. No text is composed and no exception looked up.
    void read_and_expand();

    int plain_rows = 0, recurring_rows = 0; // of the last reading
    int occurrences = 0;                    // of the last expansion
    std::uint64_t sum = 0;                  // of all that was read, so that no reading can be left out

private:
    sqlite3_stmt* prepared(const std::string& sql);
    void add_columns(sqlite3_stmt* statement, std::string_view kinds);
    int read_plain(sqlite3_stmt* statement, std::string_view kinds);
    int days_in_week(sqlite3_stmt* statement) const;

    sqlite3* database_ = nullptr;
    const values::DateTime first_of_week_;
    std::vector<sqlite3_stmt*> statements_;
    sqlite3_stmt *plain_ = nullptr, *recurring_ = nullptr;               // whole rows
    sqlite3_stmt *needed_plain_ = nullptr, *needed_recurring_ = nullptr; // what placing needs
};

} // namespace bench
