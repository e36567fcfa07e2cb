#pragma once

#include "desk/store/store.h"

#include <map>
#include <string>
#include <vector>

namespace model {

// The contacts, users and groups of a database as of one reading, found by id.
class Directory {
public:
    Directory() = default;
    explicit Directory(store::Store& store);

    const std::vector<store::Contact>& contacts() const { return contacts_; } // in the store's order
    const std::vector<store::User>& users() const { return users_; }
    const std::vector<store::Group>& groups() const { return groups_; }

    // Absent, as a null pointer, for an unknown id.
    const store::Contact* contact(const std::string& id) const;
    const store::Group* group(const std::string& id) const;

    // How a contact is called in lists: its name, else its company; "(unnamed)" when it has neither. Empty for
    // an unknown id.
    std::string contact_name(const std::string& id) const;
    std::string user_name(const std::string& id) const;
    std::string group_name(const std::string& id) const;

private:
    std::vector<store::Contact> contacts_;
    std::vector<store::User> users_;
    std::vector<store::Group> groups_;
    std::map<std::string, std::size_t> contact_places_;
};

// The text of a field, empty where the record has none.
std::string field_of(const store::Contact& contact, int number);

} // namespace model
