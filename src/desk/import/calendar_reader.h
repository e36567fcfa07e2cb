#pragma once

#include "desk/import/entry.h"

#include <vector>

namespace importing {

// When and where an import takes place, and how much work it may be.
struct Here {
    values::DateTime today;
    const LocalTime& local_time;
    MachineZones& zones;
    Work& work;
};

// The activities of a VCALENDAR. What can't be taken, or not as it stands, goes into the report.
std::vector<FoundActivity> read_calendar(const Component& calendar, const Here& here, Report& report);

} // namespace importing
