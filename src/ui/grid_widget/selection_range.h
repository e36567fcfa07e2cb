#pragma once

#include "grid/grid_model.h"

#include <QRect>

#include <algorithm>

namespace ui {

// The lines from a current one to a far end of the selection, whichever comes first.
struct LineRange {
    int first, last;
    LineRange(int one_end, int other_end)
        : first(std::min(one_end, other_end)), last(std::max(one_end, other_end)) {}
    bool holds(int line) const { return line >= first && line <= last; }
    int count() const { return last - first + 1; }
};

inline LineRange selected_rows(const grid::GridModel& model) { return {model.Row(), model.RowSel()}; }
inline LineRange selected_cols(const grid::GridModel& model) { return {model.Col(), model.ColSel()}; }

// The selection's columns and rows.
inline QRect selected_cells(const grid::GridModel& model) {
    const LineRange rows = selected_rows(model), cols = selected_cols(model);
    return {cols.first, rows.first, cols.count(), rows.count()};
}

inline bool is_selected(const grid::GridModel& model, int row, int col) {
    return selected_rows(model).holds(row) && selected_cols(model).holds(col);
}

} // namespace ui
