#pragma once

#include "core/values/date_time.h"

#include <array>
#include <string_view>

namespace shell {

// An entry of cboGoTo.
struct Jump {
    enum class Target {
        none,  // stays where the calendar stands
        asked, // the user picks a date
        today,
        months, // today in another month, or that month's last day where it has no such day
        day,    // a day of another month
    };
    std::string_view text;
    Target target;
    int months = 0; // from this month on
    int day = 0;
};

// In their order.
inline constexpr std::array<Jump, 16> jumps{{
    {"", Jump::Target::none},
    {"Pick a date...", Jump::Target::asked},
    {"Today - 1 year", Jump::Target::months, -12},
    {"Today - 6 months", Jump::Target::months, -6},
    {"Today - 3 months", Jump::Target::months, -3},
    {"Today - 1 month", Jump::Target::months, -1},
    {"1st of previous month", Jump::Target::day, -1, 1},
    {"15th of previous month", Jump::Target::day, -1, 15},
    {"1st of this month", Jump::Target::day, 0, 1},
    {"Today", Jump::Target::today},
    {"1st of next month", Jump::Target::day, 1, 1},
    {"15th of next month", Jump::Target::day, 1, 15},
    {"Today + 1 month", Jump::Target::months, 1},
    {"Today + 3 months", Jump::Target::months, 3},
    {"Today + 6 months", Jump::Target::months, 6},
    {"Today + 1 year", Jump::Target::months, 12},
}};

inline constexpr auto jump_entries = [] {
    std::array<std::string_view, jumps.size()> texts;
    for (std::size_t index = 0; index < jumps.size(); ++index)
        texts[index] = jumps[index].text;
    return texts;
}();

inline constexpr int jump_list_lines = 17; // one more than there are entries

// The entry of that text; null if there is none.
const Jump* find_jump(std::string_view text);
// The date that an entry leads to from today. An entry without a target of its own gives today.
values::DateTime target_of(const Jump& jump, values::DateTime today);

} // namespace shell
