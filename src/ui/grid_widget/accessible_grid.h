#pragma once

#include "core/table/cell_range.h"

#include <QAccessible>

#include <functional>
#include <optional>

namespace ui {

class GridWidget;

// What a turn of the event loop has changed.
struct GridNews {
    bool cells = false;
    bool size = false;  // the number of rows or columns
    bool focus = false; // the current cell is another one, or the grid has got the focus
    std::optional<table::CellRange> selection_before = {}; // where others are selected now
};

// Makes screen readers find a grid widget as a table: its cells by row and column, fixed ones included, the fixed
// ones as headers; texts, current cell and selection.
void install_grid_accessibility();

// Tells what has changed, to screen readers unless to somebody else. Worth its while only when one listens.
void tell_screen_readers(GridWidget& widget, const GridNews& news,
                         const std::function<void(QAccessibleEvent*)>& tell = QAccessible::updateAccessibility);

} // namespace ui
