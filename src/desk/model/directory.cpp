#include "desk/model/directory.h"

#include "desk/store/contact_fields.h"

#include <algorithm>

namespace model {
namespace {

template <typename Record>
const Record* found(const std::vector<Record>& records, const std::string& id) {
    const auto record =
        std::find_if(records.begin(), records.end(), [&](const auto& one) { return one.id == id; });
    return record == records.end() ? nullptr : &*record;
}

} // namespace

Directory::Directory(store::Store& store)
    : contacts_(store.contacts()), users_(store.users()), groups_(store.groups()) {
    for (std::size_t place = 0; place < contacts_.size(); ++place)
        contact_places_[contacts_[place].id] = place;
}

const store::Contact* Directory::contact(const std::string& id) const {
    const auto place = contact_places_.find(id);
    return place == contact_places_.end() ? nullptr : &contacts_[place->second];
}

const store::Group* Directory::group(const std::string& id) const { return found(groups_, id); }

std::string Directory::contact_name(const std::string& id) const {
    const store::Contact* record = contact(id);
    if (!record)
        return {};
    for (const int field : {store::contact_field::name, store::contact_field::company})
        if (std::string text = field_of(*record, field); !text.empty())
            return text;
    return "(unnamed)";
}

std::string Directory::user_name(const std::string& id) const {
    const store::User* user = found(users_, id);
    return user ? user->name : std::string();
}

std::string Directory::group_name(const std::string& id) const {
    const store::Group* record = group(id);
    return record ? record->name : std::string();
}

std::string field_of(const store::Contact& contact, int number) {
    const auto field = contact.fields.find(number);
    return field == contact.fields.end() ? std::string() : field->second;
}

} // namespace model
