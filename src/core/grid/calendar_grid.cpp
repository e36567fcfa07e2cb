#include "core/grid/calendar_grid.h"

namespace grid {

CalendarGrid::CalendarGrid(act::UserList& users, const host::Folders& folders, const Surroundings& surroundings)
    : layout(msgSched, users, surroundings), writer(layout, folders, surroundings.guarded),
      titles(layout, writer, users, surroundings), background(layout, writer, titles, users, surroundings),
      rendering(layout, writer, selection, surroundings.guarded), here_(surroundings) {}

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
