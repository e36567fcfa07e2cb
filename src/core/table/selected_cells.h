#pragma once

#include "core/table/grid_model.h"

#include <algorithm>

namespace table {

// The selected cells, whichever of their ends is the current one.
inline CellRange selected_cells(const GridModel& model) {
    return {.rows = {std::min(model.Row(), model.RowSel()), std::max(model.Row(), model.RowSel())},
            .cols = {std::min(model.Col(), model.ColSel()), std::max(model.Col(), model.ColSel())}};
}

inline Place current_cell(const GridModel& model) { return {.row = model.Row(), .col = model.Col()}; }

} // namespace table
