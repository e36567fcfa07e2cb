#pragma once

#include "values/date_time.h"

#include <cstdint>
#include <memory>
#include <string>

struct sqlite3;
struct sqlite3_stmt;

namespace bench {

// The least that a refresh can cost: its rows straight from SQLite, every column that it needs read and summed up.
class Floor {
public:
    explicit Floor(const std::string& database);
    ~Floor();
    Floor(const Floor&) = delete;
    Floor& operator=(const Floor&) = delete;

    // The plain rows that start at or after `from` and before `to`, by an index. Gives how many there were.
    int plain_rows(values::DateTime from, values::DateTime to);
    // Every recurring row.
    int recurring_rows();

    std::uint64_t sum = 0; // of all that was read, so that no reading can be left out

private:
    int read(sqlite3_stmt* statement);

    sqlite3* database_ = nullptr;
    sqlite3_stmt* plain_ = nullptr;
    sqlite3_stmt* recurring_ = nullptr;
};

} // namespace bench
