#pragma once

#include "core/grid/calendar_grid.h"
#include "core/shell/main_window.h"

namespace shell {

// Keeps the grid and the year label as large as the window lets them be.
class Sizing {
public:
    static constexpr int beside_grid = 1000; // twips of the window's width that aren't the grid's

    Sizing(const host::Platform& here, MainWindow& window, grid::CalendarGrid& grid)
        : here_(here), window_(window), grid_(grid), msgSched_(grid.msgSched) {}

    // The window has got another size.
    void Form_Resize();

private:
    void keep_column_widths(int grid_width);

    const host::Platform& here_;
    MainWindow& window_;
    const grid::CalendarGrid& grid_;
    table::GridModel& msgSched_;
};

} // namespace shell
