#pragma once

#include "desk/import/calendar_times.h"
#include "desk/import/series.h"

namespace importing {

// The rule of recurrence of an entry, followed as far as an import needs it.
struct FollowedRule {
    RuleDates dates{};
    std::vector<icaltimetype> times{}; // the same starts in the entry's own zone
    bool is_too_long = false;          // it has so many dates that only its first were followed
};

// Absent when the rule can't be followed: it makes no sense, or it steps by less than an hour.
std::optional<FollowedRule> follow(icalproperty* rule, const icaltimetype& start, const Times& times,
                                   values::DateTime today);

} // namespace importing
