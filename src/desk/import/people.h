#pragma once

#include "desk/store/store.h"

#include <map>
#include <string>
#include <vector>

namespace importing {

struct Person {
    std::string name{};
    std::string mail{};
};

// The contacts of the database, by mail address and by name, and those that an import adds.
class People {
public:
    // `user` is the name of the user whom the import is for: nobody becomes a contact of their own.
    People(store::Store& store, const std::string& user);

    // The contacts of these persons, each once: the one with the same mail address or else with the same name,
    // else a new one.
    std::vector<std::string> contacts_of(const std::vector<Person>& persons);
    // That of a calendar whose entries name nobody: the one that an earlier import gave the calendar of this name,
    // else the one named so, else a new one.
    std::string contact_of_calendar(const std::string& name);
    // Whether the database has a contact of this name already, with the same mail address, or without one in the
    // same company.
    bool has(const store::Contact& contact) const;
    std::string add(const store::Contact& contact);
    std::size_t added() const { return added_; }

private:
    void know(const std::string& id, const store::Contact& contact);
    std::string contact_of(const Person& person);

    store::Store& store_;
    const std::string user_;
    std::map<std::string, std::string> by_mail_, by_name_, by_card_;
    std::size_t added_ = 0;
};

} // namespace importing
