#pragma once

#include "core/table/grid_model.h"

#include <algorithm>

namespace table {

// The lines from a current one to a far end of the selection, whichever comes first.
struct LineRange {
    int first, last;
    LineRange(int one_end, int other_end)
        : first(std::min(one_end, other_end)), last(std::max(one_end, other_end)) {}
    bool holds(int line) const { return line >= first && line <= last; }
    int count() const { return last - first + 1; }
};

inline LineRange selected_rows(const GridModel& model) { return {model.Row(), model.RowSel()}; }
inline LineRange selected_cols(const GridModel& model) { return {model.Col(), model.ColSel()}; }

inline bool is_selected(const GridModel& model, int row, int col) {
    return selected_rows(model).holds(row) && selected_cols(model).holds(col);
}

} // namespace table
