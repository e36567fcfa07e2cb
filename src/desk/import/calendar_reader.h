#pragma once

#include "desk/import/entry.h"

#include <vector>

namespace importing {

// The activities of a VCALENDAR. What can't be taken, or not as it stands, is told in the report.
void read_calendar(const Component& calendar, const LocalTime& local_time, values::DateTime today,
                   std::vector<FoundActivity>& found, Report& report);

} // namespace importing
