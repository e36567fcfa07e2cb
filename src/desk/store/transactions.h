#pragma once

#include "desk/store/sqlite_connection.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>

namespace store {

// The transactions of a connection, with the counters from which ids and revisions come. The counters are read at
// their first use in a transaction and written at its end: nobody else can change them meanwhile.
class Transactions {
public:
    explicit Transactions(SqliteConnection& connection) : connection_(connection) {}

    // As the store's members of these names.
    void together(const std::function<void()>& block);
    void begin_reading();
    void end_reading();
    std::int64_t revision();

    // Inside a transaction alone. An id is the record's own where it brings one, else the next of its kind.
    // A counter at its end fails with 440.
    std::int64_t next_revision();
    std::string id_for(const std::string& own, const std::string& counter_name, char letter);

private:
    void begin();
    void commit(); // rolls back when it fails
    void roll_back();
    std::int64_t& counter(const std::string& name);
    std::int64_t next(const std::string& counter_name, std::int64_t last);

    SqliteConnection& connection_;
    bool is_reading_ = false; // between begin_reading and its end
    int open_blocks_ = 0;
    std::map<std::string, std::int64_t> counters_; // those used in this transaction
    std::int64_t known_data_version_ = -1;
    std::optional<std::int64_t> known_revision_;
};

} // namespace store
