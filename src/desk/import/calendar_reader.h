#pragma once

#include "desk/import/entry.h"

#include <set>
#include <string>
#include <vector>

namespace importing {

// When and where an import takes place, and how much work it may be.
struct Here {
    values::DateTime today;
    const LocalTime& local_time;
    MachineZones& zones;
    Work& work;
};

struct FoundCalendar {
    std::vector<FoundActivity> activities{};
    // The names (FoundActivity::uid) of the entries of which these are all activities that there are: what was
    // taken of one before and isn't here any more is gone. One that is cancelled has none.
    std::set<std::string> whole_entries{};
    // The names of those of which there are more than these activities. One name can be in both, as two entries
    // may bear it.
    std::set<std::string> cut_entries{};
};

// The activities of a VCALENDAR. What can't be taken, or not as it stands, goes into the report.
FoundCalendar read_calendar(const Component& calendar, const Here& here, Report& report);

} // namespace importing
