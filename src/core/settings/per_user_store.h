#pragma once

#include "core/host/user_store.h"
#include "core/settings/reg_settings.h"

#include <functional>
#include <string>

namespace settings {

// The program's own values in the per-user store, under its title.
class PerUserStore {
public:
    explicit PerUserStore(host::UserStore& store) : store_(store), values_(store) {}

    // The default when there is no such value; an empty value is a value.
    std::string read(const std::string& section, const std::string& key,
                     const std::string& default_value = {}) const;
    // Fails with 5 when the store can't be written.
    void write(const std::string& section, const std::string& key, const std::string& value);
    // Fails with 5 when there is no such value.
    void remove(const std::string& section, const std::string& key);
    // Removes the section with all its values. Fails with 5 when there is no such section.
    void remove_section(const std::string& section);
    // What the block changes here is written at once when it ends, however it ends. Fails with 5 when the store
    // can't be written.
    void together(const std::function<void()>& block);

private:
    host::UserStore& store_;
    CRegSettings values_;
};

} // namespace settings
