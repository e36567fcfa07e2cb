#include "ui/grid_widget/line_sizer.h"

#include "ui/picture/style.h"

#include <algorithm>

namespace ui {

std::optional<LineSizer::Border> LineSizer::border_at(QPoint place, const picture::PixelLines& rows,
                                                      const picture::PixelLines& cols) {
    if (place.y() >= 0 && place.y() < rows.fixed_end())
        if (const int col = cols.border_at(place.x(), reach); col >= 0)
            return Border{false, col};
    if (place.x() >= 0 && place.x() < cols.fixed_end())
        if (const int row = rows.border_at(place.y(), reach); row >= 0)
            return Border{true, row};
    return std::nullopt;
}

std::optional<Qt::CursorShape> LineSizer::cursor_at(QPoint place, const picture::PixelLines& rows,
                                                    const picture::PixelLines& cols) {
    const auto border = border_at(place, rows, cols);
    if (!border)
        return std::nullopt;
    return border->of_row ? Qt::SplitVCursor : Qt::SplitHCursor;
}

bool LineSizer::begin(QPoint place, const picture::PixelLines& rows, const picture::PixelLines& cols) {
    const auto border = border_at(place, rows, cols);
    if (!border)
        return false;
    sizes_row_ = border->of_row;
    line_ = border->line;
    pressed_at_ = sizes_row_ ? place.y() : place.x();
    size_before_ = sizes_row_ ? model_.RowHeight(line_) : model_.ColWidth(line_);
    return true;
}

void LineSizer::move_to(QPoint place) {
    const int moved = (sizes_row_ ? place.y() : place.x()) - pressed_at_;
    set_size(std::max(least_size * picture::twips_per_pixel, size_before_ + moved * picture::twips_per_pixel));
}

void LineSizer::abandon() {
    set_size(size_before_);
    end();
}

void LineSizer::set_size(int twips) {
    if (line_ >= (sizes_row_ ? model_.Rows() : model_.Cols()))
        return; // the grid has been reshaped meanwhile
    if (sizes_row_)
        model_.RowHeight(line_, twips);
    else
        model_.ColWidth(line_, twips);
}

} // namespace ui
