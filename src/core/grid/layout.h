#pragma once

#include "core/act/user_list.h"
#include "core/grid/cell.h"
#include "core/grid/day_grid.h"
#include "core/grid/slot.h"
#include "core/grid/slot_times.h"
#include "core/host/platform.h"
#include "core/settings/settings.h"
#include "core/table/grid_model.h"
#include "core/values/date_time.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace grid {

// Which days, time slots and users lie in which columns and rows of the grid, and the records behind its cells.
// Nobody else reckons with rows, columns and days.
class Layout {
public:
    Layout(const host::Platform& here, const settings::Settings& settings, const act::UserList& users,
           table::GridModel& msgSched);
    Layout(const Layout&) = delete; // its cells and slots point to it
    Layout& operator=(const Layout&) = delete;

    grid::Cells Cells;
    grid::Slots Slots;
    bool KeepCellDims = false; // on during a jump, which keeps widths and heights

    // How the calendar is laid out. The grid takes it over with the next Initialize_Calendar.
    int NumDays() const { return NumDays_; } // 7 in the weekly view, 1 in the daily view
    void NumDays(int days) { NumDays_ = days; }
    std::string_view view_name() const; // the view's word in the names of keys
    // A row for each user in each slot, or rows that all users share.
    bool OneRowPerUser() const { return OneRowPerUser_; }
    void OneRowPerUser(bool on);
    int FixedCols() const { return lines_.fixed_cols(); } // 2 with OneRowPerUser, else 1
    // The weekdays that are hidden, as digits, 1 Sunday: "17".
    const std::string& DaysOff() const { return DaysOff_; }
    void DaysOff(std::string weekdays) { DaysOff_ = std::move(weekdays); }
    int StdColWidth() const { return StdColWidth_; } // twips
    void StdColWidth(int twips) { StdColWidth_ = twips; }
    int StdRowHeight() const { return StdRowHeight_; }
    void StdRowHeight(int twips) { StdRowHeight_ = twips; }

    // The days in view; no time part.
    values::DateTime StartDate() const { return StartDate_; }
    values::DateTime EndDate() const { return EndDate_; }
    values::DateTime after_last_day() const { return StartDate_.plus_days(NumDays_); }
    int FirstDayOfWeek() const { return FirstDayOfWeek_; }  // 1 Sunday to 7 Saturday
    const std::string& lblYear() const { return lblYear_; } // the caption of the year label
    // NumDays days from this one on. The year label names the year of that day, or of another.
    void show(values::DateTime first_day) { show(first_day, first_day); }
    void show(values::DateTime first_day, values::DateTime year_of);
    // The days of the view that holds the date, after reading which day weeks begin on.
    void Initialize_Dates(values::DateTime date);
    // The first day of the view that holds the date: of its week, or in the daily view the date itself, or the
    // next day that isn't off. Fails with 5 when FirstDayOfWeek is no weekday.
    values::DateTime first_day_for(values::DateTime date) const;
    // Moves the days in view. A step of a single day goes on over days off.
    void move_by(int days);

    // Sizes the grid for the days from start to end and its rows, and builds Slots and Cells anew. Window updates
    // stay locked.
    void Initialize_Calendar(values::DateTime start, values::DateTime end);
    // Clears the grid and gives all columns and rows their standard sizes.
    void Restore_CellDims();
    // Hides the columns of days off and shows the others.
    void Hide_DaysOff();

    // Colours as the settings write them, as they were last read: the bands of even and odd slots, holidays and
    // inactive slots, the users' names.
    const std::string& Color0() const { return Color0_; }
    const std::string& Color1() const { return Color1_; }
    const std::string& Color3() const { return Color3_; }
    const std::string& Color4() const { return Color4_; }
    void read_band_colors();
    void read_off_color();

    // Columns. A date out of view has a column outside the grid; one that is too far away for a 16-bit column
    // shows the failure box and gives 0.
    int GetDayCol(values::DateTime date) const;
    values::DateTime date_of_column(int col) const { return StartDate_.plus_days(lines_.day_of(col)); }
    int last_col() const { return grid_.Cols() - 1; }
    // The column and the date of the n-th day in view, n from 1.
    int nth_day_col(int n) const { return lines_.col_of(n - 1); }
    values::DateTime nth_day(int n) const { return date_of_column(nth_day_col(n)); }
    // The column that gets the inactive slots of the n-th day: the day's own with two fixed columns, and the next
    // one with a single one.
    int off_col(int n) const { return n + 1; }
    bool is_day_off(values::DateTime date) const;
    // The date itself if it is shown, else the next one that is, in that direction; the seventh date tried when
    // all days are off.
    enum class Direction { forward, backward };
    values::DateTime GetNextNotHiddenDay(values::DateTime date, Direction direction) const;
    // The first day of the date's week. Fails with 5 when FirstDayOfWeek is no weekday.
    values::DateTime GetFirstDayOf(values::DateTime date) const;

    // Rows: SlotsCount slots of CellsPerSlot rows each.
    int SlotsCount() const { return SlotsCount_; }
    int CellsPerSlot() const { return lines_.cells_per_slot(); }
    const DayGrid& lines() const { return lines_; }
    int last_row() const { return grid_.Rows() - 1; }
    SlotNumber slot_of_row(int row) const { return lines_.slot_of(row); } // fails with 6 when slots have no rows
    int first_row_of(SlotNumber slot) const { return lines_.row_of(slot); }
    // By grid row, the start of its slot as text, as the row titles were last written.
    const std::vector<std::string>& RowTimes() const { return RowTimes_; }
    int FirstPMRow() const { return FirstPMRow_; } // the first row of the afternoon; 0 if there is none
    void forget_row_times();
    void note_slot_start(SlotNumber slot, values::DateTime start, values::DateTime afternoon);

    // A record that belongs to no cell yet.
    CellReference free_standing_cell() const { return CellReference(std::make_shared<clsMsgSchedCell>(*this)); }

    const SlotTimes& slot_times() const { return slot_times_; }
    table::GridModel& msgSched() { return grid_; }
    const table::GridModel& msgSched() const { return grid_; }

private:
    const host::Platform& here_;
    const settings::Settings& settings_;
    const act::UserList& users_;
    table::GridModel& grid_;
    SlotTimes slot_times_;

    DayGrid lines_{2, 0};
    int NumDays_ = 0;
    bool OneRowPerUser_ = true;
    std::string DaysOff_;
    int StdColWidth_ = 1800, StdRowHeight_ = 820;
    values::DateTime StartDate_, EndDate_;
    int FirstDayOfWeek_ = 1;
    std::string lblYear_;
    int SlotsCount_ = 0;
    std::vector<std::string> RowTimes_;
    int FirstPMRow_ = 0;
    std::string Color0_, Color1_, Color3_, Color4_;
};

} // namespace grid
