#pragma once

#include "core/recurrence/calendar_rule.h"

#include <cstddef>
#include <functional>

namespace recurrence {

// Told of each step of a walk before it is made, with the units of work that it takes: about one for each day or
// time that is looked at. What it throws ends the walk.
using Spend = std::function<void(std::size_t units)>;

// The dates of a rule one after the other, rising, each once. They are wall-clock times; what a zone makes of them
// isn't known here.
class CalendarWalk {
public:
    struct Bounds {
        DateTime start; // what the rule leaves open is taken from it; no date lies before it
        DateTime end;   // no date lies here or later, whatever the rule says
        DateTime until; // the rule's own last moment as wall-clock time; `end` when it has none
    };
    CalendarWalk(const CalendarRule& rule, const Bounds& bounds, Spend spend);

    // Absent after the last. The start itself is told only where it meets the rule, and counts only then.
    std::optional<DateTime> next();

private:
    struct Day;
    using Days = std::int64_t; // since the empty date

    void fill_in_defaults();
    bool find_more();
    bool find_in_coarse_step();
    bool find_in_fine_step();
    void look_at_days(Days first, Days end, std::vector<Days>& fitting);
    bool fits(const Day& day) const;
    bool fits_weekday(const Day& day) const;
    bool fits_week(const Day& day) const;
    void add_times(Days day, const std::vector<int>& hours, const std::vector<int>& minutes);
    void keep_positions();
    void skip_to(std::int64_t second);

    CalendarRule rule_;
    const Bounds bounds_;
    const Spend spend_;
    std::vector<int> hours_, minutes_, seconds_;
    std::int64_t step_ = 0; // the next year, month (of all years), day or second to look at
    std::vector<DateTime> found_{};
    std::size_t place_ = 0;
    std::int64_t told_ = 0;
    bool is_over_ = false;
};

} // namespace recurrence
