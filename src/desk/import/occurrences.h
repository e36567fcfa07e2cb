#pragma once

#include "core/recurrence/calendar_rule.h"
#include "desk/import/calendar_times.h"
#include "desk/import/series.h"

#include <vector>

namespace importing {

// The rule of recurrence of an entry, followed as far as an import needs it.
struct FollowedRule {
    RuleDates dates{};
    std::vector<ZonedTime> times{}; // the same starts in the entry's own zone
    bool is_too_long = false;       // it has so many dates that only its first were followed
};

// What a rule is followed with.
struct Surroundings {
    ZonedTime start;
    values::DateTime today;
    const Times& times;
    Work& work;
};

// The start, whether the rule names it or not, and the rule's dates. Absent when the rule can't be followed: it
// steps by seconds, or never comes about.
std::optional<FollowedRule> follow(const recurrence::CalendarRule& rule, const Surroundings& around);

// The local starts that a rule names, rising; of one without an end those up to a date.
std::vector<values::DateTime> starts_of(const recurrence::CalendarRule& rule, const Surroundings& around,
                                        values::DateTime up_to);

bool has_end(const recurrence::CalendarRule& rule);

// The starts rise.
void take_out(const std::vector<values::DateTime>& starts, FollowedRule& rule);

} // namespace importing
