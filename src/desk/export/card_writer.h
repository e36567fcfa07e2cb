#pragma once

#include "desk/store/records.h"

#include <string>
#include <vector>

namespace exporting {

// A contact's place in a group.
struct GroupPlace {
    std::string uid{}, name{};
    std::size_t place = 0;
};

// A contact with its notes as a vCard of version 3.0, which a desk reads back as the same.
std::string card_text(const store::Contact& contact, const std::vector<store::Note>& notes,
                      const std::vector<GroupPlace>& groups, const std::string& identity);

} // namespace exporting
