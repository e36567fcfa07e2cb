#pragma once

#include "adapters/records/shared_store.h"
#include "core/act/activity_kinds.h"

#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace records {

// What a list keeps out.
struct ListFilters {
    std::optional<Scope> scope{};
    std::set<act::ActivityType> without_types{};
    std::set<act::Priority> without_priorities{};
    bool without_cleared = false;

    bool pass(const store::ActivityEntry& entry) const;
};

// A place in the list of activities: on a record, after a deleted one, at the end, or nowhere. It is a place in
// the order of starts and ids, not in a list that was made once; so the walk goes on rightly whatever comes and
// goes round it.
class Cursor {
public:
    explicit Cursor(std::shared_ptr<SharedStore> session) : session_(std::move(session)) {}

    const ListFilters& filters() const { return filters_; }
    void set_filters(const ListFilters& filters); // and to the first record

    // Where these two arrive is found when it is asked for.
    void to_first();
    void to_next(); // at the end it stays
    // From the current record on, that included, to the next series of these dates, or to the next record that was
    // edited later than that.
    void to_series(const SeriesDates& dates);
    void to_edited(std::int64_t since);
    bool is_at_end(); // nowhere counts too
    // To the record of that id, inside the filters or not; nowhere and false when it doesn't exist.
    bool go_to(const std::string& id);
    // The same as go_to, for a record that this program has just written: what was read of it is outdated.
    bool go_to_written(const std::string& id);
    void record_was_written(); // the current one, if any
    void record_was_removed(); // the current one; the walk goes on after it
    void to_nowhere();

    // The current record, of which the row is read when it is asked for first. None where there is no record, and
    // no row when the activity has been deleted meanwhile.
    const store::ActivityEntry* entry();
    const store::ActivityRow* row();

    // Of ids that were in the list at that moment or later, those that no record of the list has now, in their
    // order. None where the session can't tell what has changed since the moment.
    std::optional<std::vector<std::string_view>> ids_gone_since(std::span<const std::string_view> ids,
                                                                std::int64_t moment);

private:
    enum class Place { before_first, on_record, after_record, after_deleted, at_end, nowhere };

    void look_up();
    void skip_to_passing(const store::ActivityEntry* entry);
    bool lists(const store::ActivityEntry& entry) const;
    bool lists(const store::Id& id);
    template <typename Records>
    void to_next_of(const Records& records); // all in the list's order

    std::shared_ptr<SharedStore> session_;
    ListFilters filters_;
    Place place_ = Place::before_first;
    bool walked_here_ = false; // rather than gone to by id
    store::ActivityEntry entry_;
    std::shared_ptr<const store::ActivityRow> row_; // none until it is asked for
    ActivityCache::Hint hint_ = 0;
};

} // namespace records
