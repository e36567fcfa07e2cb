#include "core/interaction/places.h"

namespace interaction {

std::optional<int> Places::row_at(int y) const {
    for (int row = 0; row < grid_.Rows(); ++row)
        if (y >= grid_.RowPos(row) && y <= grid_.RowPos(row) + grid_.RowHeight(row))
            return row;
    return std::nullopt;
}

std::optional<int> Places::col_at(int x) const {
    for (int col = 0; col < grid_.Cols(); ++col)
        if (x >= grid_.ColPos(col) && x <= grid_.ColPos(col) + grid_.ColWidth(col))
            return col;
    return std::nullopt;
}

bool Places::is_within_columns(int x) const {
    const int last = grid_.Cols() - 1;
    return x <= grid_.ColPos(last) + grid_.ColWidth(last);
}

} // namespace interaction
