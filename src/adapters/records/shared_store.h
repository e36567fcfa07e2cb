#pragma once

#include "adapters/records/activity_cache.h"
#include "adapters/records/contact_cache.h"
#include "core/values/locale.h"
#include "desk/store/store.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace records {

// None for a text that is no id, so that a longer one isn't found by its beginning.
store::Id id_of(std::string_view text);

// A database while it is open: its store and what has been read of it. The objects that a program holds share it.
// They may outlive its closing; then they fail with 440, as every member here does.
class SharedStore {
public:
    SharedStore(std::unique_ptr<store::Store> store, const values::Locale& locale);
    void close();

    store::Store& store();
    const values::Locale& locale() const { return locale_; }

    // Takes in what any process has changed in the file since the last time. Costs next to nothing when nobody
    // has.
    void catch_up();
    // Between these two, which come in pairs, everything stays as the beginning found it. Nothing is written
    // meanwhile. The end doesn't fail.
    void begin_look();
    void end_look();

    // The file's revision that everything in memory is at least as new as.
    std::int64_t moment() const { return seen_; }
    // The activities that were added, changed or removed since a moment, as far as has been taken in, and perhaps
    // some more. None where that isn't known any more.
    std::optional<std::unordered_set<store::Id>> changed_since(std::int64_t moment) const;

    // What has been read, as new as the last catch_up.
    ActivityCache& activities();
    ContactCache& contacts();
    // None for an id that there is not.
    const std::string* group_name(const std::string& id);

private:
    void require_open() const;
    void note(const store::ActivityChanges& changes, std::int64_t revision);
    void forget_changes(std::int64_t revision);

    const values::Locale& locale_;
    std::unique_ptr<store::Store> store_; // none once closed
    std::unique_ptr<ActivityCache> activities_;
    std::unique_ptr<ContactCache> contacts_;
    std::int64_t seen_;
    std::vector<std::pair<std::int64_t, store::Id>> changed_; // with the revisions at which they were taken in
    std::int64_t changes_known_from_ = seen_;
    int looks_ = 0;
    std::unordered_map<std::string, std::string> group_names_;
};

} // namespace records
