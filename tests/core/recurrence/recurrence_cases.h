#pragma once

#include "core/recurrence/starts.h"

#include <string>
#include <vector>

// The recurrence cases of tests/golden/recurrence; their format is told in README.md there.
namespace support {

using values::DateTime;

enum class SeriesKind { daily = 1, weekly, days_of_month, weekdays_of_month };

struct RecurrenceCase {
    std::string file; // without folder and ending
    std::string name;
    SeriesKind kind = SeriesKind::daily;
    recurrence::Rule rule;
    recurrence::ShownDates shown;
    std::vector<DateTime> exceptions;
    std::vector<DateTime> starts;
    bool fails = false;
};

// The starts that a walk gave, and whether it ended in a type mismatch.
struct Walked {
    std::vector<DateTime> starts;
    bool failed = false;
};

// Throws std::runtime_error with file and line where a case can't be read.
std::vector<RecurrenceCase> read_recurrence_cases(const std::string& folder);

Walked quick_walk(SeriesKind kind, const recurrence::Rule& rule, const recurrence::ShownDates& shown,
                  const std::vector<DateTime>& exceptions);
// The same by plain stepping; a step below 1 counts as 1.
Walked plain_walk(SeriesKind kind, const recurrence::Rule& rule, const recurrence::ShownDates& shown,
                  const std::vector<DateTime>& exceptions);

} // namespace support
