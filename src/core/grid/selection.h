#pragma once

#include "core/grid/cell.h"
#include "core/values/failure.h"

namespace grid {

// The cells that mouse and commands speak of. Both are unset until the program has come up. Giving one a cell of
// the grid makes it that very record: "SelectedCell = layout.Cells.reference(row, col)".
struct Selection {
    CellReference SelectedCell;   // the cell of the last press
    CellReference DragSourceCell; // the cell on which a drag began

    // The record; fails with 91 while there is none.
    clsMsgSchedCell& selected() { return *set(SelectedCell); }
    const clsMsgSchedCell& selected() const { return *set(SelectedCell); }
    const clsMsgSchedCell& drag_source() const { return *set(DragSourceCell); }

private:
    template <typename Reference> // const or not
    static Reference& set(Reference& cell) {
        if (!cell)
            throw values::Failure(values::FailureNumber::object_not_set);
        return cell;
    }
};

} // namespace grid
