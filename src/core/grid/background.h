#pragma once

#include "core/grid/cell_writer.h"
#include "core/grid/layout.h"
#include "core/grid/titles.h"

#include <string>
#include <vector>

namespace grid {

// The background of the grid in three passes, each over the one before: the bands of the slots, the holidays, the
// inactive time slots.
class Background {
public:
    Background(Layout& layout, CellWriter& writer, Titles& titles, act::UserList& users,
               const Surroundings& surroundings)
        : layout_(layout), writer_(writer), titles_(titles), users_(users), here_(surroundings) {}

    std::string Holidays;     // the holidays' short dates, each between two bars
    std::string HolidaysFile; // where their descriptions lie

    void Refresh_Colors(); // the row titles and all passes
    void Color_BackGround();
    void Insert_Holidays();
    void Remove_Holidays(); // before StartDate changes
    // Paints the inactive slots of a grid: of the main one, or of the dialog that edits them, which has a column
    // a weekday. The owner is the window that shows the grid.
    void Color_offSlots(table::GridModel& grid, host::Window& owner, bool main_grid);
    // Whether the row lies in one of the ranges of the day last read. The end of a range is outside.
    bool In_Slot(table::GridModel& grid, int row, int day, bool main_grid);
    table::Colour GetBackGroundColor(int row);

private:
    static constexpr int holiday_or_inactive = 3; // the selector of Color3

    struct Band {
        table::Colour color;
        int selector; // 1 for even slots, 2 for odd ones
    };
    Band band_of_row(int row) const;
    void paint(int row, int col, const Band& band);
    std::string date_text(int col) const; // the column's date as the holidays write it
    bool is_holiday(int col) const;
    std::string weekday_of(int day, bool main_grid) const;
    void read_ranges(const std::string& ranges); // "start|end,start|end"
    values::DateTime time_of_row(int row);
    values::DateTime time_of_cell(int row, int day) const;

    Layout& layout_;
    CellWriter& writer_;
    Titles& titles_;
    act::UserList& users_;
    Surroundings here_;
    std::vector<values::DateTime> OffStarts, OffEnds; // the inactive ranges of one weekday
    // The row time last read: rows of a slot have the same.
    std::string row_time_text_;
    values::DateTime row_time_;
};

} // namespace grid
