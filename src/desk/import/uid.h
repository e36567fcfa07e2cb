#pragma once

#include "desk/import/content_lines.h"

#include <string>

namespace importing {

// By what an entry or a card is known again: its UID, empty when it has none. One of unusual length is shortened
// to another that is as good.
std::string uid_of(const Component& component);

} // namespace importing
