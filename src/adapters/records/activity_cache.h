#pragma once

#include "adapters/records/id_map.h"
#include "desk/store/activity_reading.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace records {

// The starts that a list is limited to: at or after `from` and before `to`.
struct Scope {
    std::int64_t from;
    std::int64_t to;
};

// The series that start at or before `to` and don't end before `from`.
struct SeriesDates {
    std::int64_t from;
    std::int64_t to;

    bool operator==(const SeriesDates&) const = default;
};

// What has been read of a database's activities: the rows of the scopes and of the series that were asked for,
// all exceptions once one was asked for, and an entry for every activity once a list without a scope was walked.
// It grows as it is asked; what the file's other users do it learns by take_in alone.
class ActivityCache {
public:
    using Row = std::shared_ptr<const store::ActivityRow>;

    explicit ActivityCache(store::ActivityReading& reading) : reading_(reading) {}

    void take_in(const store::ActivityChanges& changes);
    void forget_all();

    // Where the last step of a walk without a scope arrived, so that the next one mostly needs no search.
    using Hint = std::size_t;
    // The first entry of the list, and the first one after a place. None at its end. What they give lives until
    // the next call of any member.
    const store::ActivityEntry* first(const std::optional<Scope>& scope, Hint& hint);
    const store::ActivityEntry* next(const store::ActivityKey& place, const std::optional<Scope>& scope,
                                     Hint& hint);

    // The series of these dates, and the entries of what was edited later than that, in order. They live until the
    // next call of any member.
    const std::vector<Row>& series(const SeriesDates& dates);
    const std::vector<store::ActivityEntry>& edited_since(std::int64_t moment);
    bool has_own_ids_alone();

    // The row of an entry, read with many of its neighbours. None when the activity has gone meanwhile.
    Row row(const store::ActivityEntry& entry);
    Row find(const store::Id& id);

    const std::vector<store::DateTime>& exceptions(const store::Id& id);
    const std::string& details(const store::Id& id);

private:
    void load_scope(const Scope& scope);
    void load_entries();
    void make_room();
    const Row& keep(store::ActivityRow row); // in place of what is known of the activity
    const Row& keep(Row fresh);
    void drop(const store::Id& id);
    void put_in_order(const Row& row);
    void take_out_of_order(const store::ActivityRow& row);
    void update_entries(const store::ActivityChanges& changes);
    bool is_of_series(const store::ActivityRow& row) const;
    bool is_of_loaded_scope(const store::ActivityRow& row) const;
    bool is_loaded(const Scope& scope) const;

    store::ActivityReading& reading_;

    IdMap<Row> rows_;

    // Of those the rows of the loaded scopes, which lie apart from each other, and the series of some dates.
    std::vector<Scope> loaded_scopes_;
    std::map<store::ActivityKey, Row> scoped_;
    std::optional<SeriesDates> series_dates_;
    std::vector<Row> series_; // in order

    std::optional<std::int64_t> edited_since_; // for which they were read
    std::vector<store::ActivityEntry> edited_;
    std::optional<bool> has_own_ids_alone_;

    std::optional<std::vector<store::ActivityEntry>> entries_; // in order

    std::optional<IdMap<std::vector<store::DateTime>>> exceptions_;
    // Of the series that was asked for last: mostly the next question is for the same one.
    std::optional<std::pair<store::Id, const std::vector<store::DateTime>*>> last_exceptions_;
    IdMap<std::string> details_;
};

} // namespace records
