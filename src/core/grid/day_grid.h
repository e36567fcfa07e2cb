#pragma once

#include "core/grid/slot_number.h"

namespace grid {

// How days, slots and the places within a slot lie in a grid's columns and rows: below one row and right of some
// columns of titles, a column for each day, and for each slot so many rows. Days, slots and places count from 0.
// Nothing here is checked against the size of a grid.
class DayGrid {
public:
    static constexpr int first_row = 1;

    DayGrid() = default;
    DayGrid(int fixed_cols, int cells_per_slot) : fixed_cols_(fixed_cols), cells_per_slot_(cells_per_slot) {}

    int fixed_cols() const { return fixed_cols_; }
    int cells_per_slot() const { return cells_per_slot_; }

    int row_of(SlotNumber slot, int place = 0) const { return first_row + slot.value * cells_per_slot_ + place; }
    int last_row_of(SlotNumber slot) const { return row_of(slot, cells_per_slot_ - 1); }
    SlotNumber slot_of(int row) const; // fails with 6 when slots have no rows
    int place_of(int row) const { return row - row_of(slot_of(row)); }
    // The row of the same place so many slots further on.
    int row_below(int row, int further) const { return row + further * cells_per_slot_; }

    int col_of(int day) const { return fixed_cols_ + day; }
    int day_of(int col) const { return col - fixed_cols_; }

    bool operator==(const DayGrid&) const = default;

private:
    int fixed_cols_ = 0;
    int cells_per_slot_ = 0;
};

} // namespace grid
