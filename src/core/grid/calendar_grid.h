#pragma once

#include "core/grid/background.h"
#include "core/grid/cell_writer.h"
#include "core/grid/layout.h"
#include "core/grid/rendering.h"
#include "core/grid/selection.h"
#include "core/grid/titles.h"
#include "core/table/grid_model.h"

namespace grid {

// The calendar's grid put together: the model that is shown and everything that writes to it.
class CalendarGrid {
public:
    CalendarGrid(const host::Platform& here, const settings::Settings& settings, const act::UserList& users);
    CalendarGrid(const CalendarGrid&) = delete; // its parts point to each other
    CalendarGrid& operator=(const CalendarGrid&) = delete;

    bool bLoading = false; // on from the load until the window has first been shown

    table::GridModel msgSched;
    Layout layout;
    CellWriter writer;
    Titles titles;
    Background background;
    Selection selection;
    Rendering rendering;

    const clsMsgSchedCell& current_cell() const { return layout.Cells(msgSched.Row(), msgSched.Col()); }

    // Rebuilds the whole grid for the days: shape, sizes, titles and colours; painted once at its end. The cells
    // of the days are filled by a full refresh afterwards.
    void Setup_Calendar(values::DateTime start, values::DateTime end);

private:
    const host::Platform& here_;
};

} // namespace grid
