#pragma once

#include "core/engine/cell_text.h"
#include "core/engine/placing.h"
#include "core/engine/quick_refresh.h"
#include "core/engine/recurring.h"
#include "core/engine/refresh.h"
#include "core/engine/refresh_timer.h"

namespace engine {

// The road from the activity list to the grid, put together.
class CalendarEngine {
public:
    CalendarEngine(const host::Platform& here, const settings::Settings& settings, act::Connection& connection,
                   grid::CalendarGrid& calendar_grid, host::Timer& tmrRefresh)
        : act(connection), grid(calendar_grid), cell_text(here, settings, act, grid.layout),
          placing(here, settings, act, grid.layout, cell_text), recurring(here, act, grid.layout, placing),
          refresh(here, settings, act, grid, recurring), quick_refresh(here, settings, act, grid, recurring),
          refresh_timer(here, settings, tmrRefresh, quick_refresh, placing) {}
    CalendarEngine(const CalendarEngine&) = delete; // its parts point to each other
    CalendarEngine& operator=(const CalendarEngine&) = delete;

    act::Connection& act;
    grid::CalendarGrid& grid;
    CellText cell_text;
    Placing placing;
    Recurring recurring;
    Refresh refresh;
    QuickRefresh quick_refresh;
    RefreshTimer refresh_timer;
};

} // namespace engine
