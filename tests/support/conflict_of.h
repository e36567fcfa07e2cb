#pragma once

#include "core/act/edit_conflict.h"

#include <optional>
#include <utility>

namespace support {

// Why the call fails with an edit conflict. None when it doesn't fail; another failure is passed on.
template <typename Call>
std::optional<act::EditConflict::Cause> conflict_of(Call&& call) {
    try {
        std::forward<Call>(call)();
    } catch (const act::EditConflict& conflict) {
        return conflict.cause();
    }
    return std::nullopt;
}

} // namespace support
