#pragma once

#include "desk/import/content_lines.h"
#include "desk/import/report.h"
#include "desk/store/records.h"

#include <string>
#include <vector>

namespace importing {

struct FoundCard {
    Source source{};
    std::string uid{}; // by which it is known again; empty when the card has none
    store::Contact contact{};
    std::vector<std::string> notes{};
    std::vector<std::string> changes{}; // what is taken otherwise than it stands, in sentences
    bool is_empty() const { return contact.fields.empty(); } // neither a name nor a company
};

// A VCARD of version 2.1, 3.0 or 4.0. Of several values that go into one field the first stays, the others are
// told.
FoundCard read_card(const Component& card);

} // namespace importing
