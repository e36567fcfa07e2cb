#include "core/settings/reg_settings.h"

#include "core/host/deployment.h"
#include "core/values/text.h"

namespace settings {

namespace {

constexpr const char* all_applications = "Program Settings";

std::string value_name(const std::string& key) { return key == "*" ? std::string() : key; }

} // namespace

CRegSettings::CRegSettings(host::UserStore& store)
    : store_(store), company_(all_applications), app_name_(host::application_info().title) {}

bool CRegSettings::SaveSetting(const std::string& section, const std::string& key, const std::string& setting) {
    return store_.write(branch_of(section), value_name(key), setting);
}

std::string CRegSettings::GetSetting(const std::string& section, const std::string& key,
                                     const std::string& default_value) const {
    return store_.read(branch_of(section), value_name(key)).value_or(default_value);
}

bool CRegSettings::DeleteSetting(const std::string& section, const std::string& key) {
    if (!key.empty())
        return store_.remove(branch_of(section), value_name(key));
    return !section.empty() && store_.remove_branch(branch_of(section));
}

std::vector<std::array<std::string, 2>> CRegSettings::GetAllSettings(const std::string& section) const {
    std::vector<std::array<std::string, 2>> rows;
    for (const auto& [name, value] : store_.list(branch_of(section)))
        rows.push_back({name, value});
    return rows;
}

void CRegSettings::set_Company(const std::string& name) {
    company_ = name.empty() ? all_applications : std::string(values::trimmed(name));
}

void CRegSettings::set_AppName(const std::string& name) {
    app_name_ = name.empty() ? host::application_info().title : std::string(values::trimmed(name));
}

std::string CRegSettings::branch_of(const std::string& section) const {
    const std::string branch = "Software\\" + company_ + "\\" + app_name_;
    return section.empty() ? branch : branch + "\\" + section;
}

} // namespace settings
