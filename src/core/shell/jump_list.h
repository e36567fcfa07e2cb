#pragma once

#include <array>
#include <string_view>

namespace shell {

// The entries of cboGoTo, in their order.
inline constexpr std::array<std::string_view, 16> jump_entries{
    "",
    "Pick a date...",
    "Today - 1 year",
    "Today - 6 months",
    "Today - 3 months",
    "Today - 1 month",
    "1st of previous month",
    "15th of previous month",
    "1st of this month",
    "Today",
    "1st of next month",
    "15th of next month",
    "Today + 1 month",
    "Today + 3 months",
    "Today + 6 months",
    "Today + 1 year",
};

inline constexpr int jump_list_lines = 17; // one more than there are entries

} // namespace shell
