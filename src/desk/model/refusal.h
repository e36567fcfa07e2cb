#pragma once

#include "core/values/failure.h"

#include <string>

namespace model {

// Ends what was asked for with a sentence for the user, as failure 440.
[[noreturn]] inline void refuse(const std::string& sentence) {
    throw values::Failure(values::FailureNumber::automation, sentence);
}

inline void require(bool holds, const char* sentence) {
    if (!holds)
        refuse(sentence);
}

} // namespace model
