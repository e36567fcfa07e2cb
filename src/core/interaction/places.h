#pragma once

#include "core/table/grid_model.h"

#include <optional>

namespace interaction {

// What lies at a place of the grid's screen. Places are twips, as RowPos and ColPos count them.
class Places {
public:
    explicit Places(const table::GridModel& msgSched) : grid_(msgSched) {}

    // Above the first row below the titles, or left of the first column right of them: those of the days stand
    // there, wherever the grid is scrolled to.
    bool is_in_title_row(int y) const { return y < grid_.RowPos(first_row()); }
    bool is_in_title_col(int x) const { return x < grid_.ColPos(first_col()); }
    // The first row and column that reach from their near edge to their far one over the place, edges included.
    std::optional<int> row_at(int y) const;
    std::optional<int> col_at(int x) const;
    // No further right than the last column's right edge.
    bool is_within_columns(int x) const;

private:
    int first_row() const { return grid_.TopRow(); }
    int first_col() const { return grid_.LeftCol(); }

    const table::GridModel& grid_;
};

} // namespace interaction
