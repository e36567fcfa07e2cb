#pragma once

#include "desk/import/card_reader.h"
#include "desk/store/store.h"

#include <map>
#include <string>
#include <vector>

namespace importing {

// The groups of the database, found by the names of their records, else by their names, else made.
class Groups {
public:
    explicit Groups(store::Store& store);

    std::string id_of(const std::string& uid, const std::string& name); // empty for no name
    void join(const Membership& membership, const std::string& contact);
    // Once all cards are taken: brings the new members in, in their order, behind those that are there.
    void fill();

private:
    store::Store& store_;
    const std::string identity_;
    std::map<std::string, std::string> by_uid_, by_name_;
    std::map<std::string, std::multimap<std::int64_t, std::string>> joining_; // contacts by place, by group
};

} // namespace importing
