#pragma once

#include "desk/import/content_lines.h"
#include "desk/import/report.h"
#include "desk/store/records.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace importing {

struct FoundNote {
    std::string text{};
    std::optional<store::DateTime> written{}; // told by a desk's own card alone
};

// A place in a group, as a desk's own card tells it.
struct Membership {
    std::string uid{};
    std::string name{};
    std::int64_t place = 0;
};

struct FoundCard {
    Source source{};
    std::string uid{}; // by which it is known again; empty when the card has none
    store::Contact contact{};
    std::vector<FoundNote> notes{};
    std::vector<Membership> groups{};
    bool is_own = false;                // a desk wrote it
    std::string exported{};             // the digest of the contact that was written
    std::vector<std::string> changes{}; // what is taken otherwise than it stands, in sentences
    bool is_empty() const { return contact.fields.empty() && !is_own; } // neither a name nor a company
};

// A VCARD of version 2.1, 3.0 or 4.0. Of several values that go into one field the first stays, the others are
// told.
FoundCard read_card(const Component& card);

} // namespace importing
