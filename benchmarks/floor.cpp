#include "benchmarks/floor.h"

#include <sqlite3.h>

#include <stdexcept>

namespace bench {

namespace {

sqlite3_stmt* prepared(sqlite3* database, const char* sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v3(database, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database));
    return statement;
}

} // namespace

Floor::Floor(const std::string& database) {
    if (sqlite3_open_v2(database.c_str(), &database_, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database_));
    plain_ = prepared(database_,
                      "SELECT id, edited_at, type, priority, regarding, starts_at, ends_at, duration, colour,"
                      " scheduled_for, contact_group, contact, contact_count, cleared, has_details"
                      " FROM activities WHERE starts_at >= ? AND starts_at < ? AND recurrence = 0"
                      " ORDER BY starts_at, id");
    recurring_ = prepared(
        database_, "SELECT id, edited_at, type, priority, regarding, starts_at, ends_at, duration, colour,"
                   " scheduled_for, contact_group, contact, contact_count, cleared, has_details, recurrence,"
                   " frequency, until, days_of_week, weeks_of_month, days_of_month"
                   " FROM activities WHERE recurrence <> 0 ORDER BY starts_at, id");
}

Floor::~Floor() {
    sqlite3_finalize(plain_);
    sqlite3_finalize(recurring_);
    sqlite3_close(database_);
}

int Floor::plain_rows(values::DateTime from, values::DateTime to) {
    sqlite3_bind_int64(plain_, 1, from.seconds());
    sqlite3_bind_int64(plain_, 2, to.seconds());
    return read(plain_);
}

int Floor::recurring_rows() { return read(recurring_); }

int Floor::read(sqlite3_stmt* statement) {
    int rows = 0;
    const int columns = sqlite3_column_count(statement);
    for (; sqlite3_step(statement) == SQLITE_ROW; ++rows)
        for (int column = 0; column < columns; ++column)
            switch (sqlite3_column_type(statement, column)) {
            case SQLITE_INTEGER:
                sum += static_cast<std::uint64_t>(sqlite3_column_int64(statement, column));
                break;
            case SQLITE_TEXT:
                sum += sqlite3_column_text(statement, column)[0];
                sum += static_cast<std::uint64_t>(sqlite3_column_bytes(statement, column));
                break;
            default:
                break;
            }
    sqlite3_reset(statement);
    return rows;
}

} // namespace bench
