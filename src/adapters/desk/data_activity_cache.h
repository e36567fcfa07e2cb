#pragma once

#include "store/activity_reading.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace desk {

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
    explicit ActivityCache(store::ActivityReading& reading) : reading_(reading) {}

    void take_in(const store::ActivityChanges& changes);
    void forget_all();

    // Where the last step of a walk without a scope arrived, so that the next one mostly needs no search.
    using Hint = std::size_t;
    // The first entry of the list, and the first one behind a place. None at its end. What they give lives until
    // the next call of any member.
    const store::ActivityEntry* first(const std::optional<Scope>& scope, Hint& hint);
    const store::ActivityEntry* next(const store::ActivityKey& place, const std::optional<Scope>& scope,
                                     Hint& hint);

    // The series of these dates, and the entries of what was edited later than that, in order. They live until the
    // next call of any member.
    const std::vector<std::shared_ptr<const store::ActivityRow>>& series(const SeriesDates& dates);
    const std::vector<store::ActivityEntry>& edited_since(std::int64_t moment);
    bool has_own_ids_alone();

    // The row of an entry, read with many of its neighbours. None when the activity has gone meanwhile.
    std::shared_ptr<const store::ActivityRow> row(const store::ActivityEntry& entry);
    std::shared_ptr<const store::ActivityRow> find(const store::Id& id);

    const std::vector<store::DateTime>& exceptions(const store::Id& id);
    const std::string& details(const store::Id& id);

private:
    using Rows = std::map<store::ActivityKey, std::shared_ptr<const store::ActivityRow>>;

    void load_scope(const Scope& scope);
    void load_entries();
    void make_room();
    bool is_of_series(const store::ActivityRow& row) const;
    void update_series(const store::ActivityChanges& changes);
    const std::shared_ptr<const store::ActivityRow>& keep(store::ActivityRow row);
    std::shared_ptr<const store::ActivityRow> known(const store::ActivityEntry& entry);
    void erase(Rows::iterator row);
    void drop(const store::Id& id);
    void update_entries(const store::ActivityChanges& changes);
    bool is_wanted(const store::ActivityRow& row) const;
    bool is_loaded(const Scope& scope) const;

    store::ActivityReading& reading_;

    Rows rows_;
    std::unordered_map<store::Id, Rows::iterator> by_id_;
    std::vector<Scope> loaded_scopes_;        // apart from each other
    Rows::iterator last_kept_ = rows_.end();  // the next one read mostly comes behind it
    Rows::iterator last_given_ = rows_.end(); // the next one asked for likewise

    std::optional<SeriesDates> series_dates_;                       // for which the series were read
    std::vector<std::shared_ptr<const store::ActivityRow>> series_; // in order

    std::optional<std::int64_t> edited_since_; // for which they were read
    std::vector<store::ActivityEntry> edited_;
    std::optional<bool> has_own_ids_alone_;

    std::optional<std::vector<store::ActivityEntry>> entries_; // in order

    std::optional<std::unordered_map<store::Id, std::vector<store::DateTime>>> exceptions_;
    std::unordered_map<store::Id, std::string> details_;
};

} // namespace desk
