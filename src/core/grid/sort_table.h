#pragma once

#include <algorithm>
#include <string>
#include <vector>

namespace grid {

// One record of a slot in the table that decides the order of display.
struct SortEntry {
    int record;      // its index in the slot
    std::string key; // its Detail
};

// Orders the table by key, ascending, upper and lower case apart; equal keys keep their order.
inline void Sort_Table(std::vector<SortEntry>& table) {
    std::stable_sort(table.begin(), table.end(),
                     [](const SortEntry& left, const SortEntry& right) { return left.key < right.key; });
}

} // namespace grid
