#pragma once

#include "core/table/grid_model.h"
#include "ui/picture/picture_cache.h"
#include "ui/picture/text_blocks.h"
#include "ui/picture/view.h"

#include <QRect>

namespace picture {

// How the current cell is framed.
enum class Marks { without_focus, with_focus };

// Draws a grid's cells.
class GridPainter {
public:
    explicit GridPainter(const QFont& font) : texts_(font) {}
    void set_font(const QFont& font) { texts_.set_font(font); }

    // Fills the area, drawing the cells that the view shows.
    void paint(QPainter& painter, const QRect& area, const table::GridModel& model, const View& view, Marks marks);

private:
    struct Scene {
        QPainter& painter;
        const table::GridModel& model;
        const View& view;
        Marks marks;

        QRect extent() const;
        bool is_marked(table::Place cell) const;
    };

    void paint_ground(const Scene& scene, table::Place cell) const;
    void paint_contents(const Scene& scene, table::Place cell);
    void paint_current_frame(const Scene& scene) const;

    TextBlocks texts_;
    PictureCache pictures_;
};

} // namespace picture
