#pragma once

#include "grid/background.h"
#include "grid/cell_writer.h"
#include "grid/grid_model.h"
#include "grid/layout.h"
#include "grid/rendering.h"
#include "grid/selection.h"
#include "grid/titles.h"
#include "host/folders.h"

namespace grid {

// The calendar's grid put together: the model that is shown and everything that writes to it.
class CalendarGrid {
public:
    CalendarGrid(act::UserList& users, const host::Folders& folders, const Surroundings& surroundings);

    GridModel msgSched;
    Layout layout;
    CellWriter writer;
    Titles titles;
    Background background;
    Selection selection;
    Rendering rendering;

    // Rebuilds the whole grid for the days: shape, sizes, titles and colours; painted once at its end. The cells
    // of the days are filled by a full refresh afterwards.
    void Setup_Calendar(values::DateTime start, values::DateTime end);

private:
    Surroundings here_;
};

} // namespace grid
