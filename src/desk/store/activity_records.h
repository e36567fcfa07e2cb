#pragma once

#include "desk/store/sql.h"
#include "desk/store/store.h"
#include "desk/store/transactions.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace store {

// The store's activities, as Store tells of them.
class ActivityRecords {
public:
    // The clock lives as long as the records.
    ActivityRecords(SqliteConnection& connection, Transactions& transactions, const Clock& clock)
        : connection_(connection), transactions_(transactions), clock_(clock) {}

    std::vector<Activity> activities(const ActivityQuery& query) { return read(sql::activities(query), query); }
    std::vector<Activity> activities(const ActivityQuery& query, int skip, int most) {
        return read(sql::activities(query, skip, most), query);
    }
    int count(const ActivityQuery& query);
    std::optional<Activity> activity(const std::string& id);
    std::string add(const Activity& activity);
    std::int64_t update(const Activity& activity);
    void remove(const std::string& id);
    void add_exception(const std::string& activity, DateTime date);
    void remove_exception(const std::string& activity, DateTime date);

private:
    std::vector<Activity> read(const std::string& sql, const ActivityQuery& query);
    void read_lists(Activity& activity, int contact_count);
    void write_lists(const Activity& activity);
    void touch(const std::string& activity);

    SqliteConnection& connection_;
    Transactions& transactions_;
    const Clock& clock_;
};

} // namespace store
