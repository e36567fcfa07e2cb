#pragma once

#include "desk/store/records.h"

#include <cstdint>
#include <string>
#include <vector>

namespace exporting {

struct Participant {
    std::string name{};
    std::string mail{};
};

// An activity as an iCalendar file with one entry, a to-do or an event, with its series, its exceptions and its
// alarm. Times are wall-clock times, as the database has them; `stamp` is the present moment in seconds since
// 1970. Fails with 440 when the activity has no date.
std::string calendar_text(const store::Activity& activity, const std::vector<Participant>& participants,
                          std::int64_t stamp);

} // namespace exporting
