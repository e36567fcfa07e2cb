#pragma once

#include "core/act/edit_conflict.h"

#include <string>
#include <string_view>

namespace store {

// Ends a change of a record that somebody else has forestalled. `kind` is the word for such a record.
[[noreturn]] inline void fail_as_changed(std::string_view kind, bool still_exists) {
    throw act::EditConflict(still_exists ? act::EditConflict::Cause::changed : act::EditConflict::Cause::deleted,
                            "The " + std::string(kind) + " was " + (still_exists ? "changed" : "deleted") +
                                " by somebody else in the meantime. Your change wasn't stored.");
}

} // namespace store
