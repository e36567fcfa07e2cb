#include "ui/grid_widget/line_sizer.h"

#include "ui/picture/style.h"

#include <algorithm>

namespace ui {

std::optional<LineSizer::Border> LineSizer::border_at(QPoint place, const picture::View& view) {
    if (place.y() >= 0 && place.y() < view.rows.fixed_end())
        if (const int col = view.cols.border_at(place.x(), reach); col >= 0)
            return Border{Kind::column, col};
    if (place.x() >= 0 && place.x() < view.cols.fixed_end())
        if (const int row = view.rows.border_at(place.y(), reach); row >= 0)
            return Border{Kind::row, row};
    return std::nullopt;
}

std::optional<Qt::CursorShape> LineSizer::cursor_at(QPoint place, const picture::View& view) {
    const auto border = border_at(place, view);
    if (!border)
        return std::nullopt;
    return border->kind == Kind::row ? Qt::SplitVCursor : Qt::SplitHCursor;
}

bool LineSizer::begin(QPoint place, const picture::View& view) {
    const auto border = border_at(place, view);
    if (!border)
        return false;
    kind_ = border->kind;
    line_ = border->line;
    pressed_at_ = along_axis(place);
    size_before_ = kind_ == Kind::row ? model_.RowHeight(line_) : model_.ColWidth(line_);
    return true;
}

void LineSizer::move_to(QPoint place) {
    const int moved = along_axis(place) - pressed_at_;
    set_size(std::max(picture::twips_from_pixels(least_size), size_before_ + picture::twips_from_pixels(moved)));
}

void LineSizer::abandon() {
    set_size(size_before_);
    end();
}

void LineSizer::set_size(int twips) {
    if (line_ >= (kind_ == Kind::row ? model_.Rows() : model_.Cols()))
        return; // the grid has been reshaped meanwhile
    if (kind_ == Kind::row)
        model_.RowHeight(line_, twips);
    else
        model_.ColWidth(line_, twips);
}

} // namespace ui
