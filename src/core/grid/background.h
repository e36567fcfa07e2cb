#pragma once

#include "grid/cell_writer.h"
#include "grid/layout.h"
#include "grid/titles.h"

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
    void Color_offSlots(GridModel& grid, host::Window& owner, bool main_grid);
    // Whether the row lies in one of the ranges of the day last read. The end of a range is outside.
    bool In_Slot(GridModel& grid, int row, int day, bool main_grid);
    Colour GetBackGroundColor(int row);

private:
    struct Band {
        std::string color;
        int selector; // 1 for even slots, 2 for odd ones
    };
    Band band_of_row(int row) const;
    bool is_holiday(int col) const;

    Layout& layout_;
    CellWriter& writer_;
    Titles& titles_;
    act::UserList& users_;
    Surroundings here_;
    std::vector<values::DateTime> OffStarts, OffEnds; // the inactive ranges of one weekday
};

} // namespace grid
