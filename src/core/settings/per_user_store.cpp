#include "core/settings/per_user_store.h"

#include "core/values/failure.h"

namespace settings {

namespace {

void require(bool done) {
    if (!done)
        throw values::Failure(values::FailureNumber::invalid_procedure_call);
}

} // namespace

std::string PerUserStore::read(const std::string& section, const std::string& key,
                               const std::string& default_value) const {
    return values_.GetSetting(section, key, default_value);
}

void PerUserStore::write(const std::string& section, const std::string& key, const std::string& value) {
    require(values_.SaveSetting(section, key, value));
}

void PerUserStore::remove(const std::string& section, const std::string& key) {
    require(!key.empty() && values_.DeleteSetting(section, key));
}

void PerUserStore::remove_section(const std::string& section) { require(values_.DeleteSetting(section, "")); }

void PerUserStore::together(const std::function<void()>& block) { require(store_.together(block)); }

} // namespace settings
