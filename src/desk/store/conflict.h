#pragma once

#include "core/act/edit_conflict.h"

#include <string>
#include <string_view>

namespace store {

using act::EditConflict;

// Ends a change of a record that somebody else has changed or deleted first. `kind` is the word for such a record.
[[noreturn]] inline void fail_with_conflict(std::string_view kind, EditConflict::Cause cause) {
    const char* what = cause == EditConflict::Cause::changed ? "changed" : "deleted";
    throw EditConflict(cause, "The " + std::string(kind) + " was " + what +
                                  " by somebody else in the meantime. Your change wasn't stored.");
}

} // namespace store
