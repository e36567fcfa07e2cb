#include "benchmarks/floor.h"

#include <sqlite3.h>

#include <algorithm>
#include <filesystem>
#include <stdexcept>

namespace bench {

namespace {

// One letter for each column: a number or a text.
const std::string whole_row =
    "starts_at, id, edited_at, type, priority, cleared, recurrence, ends_at, revision,"
    " scheduled_for, contact_group, contact, contact_count, duration, alarm_lead, colour,"
    " private, alarm, has_details, frequency, until, days_of_week, weeks_of_month,"
    " days_of_month, regarding";
constexpr std::string_view whole_row_kinds = "ntnnnnnnntttnnnnnnnnnnnnt";

const std::string needed = "id, scheduled_for, contact, starts_at, type, priority, cleared, duration, colour,"
                           " has_details";
constexpr std::string_view needed_kinds = "tttnnnnnnn";
const std::string rule = "recurrence, frequency, until, days_of_week, weeks_of_month, days_of_month";
constexpr int start_column = 3, rule_column = 10;

constexpr std::int64_t seconds_of_day = 86400;

} // namespace

Floor::Floor(const std::string& database, const std::string& copy, values::DateTime first_of_week)
    : first_of_week_(first_of_week) {
    std::filesystem::copy_file(database, copy);
    if (sqlite3_open_v2(copy.c_str(), &database_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr) !=
        SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database_));
    const std::string indexes = "PRAGMA cache_size = -400000;"
                                "CREATE INDEX floor_whole ON activities (" +
                                whole_row +
                                ") WHERE recurrence <> 0;"
                                "CREATE INDEX floor_needed ON activities (" +
                                needed + ", " + rule + ") WHERE recurrence <> 0";
    if (sqlite3_exec(database_, indexes.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database_));
    const std::string of_week = " FROM activities WHERE starts_at >= ? AND starts_at < ? AND recurrence = 0";
    plain_ = prepared("SELECT " + whole_row + of_week + " ORDER BY starts_at, id");
    needed_plain_ = prepared("SELECT " + needed + of_week);
    recurring_ = prepared("SELECT " + whole_row + " FROM activities INDEXED BY floor_whole WHERE recurrence <> 0");
    needed_recurring_ = prepared("SELECT " + needed + ", " + rule +
                                 " FROM activities INDEXED BY floor_needed WHERE recurrence <> 0");
}

Floor::~Floor() {
    for (sqlite3_stmt* statement : statements_)
        sqlite3_finalize(statement);
    sqlite3_close(database_);
}

sqlite3_stmt* Floor::prepared(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v3(database_, sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) !=
        SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database_));
    return statements_.emplace_back(statement);
}

void Floor::add_columns(sqlite3_stmt* statement, std::string_view kinds) {
    for (int column = 0; column < static_cast<int>(kinds.size()); ++column)
        if (kinds[static_cast<std::size_t>(column)] == 'n')
            sum += static_cast<std::uint64_t>(sqlite3_column_int64(statement, column));
        else if (const unsigned char* text = sqlite3_column_text(statement, column))
            sum += text[0] + static_cast<std::uint64_t>(sqlite3_column_bytes(statement, column));
}

int Floor::read_plain(sqlite3_stmt* statement, std::string_view kinds) {
    sqlite3_bind_int64(statement, 1, first_of_week_.seconds());
    sqlite3_bind_int64(statement, 2, first_of_week_.plus_days(7).seconds());
    int rows = 0;
    for (; sqlite3_step(statement) == SQLITE_ROW; ++rows)
        add_columns(statement, kinds);
    sqlite3_reset(statement);
    return rows;
}

void Floor::read_whole_rows() {
    plain_rows = read_plain(plain_, whole_row_kinds);
    for (recurring_rows = 0; sqlite3_step(recurring_) == SQLITE_ROW; ++recurring_rows)
        add_columns(recurring_, whole_row_kinds);
    sqlite3_reset(recurring_);
}

void Floor::read_and_expand() {
    plain_rows = read_plain(needed_plain_, needed_kinds);
    occurrences = 0;
    for (recurring_rows = 0; sqlite3_step(needed_recurring_) == SQLITE_ROW; ++recurring_rows) {
        add_columns(needed_recurring_, needed_kinds);
        occurrences += days_in_week(needed_recurring_);
    }
    sqlite3_reset(needed_recurring_);
}

// The days of the week on which the series of the present row has an occurrence, by plain reckoning in days.
int Floor::days_in_week(sqlite3_stmt* statement) const {
    const auto number = [&](int column) { return sqlite3_column_int64(statement, column); };
    const std::int64_t start = number(start_column) / seconds_of_day;
    const std::int64_t kind = number(rule_column), step = number(rule_column + 1);
    const std::int64_t until = number(rule_column + 2) / seconds_of_day; // 0 for none
    const std::int64_t days_of_week = number(rule_column + 3), weeks_of_month = number(rule_column + 4);
    const std::int64_t days_of_month = number(rule_column + 5);
    const std::int64_t first = first_of_week_.seconds() / seconds_of_day;
    const std::int64_t from = std::max(start, first);
    const std::int64_t to = until == 0 ? first + 6 : std::min(until, first + 6);
    const int first_day = first_of_week_.day(); // a week that crosses no end of a month
    int days = 0;
    for (std::int64_t day = from; day <= to; ++day) {
        const std::int64_t weekday = (day - first) % 7, day_of_month = first_day + day - first;
        const bool occurs = kind == 1   ? (day - start) % step == 0
                            : kind == 2 ? (days_of_week >> weekday & 1) != 0 && (day - start) / 7 % step == 0
                            : kind == 3 ? (days_of_month >> (day_of_month - 1) & 1) != 0
                                        : (days_of_week >> weekday & 1) != 0 &&
                                              (weeks_of_month >> ((day_of_month - 1) / 7) & 1) != 0;
        days += occurs;
    }
    return days;
}

} // namespace bench
