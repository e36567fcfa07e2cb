#include "walk/store_rules.h"

#include <sqlite3.h>

#include <stdexcept>

namespace walk {

namespace {

constexpr int patience = 2000; // milliseconds

struct Rule {
    const char* broken;
    const char* offenders;
};

constexpr Rule rules[] = {
    {"an id that was used before, or is no id",
     "SELECT id FROM (SELECT id FROM activities UNION ALL SELECT id FROM removed_activities)"
     " GROUP BY id HAVING count(*) > 1 OR length(id) <> 12"},
    {"an exception without a series",
     "SELECT activity FROM exceptions LEFT JOIN activities ON activities.id = activity"
     " WHERE activities.id IS NULL OR recurrence = 0"},
    {"a further contact without an activity or a first contact",
     "SELECT activity FROM further_contacts LEFT JOIN activities ON activities.id = activity"
     " WHERE activities.id IS NULL OR activities.contact IS NULL"},
    {"a number of contacts that isn't theirs",
     "SELECT id FROM activities WHERE contact_count <>"
     " (contact IS NOT NULL) + (SELECT count(*) FROM further_contacts WHERE activity = activities.id)"},
    {"an activity that nobody has finished",
     "SELECT id FROM activities WHERE type NOT IN (0, 1, 2) OR priority NOT IN (0, 1, 2) OR starts_at IS NULL"
     " OR scheduled_for IS NULL OR contact IS NULL"},
    {"an end before the start", "SELECT id FROM activities WHERE ends_at < starts_at OR duration < 0"},
    {"a rule that can't be", "SELECT id FROM activities WHERE recurrence NOT BETWEEN 0 AND 4 OR frequency < 1"},
    {"a revision ahead of the counter",
     "SELECT id FROM activities WHERE revision > (SELECT value FROM counters WHERE name = 'revision')"},
    {"a record that names one that there is not", "SELECT \"table\" FROM pragma_foreign_key_check"},
    {"a damaged file", "SELECT quick_check FROM pragma_quick_check WHERE quick_check <> 'ok'"},
};

} // namespace

StoreRules::StoreRules(const std::string& database) {
    if (sqlite3_open_v2(database.c_str(), &database_, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database_));
    sqlite3_busy_timeout(database_, patience); // what somebody does right now isn't left open
}

StoreRules::~StoreRules() { sqlite3_close(database_); }

std::vector<std::string> StoreRules::broken() {
    if (is_being_written())
        return {"A writing transaction is open."};
    const std::string state = first_column("PRAGMA data_version");
    if (state == seen_)
        return {};
    seen_ = state;
    std::vector<std::string> result;
    for (const Rule& rule : rules)
        if (const std::string offenders = first_column(rule.offenders); !offenders.empty())
            result.push_back("There is " + std::string(rule.broken) + ": " + offenders);
    return result;
}

std::vector<std::string> StoreRules::broken_at_end() {
    seen_.clear();
    std::vector<std::string> result = broken();
    if (first_column("PRAGMA wal_checkpoint(TRUNCATE)") != "0 ")
        result.push_back("Somebody still reads an old state of the file.");
    return result;
}

long StoreRules::activities() const { return std::stol(first_column("SELECT count(*) FROM activities")); }

std::string StoreRules::first_column(const std::string& sql) const {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(database_, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database_));
    std::string values;
    int result = sqlite3_step(statement);
    for (; result == SQLITE_ROW; result = sqlite3_step(statement))
        values += std::string(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0))) + " ";
    sqlite3_finalize(statement);
    if (result != SQLITE_DONE)
        throw std::runtime_error(sqlite3_errmsg(database_));
    return values;
}

bool StoreRules::is_being_written() const {
    const int begun = sqlite3_exec(database_, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
    if (begun == SQLITE_OK)
        sqlite3_exec(database_, "ROLLBACK", nullptr, nullptr, nullptr);
    else if (begun != SQLITE_BUSY)
        throw std::runtime_error(sqlite3_errmsg(database_));
    return begun == SQLITE_BUSY;
}

} // namespace walk
