#pragma once

#include "desk/import/entry.h"

namespace importing {

// Whether the desk itself wrote the entry, though others may have changed it since.
bool is_own_entry(const Component& component);

// Gives what was read of an own entry all that the format has no place for. Where nobody else has changed the
// entry, it is then the activity that was exported, and `is_settled`.
void restore_own(Entry& entry, const Component& component);

} // namespace importing
