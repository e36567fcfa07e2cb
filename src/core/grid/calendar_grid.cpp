#include "core/grid/calendar_grid.h"

namespace grid {

CalendarGrid::CalendarGrid(const host::Platform& here, const settings::Settings& settings,
                           const act::UserList& users)
    : layout(here, settings, users, msgSched), writer(here, layout), titles(here, settings, users, writer),
      background(here, settings, users, titles), rendering(here, writer, selection), here_(here) {}

void CalendarGrid::Setup_Calendar(values::DateTime start, values::DateTime end) {
    here_.guarded("in frmMain: Sub Setup_Calendar - Line # ", [&](host::Step& step) {
        step = 10;
        here_.window.lock_updates();
        step = 20;
        layout.Initialize_Calendar(start, end);
        step = 30;
        if (!layout.KeepCellDims)
            layout.Restore_CellDims();
        step = 40;
        titles.Write_ColTitles();
        step = 50;
        background.Refresh_Colors();
        step = 60;
        layout.Hide_DaysOff();
        step = 70;
        here_.window.unlock_updates();
    });
}

} // namespace grid
