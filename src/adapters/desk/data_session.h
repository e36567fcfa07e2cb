#pragma once

#include "adapters/desk/data_activity_cache.h"
#include "adapters/desk/data_contact_cache.h"
#include "store/store.h"
#include "values/locale.h"

#include <memory>
#include <string>
#include <unordered_map>

namespace desk {

// None for a text that is no id, so that a longer one isn't found by its beginning.
store::Id id_of(const std::string& text);

// A database while it is open: its store and what has been read of it. The objects that a program holds share it.
// They may outlive its closing; then they fail with 440, as every member here does.
class Session {
public:
    Session(std::unique_ptr<store::Store> store, const values::Locale& locale);
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

    // What has been read, as new as the last catch_up.
    ActivityCache& activities();
    ContactCache& contacts();
    // None for an id that there is not.
    const std::string* group_name(const std::string& id);

private:
    void require_open() const;

    const values::Locale& locale_;
    std::unique_ptr<store::Store> store_; // none once closed
    std::unique_ptr<ActivityCache> activities_;
    std::unique_ptr<ContactCache> contacts_;
    std::int64_t seen_; // the revision that everything in memory is at least as new as
    int looks_ = 0;
    std::unordered_map<std::string, std::string> group_names_;
};

} // namespace desk
