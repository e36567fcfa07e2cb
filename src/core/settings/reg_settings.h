#pragma once

#include "core/host/user_store.h"

#include <array>
#include <string>
#include <vector>

namespace settings {

// Text values of any application in the per-user store, by section and key. The key "*" stands for a section's
// default value, the one without a name.
class CRegSettings {
public:
    explicit CRegSettings(host::UserStore& store);

    bool SaveSetting(const std::string& section, const std::string& key, const std::string& setting);
    // The default when there is no such value; an empty value is a value.
    std::string GetSetting(const std::string& section, const std::string& key,
                           const std::string& default_value = {}) const;
    // An empty key deletes the whole section. False when there is no such value or section.
    bool DeleteSetting(const std::string& section, const std::string& key);
    // Rows of name and value, in the order they were first written.
    std::vector<std::array<std::string, 2>> GetAllSettings(const std::string& section) const;

    // The name under which a maker's applications stand. An empty text restores the one under which the platform
    // keeps the values of all applications, any other is stored without blanks round it.
    void set_Company(const std::string& name);
    const std::string& Company() const { return company_; }
    // The same; an empty text restores the application's title.
    void set_AppName(const std::string& name);
    const std::string& AppName() const { return app_name_; }

private:
    std::string branch_of(const std::string& section) const;

    host::UserStore& store_;
    std::string company_;
    std::string app_name_;
};

} // namespace settings
