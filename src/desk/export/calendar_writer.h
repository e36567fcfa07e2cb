#pragma once

#include "desk/store/records.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace exporting {

struct Participant {
    std::string name{};
    std::string mail{};
};

// Where an entry comes from, and when it is written.
struct Origin {
    std::string identity{}; // of the database
    std::int64_t stamp = 0; // seconds since 1970
};

// An activity as an entry of an iCalendar file, a to-do or an event, with its series, its exceptions and its
// alarm. Times are wall-clock times, as the database has them. One that has no date, or none that calendars know
// (the years 1900 to 2500), is a to-do without a time.
std::string entry_text(const store::Activity& activity, const std::vector<Participant>& participants,
                       const Origin& origin);

// What stands before and behind the entries of a file. The lines are whole, with their ends.
std::string calendar_begin(const std::vector<std::string>& lines = {});
std::string calendar_end();

// A file with one entry. Fails with 440 when the activity has no date.
std::string calendar_text(const store::Activity& activity, const std::vector<Participant>& participants,
                          const Origin& origin);

// Whether calendars know the date.
bool is_calendar_date(const std::optional<store::DateTime>& date);
// Whether the series has a rule that other programs can follow.
bool has_rule(const store::Activity& activity);

} // namespace exporting
