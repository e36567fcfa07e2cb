#pragma once

#include "core/values/failure.h"

#include <string>

// The number and sentence of the failure that the body ends with: "440 The contact desk doesn't answer.", "" when
// it ends without one.
template <typename Body>
std::string failure_text(Body body) {
    try {
        body();
    } catch (const values::Failure& failure) {
        return std::to_string(failure.number()) + " " + failure.description();
    }
    return "";
}
