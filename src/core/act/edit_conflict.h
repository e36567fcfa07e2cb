#pragma once

#include "core/values/failure.h"

#include <string>
#include <utility>

namespace act {

// The failure of a change whose record another process has changed or deleted since it was read; nothing of it is
// stored. Its number is 440, as that of the store's other failures.
class EditConflict final : public values::Failure {
public:
    enum class Cause { changed, deleted };

    EditConflict(Cause cause, std::string sentence)
        : Failure(values::FailureNumber::automation, std::move(sentence)), cause_(cause) {}
    Cause cause() const { return cause_; }

private:
    Cause cause_;
};

} // namespace act
