#pragma once

#include "values/failure.h"

#include <utility>

// The number of the failure with which an action ends, 0 when it ends well.
template <typename Action>
int failure_of(Action&& action) {
    try {
        std::forward<Action>(action)();
    } catch (const values::Failure& failure) {
        return failure.number();
    }
    return 0;
}
