#pragma once

#include "desk/store/store.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace importing {

struct Person {
    std::string name{};
    std::string mail{};
    std::string company{};
    std::string uid{}; // of the contact, where a desk's own file names it; it decides then
};

// The contacts of the database, by mail address and by name, and those that an import adds.
class People {
public:
    // `user` is the name of the user whom the import is for: nobody becomes a contact of their own.
    People(store::Store& store, const std::string& user);

    // The contacts of these persons, each once: the one with the same mail address or else with the same name,
    // else a new one.
    std::vector<std::string> contacts_of(const std::vector<Person>& persons);
    // The contact that a desk's own file names so: known by an earlier import or of this very database. Absent for
    // any other.
    std::optional<std::string> contact_named(const std::string& uid);
    // That of a calendar whose entries name nobody: the one that an earlier import gave the calendar of this name,
    // else the one named so, else a new one.
    std::string contact_of_calendar(const std::string& name);
    // The contact of this name, with the same mail address, or without one in the same company. Absent when there
    // is none.
    std::optional<std::string> known(const store::Contact& contact) const;
    // The same without those that this import has found by other names of records: who has another one is another.
    std::optional<std::string> known_and_free(const store::Contact& contact) const;
    void claim(const std::string& contact) { claimed_.insert(contact); } // found by the name of its record
    std::string add(const store::Contact& contact);
    std::size_t added() const { return added_; }

private:
    void know(const std::string& id, const store::Contact& contact);
    std::string contact_of(const Person& person);
    std::string own_contact_of(const Person& person);

    store::Store& store_;
    const std::string user_;
    const std::string identity_;
    std::set<std::string> claimed_;
    std::map<std::string, std::string> by_mail_, by_name_, by_card_;
    std::size_t added_ = 0;
};

} // namespace importing
