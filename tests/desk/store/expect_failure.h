#pragma once

#include "core/values/failure.h"

#include <gtest/gtest.h>

#include <string>

namespace support {

// The sentence of the failure that the action must end with; its number must be that of a store's.
template <typename Action>
std::string store_failure(Action&& action) {
    try {
        action();
    } catch (const values::Failure& failure) {
        EXPECT_EQ(failure.number(), 440);
        return failure.description();
    }
    ADD_FAILURE() << "nothing failed";
    return {};
}

} // namespace support
