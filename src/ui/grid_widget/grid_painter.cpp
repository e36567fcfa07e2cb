#include "grid_widget/grid_painter.h"

#include "grid_widget/grid_style.h"
#include "grid_widget/selection_range.h"

#include <algorithm>
#include <cmath>

namespace ui {

namespace {

// Where something of that size begins in its room: part 0 at the begin, 1 in the middle, 2 at the end.
int placed(int begin, int room, int size, int part) { return begin + std::max(0, room - size) * part / 2; }

// 0 top, 1 centre, 2 bottom; 0 left, 1 centre, 2 right.
int vertical(grid::Alignment alignment) { return static_cast<int>(alignment) % 3; }
int horizontal(grid::Alignment alignment) { return std::min(2, static_cast<int>(alignment) / 3); }

std::string_view without_leading_blanks(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

} // namespace

QRect GridPainter::Scene::extent() const { return QRect(0, 0, cols.total_end(), rows.total_end()); }

bool GridPainter::Scene::is_marked(int row, int col) const {
    const bool is_title = row < rows.fixed() || col < cols.fixed();
    const bool several = selected_rows(model).count() > 1 || selected_cols(model).count() > 1;
    return marks != Marks::none && several && !is_title && is_selected(model, row, col);
}

void GridPainter::paint(QPainter& painter, const QRect& area, const grid::GridModel& model, const PixelLines& rows,
                        const PixelLines& cols, Marks marks) {
    const Scene scene{painter, model, rows, cols, marks};
    if (!scene.extent().contains(area))
        painter.fillRect(area, style::beyond);
    paint_grounds(scene);
    paint_lines(scene);
    paint_contents(scene);
    if (marks != Marks::none)
        paint_current_frame(scene);
}

// Neighbours of one colour are filled at once.
void GridPainter::paint_grounds(const Scene& scene) const {
    for (const int row : scene.rows.shown()) {
        QRect run;
        QColor run_colour;
        for (const int col : scene.cols.shown()) {
            const bool is_title = row < scene.rows.fixed() || col < scene.cols.fixed();
            QColor colour =
                screen_colour(scene.model.cell(row, col).back_colour, is_title ? style::title : style::ground);
            if (scene.is_marked(row, col))
                colour = mixed(colour, style::accent, style::selection_percent);
            const QRect rect = scene.cell_rect(row, col);
            if (!run.isNull() && colour == run_colour) {
                run.setRight(rect.right());
                continue;
            }
            if (!run.isNull())
                scene.painter.fillRect(run, run_colour);
            run = rect;
            run_colour = colour;
        }
        if (!run.isNull())
            scene.painter.fillRect(run, run_colour);
    }
}

// Each line stands on the last pixel of its row or column; those between titles and cells are stronger.
void GridPainter::paint_lines(const Scene& scene) const {
    const QRect extent = scene.extent();
    for (const int row : scene.rows.shown())
        scene.painter.fillRect(QRect(0, scene.rows.end(row) - 1, extent.width(), 1),
                               row == scene.rows.fixed() - 1 ? style::title_line : style::line);
    for (const int col : scene.cols.shown())
        scene.painter.fillRect(QRect(scene.cols.end(col) - 1, 0, 1, extent.height()),
                               col == scene.cols.fixed() - 1 ? style::title_line : style::line);
}

void GridPainter::paint_contents(const Scene& scene) {
    for (const int row : scene.rows.shown())
        for (const int col : scene.cols.shown()) {
            const grid::GridCell& cell = scene.model.cell(row, col);
            if (!cell.text.empty() || cell.picture != 0)
                paint_cell(scene, row, col, cell);
        }
}

void GridPainter::paint_cell(const Scene& scene, int row, int col, const grid::GridCell& cell) {
    QPainter& painter = scene.painter;
    const QRect rect = scene.cell_rect(row, col).adjusted(0, 0, -1, -1);
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
        const qreal ratio = painter.device()->devicePixelRatio();
        const QPixmap& picture = pictures_.pixmap(scene.model.picture_path(cell), ratio);
        if (!picture.isNull()) {
            const QSize size = picture.deviceIndependentSize().toSize();
            const int top = placed(room.top() + padding, room.height() - 2 * padding, size.height(),
                                   vertical(cell.picture_alignment));
            const auto on_dot = [ratio](int place) { return std::round(place * ratio) / ratio; };
            keep_inside(QRect(QPoint(room.left(), top), size));
            painter.drawPixmap(QPointF(on_dot(room.left()), on_dot(top)), picture);
            room.setLeft(room.left() + size.width() + style::picture_gap);
            // The blanks at the text's begin are the room that it leaves for the picture.
            text = without_leading_blanks(text);
        }
    }
    if (!text.empty() && room.width() > 0) {
        const TextBlock& block = texts_.block(text, cell.bold, room.width(), room.height() - 2 * padding);
        const bool in_title_row = row < scene.rows.fixed();
        const bool is_tight = block.height() > room.height() - 2 * padding;
        const int part = in_title_row || is_tight ? 1 : vertical(cell.alignment);
        const int inset = is_tight ? 0 : padding;
        const int top = placed(room.top() + inset, room.height() - 2 * inset, block.height(), part);
        const QColor own = screen_colour(scene.model.ForeColor(), style::text);
        keep_inside(QRect(room.left(), top, room.width(), block.height()));
        painter.setPen(screen_colour(cell.fore_colour, own));
        block.draw(painter, QPoint(room.left(), top), room.width(),
                   static_cast<TextBlock::Side>(horizontal(cell.alignment)), cell.strike_through);
    }
    if (reaches_out)
        painter.restore();
}

void GridPainter::paint_current_frame(const Scene& scene) const {
    const int row = scene.model.Row(), col = scene.model.Col();
    if (!scene.rows.shows(row) || !scene.cols.shows(col))
        return;
    const QColor colour = scene.marks == Marks::with_focus ? style::accent : style::frame_without_focus;
    const int width = style::frame_width;
    const QRect rect = scene.cell_rect(row, col);
    scene.painter.fillRect(QRect(rect.left(), rect.top(), rect.width(), width), colour);
    scene.painter.fillRect(QRect(rect.left(), rect.bottom() + 1 - width, rect.width(), width), colour);
    scene.painter.fillRect(QRect(rect.left(), rect.top(), width, rect.height()), colour);
    scene.painter.fillRect(QRect(rect.right() + 1 - width, rect.top(), width, rect.height()), colour);
}

} // namespace ui
