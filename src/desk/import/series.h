#pragma once

#include "desk/import/work.h"
#include "desk/store/records.h"

#include <optional>
#include <vector>

namespace importing {

// The dates on which a rule of some other program falls.
struct RuleDates {
    std::vector<store::DateTime> starts{}; // to the minute, not empty; rising, but for steps by hours
    bool ended = false;                    // these are all; else the rule goes on after `known_to`
    store::DateTime known_to{};            // a date
    int days = 0;                          // the rule's step in its own unit, the others 0
    int weeks = 0;
    int months = 0;
};

// The series that the calendar shows on exactly these starts, in whatever view of one day or of seven. Absent when
// there is none.
std::optional<store::Recurrence> series_on(const RuleDates& dates, Work& work);

} // namespace importing
