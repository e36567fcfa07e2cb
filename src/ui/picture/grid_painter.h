#pragma once

#include "core/table/grid_model.h"
#include "ui/picture/picture_cache.h"
#include "ui/picture/pixel_lines.h"
#include "ui/picture/text_blocks.h"

#include <QRect>

namespace picture {

// How the current cell is framed.
enum class Marks { without_focus, with_focus };

// Draws a grid's cells.
class GridPainter {
public:
    explicit GridPainter(const QFont& font) : texts_(font) {}
    void set_font(const QFont& font) { texts_.set_font(font); }

    // Fills the area, drawing the cells that the lines show.
    void paint(QPainter& painter, const QRect& area, const table::GridModel& model, const PixelLines& rows,
               const PixelLines& cols, Marks marks);

private:
    struct Scene {
        QPainter& painter;
        const table::GridModel& model;
        const PixelLines& rows;
        const PixelLines& cols;
        Marks marks;

        QRect cell_rect(int row, int col) const {
            return QRect(cols.begin(col), rows.begin(row), cols.size(col), rows.size(row));
        }
        QRect extent() const;
        bool is_marked(int row, int col) const;
    };

    void paint_ground(const Scene& scene, int row, int col) const;
    void paint_contents(const Scene& scene, int row, int col);
    void paint_current_frame(const Scene& scene) const;

    TextBlocks texts_;
    PictureCache pictures_;
};

} // namespace picture
