#pragma once

#include "adapters/desk/data_session.h"

#include <memory>
#include <optional>
#include <set>
#include <string>

namespace desk {

// What a list keeps out.
struct ListFilters {
    std::optional<Scope> scope{};
    std::set<int> without_types{};
    std::set<int> without_priorities{};
    bool without_cleared = false;

    bool pass(const store::ActivityEntry& entry) const;
};

// A place in the list of activities: on a record, behind a deleted one, at the end, or nowhere. It is a place in
// the order of starts and ids, not in a list that was made once; so the walk goes on rightly whatever comes and
// goes round it.
class Cursor {
public:
    explicit Cursor(std::shared_ptr<Session> session) : session_(std::move(session)) {}

    const ListFilters& filters() const { return filters_; }
    void set_filters(const ListFilters& filters); // and to the first record

    void to_first();  // found when it is asked for
    void to_next();   // at the end it stays
    bool is_at_end(); // nowhere counts too
    // To the record of that id, inside the filters or not; nowhere and false when it doesn't exist.
    bool go_to(const std::string& id);
    // The same as go_to, for a record that this program has just written: what was read of it is outdated.
    bool go_to_written(const std::string& id);
    void record_was_written(); // the current one, if any
    void record_was_removed(); // the current one; the walk goes on behind it
    void to_nowhere();

    // The current record, of which the row is read when it is asked for first. None where there is no record, and
    // no row when the activity has been deleted meanwhile.
    const store::ActivityEntry* entry();
    const store::ActivityRow* row();

private:
    enum class Place { not_looked_up, on_record, behind_deleted, at_end, nowhere };

    void look_up();
    void skip_to_passing(const store::ActivityEntry* entry);

    std::shared_ptr<Session> session_;
    ListFilters filters_;
    Place place_ = Place::not_looked_up;
    bool walked_here_ = false; // rather than gone to by id
    store::ActivityEntry entry_;
    std::shared_ptr<const store::ActivityRow> row_; // none until it is asked for
    ActivityCache::Hint hint_ = 0;
};

} // namespace desk
