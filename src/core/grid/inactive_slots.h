#pragma once

#include "core/grid/bands.h"
#include "core/grid/holiday_file.h"

#include <string>
#include <vector>

namespace grid {

// The inactive time slots, which the settings keep by weekday, and their colour.
class InactiveSlots {
public:
    InactiveSlots(const host::Platform& here, const settings::Settings& settings, const HolidayFile& holidays,
                  const Bands& bands, CellWriter& writer)
        : here_(here), settings_(settings), layout_(writer.layout()), holidays_(holidays), bands_(bands),
          writer_(writer) {}

    // The main grid, or that of the dialog that edits the slots, which has a column a weekday.
    enum class GridKind { main, dialog };

    // Paints the inactive slots of a grid. The owner is the window that shows it.
    void Color_offSlots(table::GridModel& grid, host::Window& owner, GridKind kind);
    // Whether the row lies in one of the ranges of the day last read. The end of a range is outside.
    bool In_Slot(int row, int day, GridKind kind);

private:
    std::string weekday_of(int day, GridKind kind) const;
    void read_ranges(const std::string& ranges); // "start|end,start|end"
    values::DateTime time_of_row(int row);
    values::DateTime time_of_cell(int row, int day) const;

    const host::Platform& here_;
    const settings::Settings& settings_;
    const Layout& layout_;
    const HolidayFile& holidays_;
    const Bands& bands_;
    CellWriter& writer_;
    std::vector<values::DateTime> OffStarts, OffEnds; // the ranges of one weekday
    // The row time last read: rows of a slot have the same.
    std::string row_time_text_;
    values::DateTime row_time_;
};

} // namespace grid
