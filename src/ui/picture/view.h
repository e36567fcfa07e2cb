#pragma once

#include "core/table/grid_model.h"
#include "ui/picture/pixel_lines.h"

#include <QPoint>
#include <QRect>

namespace picture {

// The rows and columns of a grid in the pixels of a view.
struct View {
    PixelLines rows;
    PixelLines cols;

    View() = default;
    // The grid as it shows in a view of that size, scrolled as the model says.
    View(const table::GridModel& model, const QSize& size)
        : rows(model.rows(), size.height()), cols(model.columns(), size.width()) {}

    bool shows(table::Place cell) const { return rows.shows(cell.row) && cols.shows(cell.col); }
    // Where a cell lies; meaningful for one that shows.
    QRect rect_of(table::Place cell) const {
        return QRect(cols.begin(cell.col), rows.begin(cell.row), cols.size(cell.col), rows.size(cell.row));
    }
    // The cell at a place; its row or column is -1 where there is none.
    table::Place cell_at(QPoint place) const { return {.row = rows.at(place.y()), .col = cols.at(place.x())}; }
    bool is_title(table::Place cell) const { return cell.row < rows.fixed() || cell.col < cols.fixed(); }
};

} // namespace picture
