#pragma once

#include "core/values/failure.h"

#include <utility>

namespace support {

// The number that the call fails with, 0 when it doesn't fail.
template <typename Call>
int failure_number(Call&& call) {
    try {
        std::forward<Call>(call)();
    } catch (const values::Failure& failure) {
        return failure.number();
    }
    return 0;
}

} // namespace support
