#include "desk/store/sqlite_store.h"

#include "desk/store/database_copy.h"
#include "desk/store/schema.h"
#include "desk/store/sql.h"

#include <utility>

namespace store {

std::unique_ptr<Store> Store::create(const std::string& path, Clock clock) {
    return std::make_unique<SqliteStore>(create_database(path), std::move(clock));
}

std::unique_ptr<Store> Store::open(const std::string& path, Clock clock) {
    return std::make_unique<SqliteStore>(open_database(path), std::move(clock));
}

SqliteStore::SqliteStore(std::unique_ptr<SqliteConnection> connection, Clock clock)
    : connection_(std::move(connection)), clock_(std::move(clock)), reading_(make_activity_reading(*connection_)),
      toolbar_commands_(make_toolbar_commands(*connection_, *this)),
      temporary_instances_(make_temporary_instances(*connection_, *this)),
      imported_records_(make_imported_records(*connection_, *this)) {}

bool SqliteStore::save_copy(const std::string& path, const Progress& progress) {
    return copy_database(*connection_, path, progress);
}

std::string SqliteStore::identity() {
    Rows row = connection_->query(sql::counter, "identity");
    row.step();
    auto number = static_cast<std::uint64_t>(row.number(0));
    std::string digits;
    for (int digit = 0; digit < 16; ++digit, number >>= 4)
        digits.insert(digits.begin(), "0123456789abcdef"[number & 0xF]);
    return digits;
}

} // namespace store
