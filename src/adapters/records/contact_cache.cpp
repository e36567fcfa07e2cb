#include "adapters/records/contact_cache.h"

#include <algorithm>

namespace records {

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

void ContactCache::forget(const store::Id& contact) {
    last_.reset();
    contacts_.erase(contact);
}

void ContactCache::forget_all() {
    last_.reset();
    contacts_.clear();
}

const ContactCache::Fields* ContactCache::fields_of(const store::Id& contact) {
    if (last_ && last_->first == contact)
        return last_->second;
    const Fields* known = contacts_.find(contact);
    if (!known) {
        auto fields = reading_.contact_fields(contact, wanted_);
        if (!fields)
            return nullptr;
        last_.reset(); // it moves with the others
        known = &(contacts_[contact] = std::move(*fields));
    }
    last_.emplace(contact, known);
    return last_->second;
}

} // namespace records
