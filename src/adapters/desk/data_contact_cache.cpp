#include "adapters/desk/data_contact_cache.h"

#include <algorithm>

namespace desk {

const std::string* ContactCache::field(const store::Id& contact, int number) {
    const auto wanted = std::find(wanted_.begin(), wanted_.end(), number);
    const auto place = static_cast<std::size_t>(wanted - wanted_.begin());
    if (wanted == wanted_.end())
        wanted_.push_back(number);
    const auto* fields = fields_of(contact);
    if (fields && fields->size() <= place) {
        forget(contact);
        fields = fields_of(contact);
    }
    return fields ? &(*fields)[place] : nullptr;
}

const std::vector<std::string>* ContactCache::fields_of(const store::Id& contact) {
    if (const auto known = contacts_.find(contact); known != contacts_.end())
        return &known->second;
    auto fields = reading_.contact_fields(contact, wanted_);
    return fields ? &contacts_.emplace(contact, std::move(*fields)).first->second : nullptr;
}

} // namespace desk
