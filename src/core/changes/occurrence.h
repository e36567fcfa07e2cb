#pragma once

#include "core/act/activity.h"

#include <string>

namespace changes {

// The occurrence of a series on one day.
struct Occurrence {
    std::string series;
    act::DateTime day;

    // The day becomes an exception of the series, or has its occurrence back.
    void except(act::Activity& activity) const;
    void undo(act::Activity& activity) const;
};

} // namespace changes
