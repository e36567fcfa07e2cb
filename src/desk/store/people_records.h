#pragma once

#include "desk/store/records.h"
#include "desk/store/transactions.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace store {

// The store's users, groups, contacts and notes, as Store tells of them.
class PeopleRecords {
public:
    PeopleRecords(SqliteConnection& connection, Transactions& transactions)
        : connection_(connection), transactions_(transactions) {}

    std::vector<User> users();
    std::string add(const User& user);
    std::vector<Group> groups();
    std::optional<Group> group(const std::string& id);
    std::string add(const Group& group);
    void update(const Group& group);
    std::vector<Contact> contacts();
    std::optional<Contact> contact(const std::string& id);
    std::string add(const Contact& contact);
    std::int64_t update(const Contact& contact);
    std::vector<Note> notes(const std::string& contact);
    std::string add(const Note& note);

private:
    std::vector<std::string> members(const std::string& group);
    void write_members(const std::string& group, const std::vector<std::string>& contacts);

    SqliteConnection& connection_;
    Transactions& transactions_;
};

} // namespace store
