#pragma once

#include "core/host/guard.h"
#include "core/shell/main_window.h"
#include "core/table/grid_model.h"

namespace shell {

// Keeps the grid and the year label as large as the window lets them be.
class Sizing {
public:
    static constexpr int beside_grid = 1000; // twips of the window's width that aren't the grid's

    // `bLoading` is true until the window has first been shown.
    Sizing(MainWindow& window, table::GridModel& msgSched, const bool& bLoading, const host::Guard& guarded)
        : window_(window), msgSched_(msgSched), bLoading_(bLoading), guarded_(guarded) {}

    // The window has got another size.
    void Form_Resize();

private:
    void keep_column_widths(int grid_width);

    MainWindow& window_;
    table::GridModel& msgSched_;
    const bool& bLoading_;
    const host::Guard& guarded_;
};

} // namespace shell
