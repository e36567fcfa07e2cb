#include "ui/picture/grid_painter.h"

#include "core/table/selected_cells.h"
#include "ui/picture/style.h"

#include <QPaintEngine>
#include <QPainter>
#include <QRegion>

#include <algorithm>
#include <cmath>

namespace picture {

namespace {

// Where something of that size begins in its room: at the start (0), in the middle (1) or at the end (2).
int placed(int begin, int room, int size, int where) { return begin + std::max(0, room - size) * where / 2; }

// 0 top, 1 centre, 2 bottom; 0 left, 1 centre, 2 right.
int vertical(table::Alignment alignment) { return static_cast<int>(alignment) % 3; }
int horizontal(table::Alignment alignment) { return std::min(2, static_cast<int>(alignment) / 3); }

TextBlock::Side side_of(table::Alignment alignment) { return static_cast<TextBlock::Side>(horizontal(alignment)); }

// How many dots of the device a pixel has; enough for paper where there is no screen.
qreal picture_ratio(const QPainter& painter) {
    const qreal ratio = painter.deviceTransform().m11();
    return painter.paintEngine()->type() == QPaintEngine::Raster ? ratio : std::max(ratio, 4.0);
}

std::string_view without_leading_blanks(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

} // namespace

QRect GridPainter::Scene::extent() const { return QRect(0, 0, view.cols.total_end(), view.rows.total_end()); }

bool GridPainter::Scene::is_marked(table::Place cell) const {
    const table::CellRange selected = table::selected_cells(model);
    return selected.count() > 1 && !view.is_title(cell) && selected.holds(cell);
}

void GridPainter::paint(QPainter& painter, const QRect& area, const table::GridModel& model, const View& view,
                        Marks marks) {
    const Scene scene{painter, model, view, marks};
    for (const QRect& rest : QRegion(area) - scene.extent())
        painter.fillRect(rest, style::beyond);
    // Cell by cell, ground and text together: what was just filled is still cached when the text goes over it.
    for (const int row : view.rows.shown())
        for (const int col : view.cols.shown()) {
            paint_ground(scene, {.row = row, .col = col});
            paint_contents(scene, {.row = row, .col = col});
        }
    paint_current_frame(scene);
}

// The line at the right and lower edge is the ground made darker, darker still at the end of the titles. It stands
// on the last pixel and is opaque, which is far quicker than half clear lines laid over all.
void GridPainter::paint_ground(const Scene& scene, table::Place cell) const {
    QColor colour = screen_colour(scene.model.cell(cell.row, cell.col).back_colour,
                                  scene.view.is_title(cell) ? style::title : style::ground);
    if (scene.is_marked(cell))
        colour = mixed(colour, style::selection, style::selection_percent);
    const auto line_colour = [&](bool ends_titles) {
        return mixed(colour, style::line, ends_titles ? style::title_line_percent : style::line_percent);
    };
    const QRect rect = scene.view.rect_of(cell);
    scene.painter.fillRect(rect, colour);
    scene.painter.fillRect(QRect(rect.right(), rect.top(), 1, rect.height()),
                           line_colour(cell.col == scene.view.cols.fixed() - 1));
    scene.painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1),
                           line_colour(cell.row == scene.view.rows.fixed() - 1));
}

void GridPainter::paint_contents(const Scene& scene, table::Place place) {
    const table::GridCell& cell = scene.model.cell(place.row, place.col);
    if (cell.text.empty() && cell.picture == 0)
        return;
    QPainter& painter = scene.painter;
    const QRect rect = scene.view.rect_of(place).adjusted(0, 0, -1, -1);
    QRect room = rect.adjusted(style::padding_x, 0, -style::padding_x, 0);
    const int padding = std::min(style::padding_y, rect.height() / 4);
    std::string_view text = cell.text;
    bool reaches_out = false;
    const auto keep_inside = [&](const QRect& drawn) {
        if (!reaches_out && !rect.contains(drawn)) {
            painter.save();
            painter.setClipRect(rect, Qt::IntersectClip);
            reaches_out = true;
        }
    };

    if (cell.picture != 0) {
        const qreal ratio = picture_ratio(painter);
        const QPixmap& picture = pictures_.pixmap(scene.model.picture_path(cell), ratio);
        if (!picture.isNull()) {
            const QSize size = picture.deviceIndependentSize().toSize();
            const int top = placed(room.top() + padding, room.height() - 2 * padding, size.height(),
                                   vertical(cell.picture_alignment));
            const auto on_dot = [ratio](int edge) { return std::round(edge * ratio) / ratio; };
            keep_inside(QRect(QPoint(room.left(), top), size));
            painter.drawPixmap(QPointF(on_dot(room.left()), on_dot(top)), picture);
            room.setLeft(room.left() + size.width() + style::picture_gap);
            // The blanks at the beginning of the text are the room that it leaves for the picture.
            text = without_leading_blanks(text);
        }
    }
    if (horizontal(cell.alignment) == 0) {
        // Without a picture they set all lines in, at the most as far as a picture would.
        const std::string_view bare = without_leading_blanks(text);
        const int blanks = static_cast<int>(text.size() - bare.size());
        room.setLeft(room.left() + std::min(blanks * texts_.blank_width(), style::picture_room));
        text = bare;
    }
    if (!text.empty() && room.width() > 0) {
        const TextBlock& block = texts_.block(text, cell.bold ? Weight::bold : Weight::regular,
                                              {room.width(), room.height() - 2 * padding});
        const bool in_title_row = place.row < scene.view.rows.fixed();
        const bool is_tight = block.height() > room.height() - 2 * padding;
        const int part = in_title_row || is_tight ? 1 : vertical(cell.alignment);
        const int inset = is_tight ? 0 : padding;
        const int top = placed(room.top() + inset, room.height() - 2 * inset, block.height(), part);
        const QColor own = screen_colour(scene.model.ForeColor(), style::text);
        keep_inside(QRect(room.left(), top, room.width(), block.height()));
        painter.setPen(screen_colour(cell.fore_colour, own));
        block.draw(painter, QPoint(room.left(), top), side_of(cell.alignment),
                   cell.strike_through ? Stroke::struck_through : Stroke::plain);
    }
    if (reaches_out)
        painter.restore();
}

void GridPainter::paint_current_frame(const Scene& scene) const {
    const table::Place current = table::current_cell(scene.model);
    if (!scene.view.shows(current))
        return;
    const QColor colour = scene.marks == Marks::with_focus ? style::accent : style::frame_without_focus;
    const int width = style::frame_width;
    const QRect rect = scene.view.rect_of(current);
    scene.painter.fillRect(QRect(rect.left(), rect.top(), rect.width(), width), colour);
    scene.painter.fillRect(QRect(rect.left(), rect.bottom() + 1 - width, rect.width(), width), colour);
    scene.painter.fillRect(QRect(rect.left(), rect.top(), width, rect.height()), colour);
    scene.painter.fillRect(QRect(rect.right() + 1 - width, rect.top(), width, rect.height()), colour);
}

} // namespace picture
