#pragma once

#include "core/grid/cell.h"
#include "core/grid/slot.h"
#include "core/grid/slot_times.h"
#include "core/host/clock.h"
#include "core/host/guard.h"
#include "core/host/window.h"
#include "core/settings/ini_lib.h"
#include "core/settings/per_user_store.h"
#include "core/table/grid_model.h"
#include "core/values/date_time.h"
#include "core/values/locale.h"

#include <string>
#include <vector>

namespace act {
class UserList;
}
namespace grid {

// What the grid room needs of its surroundings.
struct Surroundings {
    const settings::IniLib& ini;
    const settings::PerUserStore& user_store;
    const values::Locale& locale;
    const host::Clock& clock;
    host::Window& window;
    const host::Guard& guarded;
};

// How days, time slots and users map to the columns and rows of the grid, and the records behind it. Nobody else
// does arithmetic with rows, columns and days.
class Layout {
public:
    Layout(table::GridModel& msgSched, act::UserList& users, const Surroundings& surroundings);
    Layout(const Layout&) = delete; // its cells and slots point to it
    Layout& operator=(const Layout&) = delete;

    // Set at start from the settings, and by the view boxes.
    int NumDays = 0;   // 7 in the weekly view, 1 in the daily view
    int FixedCols = 2; // 2 with OneRowPerUser, else 1
    bool OneRowPerUser = true;
    std::string DaysOff;    // digits of the weekdays that are hidden, 1 Sunday: "17"
    int StdColWidth = 1800; // twips
    int StdRowHeight = 820;
    bool KeepCellDims = false; // on during a jump, which keeps widths and heights

    // The days in view; no time part.
    values::DateTime StartDate;
    values::DateTime EndDate;
    int FirstDayOfWeek = 1; // 1 Sunday to 7 Saturday
    std::string lblYear;    // the caption of the year label

    int SlotsCount = 0;
    int CellsPerSlot = 0;                       // rows of a slot
    std::vector<std::string> RowTimes;          // by grid row, the start of its slot as text
    int FirstPMRow = 0;                         // the first row of the afternoon; 0 if there is none
    std::string Color0, Color1, Color3, Color4; // as the settings write them

    grid::Cells Cells;
    grid::Slots Slots;

    // Computes StartDate and EndDate for a view that holds the date.
    void Initialize_Dates(values::DateTime date);
    // Sizes the grid for the days from start to end and its rows, and builds Slots and Cells anew. Window updates
    // stay locked.
    void Initialize_Calendar(values::DateTime start, values::DateTime end);
    // Clears the grid and gives all columns and rows their standard sizes.
    void Restore_CellDims();
    // Hides the columns of days off and shows the others.
    void Hide_DaysOff();

    // The column of a date, which lies outside the grid for a date out of view. A date too far away for a 16-bit
    // column shows the failure box and gives 0.
    int GetDayCol(values::DateTime date) const;
    values::DateTime date_of_column(int col) const { return StartDate.plus_days(col - FixedCols); }
    bool is_day_off(values::DateTime date) const;
    // The date itself if it is shown, else the next one that is, in that direction; the seventh date tried when
    // all days are off.
    values::DateTime GetNextNotHiddenDay(values::DateTime date, bool backward) const;
    // The first day of the date's week. Fails with 5 when FirstDayOfWeek is no weekday.
    values::DateTime GetFirstDayOf(values::DateTime date) const;
    void set_year_label(values::DateTime date);

    int slot_of_row(int row) const; // rows from 1; fails with 6 when slots have no rows
    int first_row_of(int slot) const { return slot * CellsPerSlot + 1; }

    // A record that belongs to no cell yet.
    CellReference free_standing_cell() const { return std::make_shared<clsMsgSchedCell>(*this); }

    const SlotTimes& slot_times() const { return slot_times_; }
    table::GridModel& msgSched() const { return grid_; }

private:
    table::GridModel& grid_;
    act::UserList& users_;
    Surroundings here_;
    SlotTimes slot_times_;
};

} // namespace grid
