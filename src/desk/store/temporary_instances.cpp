#include "desk/store/temporary_instances.h"

#include "desk/store/running_process.h"
#include "desk/store/sql.h"
#include "desk/store/sqlite_store.h"

#include <utility>

namespace store {

namespace {

class SqliteTemporaryInstances final : public TemporaryInstances {
public:
    SqliteTemporaryInstances(SqliteConnection& connection, Store& store)
        : connection_(connection), store_(store) {}

    void remember(const TemporaryInstance& one) override {
        store_.together([&] {
            connection_.run(sql::remember_instance, one.instance, one.series, one.day.date().seconds(),
                            this_process());
        });
    }

    void settle(const std::string& instance) override {
        store_.together([&] { connection_.run(sql::settle_instance, instance); });
    }

    void forget(const std::string& instance) override {
        store_.together([&] { connection_.run(sql::forget_instance, instance); });
    }

    std::vector<TemporaryInstance> take_back_abandoned() override {
        std::vector<TemporaryInstance> left;
        if (store_.is_read_only() || abandoned().empty())
            return left;
        store_.together([&] {
            for (const auto& [one, settled_revision] :
                 abandoned()) { // afresh: another process may have been first
                const auto instance = store_.activity(one.instance);
                const bool is_changed = settled_revision && instance && instance->revision != *settled_revision;
                if (instance && (is_changed || !store_.activity(one.series))) {
                    left.push_back(one);
                } else {
                    store_.remove_activity(one.instance);
                    store_.remove_exception(one.series, one.day);
                }
                forget(one.instance);
            }
        });
        return left;
    }

private:
    using Remembered = std::pair<TemporaryInstance, std::optional<std::int64_t>>; // with its settled revision

    std::vector<Remembered> abandoned() {
        std::vector<Remembered> result;
        Rows rows = connection_.query(sql::instances);
        while (rows.step()) {
            if (is_running(rows.text(3)))
                continue;
            const auto revision = rows.is_null(4) ? std::nullopt : std::optional(rows.number(4));
            result.emplace_back(TemporaryInstance{.instance = rows.text(0),
                                                  .series = rows.text(1),
                                                  .day = DateTime::from_seconds(rows.number(2))},
                                revision);
        }
        return result;
    }

    SqliteConnection& connection_;
    Store& store_;
};

} // namespace

std::unique_ptr<TemporaryInstances> make_temporary_instances(SqliteConnection& connection, Store& store) {
    return std::make_unique<SqliteTemporaryInstances>(connection, store);
}

} // namespace store
