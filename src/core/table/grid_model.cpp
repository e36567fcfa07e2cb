#include "core/table/grid_model.h"

#include "core/values/failure.h"

#include <algorithm>

namespace table {

namespace {

using values::Failure;
using values::FailureNumber;

void require_value(bool holds) {
    if (!holds)
        throw Failure(FailureNumber::invalid_property_value);
}

void require_index(bool holds) {
    if (!holds)
        throw Failure(FailureNumber::invalid_property_index);
}

} // namespace

GridModel::GridModel() : pictures_(1) {
    rows_.resize(1);
    cols_.resize(1);
    cells_.resize(1);
}

void GridModel::Rows(int count) {
    require_value(count >= FixedRows());
    reshape(count, Cols());
}

void GridModel::Cols(int count) {
    require_value(count >= FixedCols() && count >= 1);
    reshape(Rows(), count);
}

void GridModel::FixedCols(int count) {
    require_value(count >= 0 && count <= Cols());
    if (count == FixedCols())
        return;
    cols_.set_fixed(count);
    notify(GridChange::shape);
}

void GridModel::reshape(int rows, int cols) {
    if (rows == Rows() && cols == Cols())
        return;
    if (cols == Cols()) {
        cells_.resize(static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols));
    } else {
        std::vector<GridCell> cells(static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols));
        const int kept_cols = std::min(cols, Cols());
        for (int row = 0; row < Rows(); ++row)
            std::move(cells_.begin() + static_cast<std::ptrdiff_t>(index(row, 0)),
                      cells_.begin() + static_cast<std::ptrdiff_t>(index(row, kept_cols)),
                      cells.begin() + static_cast<std::ptrdiff_t>(row) * cols);
        cells_ = std::move(cells);
    }
    rows_.resize(rows);
    cols_.resize(cols);
    notify(GridChange::shape);
    if (row_ >= rows || col_ >= cols || row_end_ >= rows || col_end_ >= cols)
        move_to(std::min(row_, rows - 1), std::min(col_, cols - 1));
}

void GridModel::move_to(int row, int col) {
    if (row == row_ && col == col_ && row == row_end_ && col == col_end_)
        return;
    row_ = row_end_ = row;
    col_ = col_end_ = col;
    notify(GridChange::current);
}

void GridModel::Row(int row) {
    require_value(rows_.holds(row));
    move_to(row, col_);
}

void GridModel::Col(int col) {
    require_value(cols_.holds(col));
    move_to(row_, col);
}

void GridModel::RowSel(int row) {
    require_value(rows_.holds(row));
    row_end_ = row;
    notify(GridChange::current);
}

void GridModel::ColSel(int col) {
    require_value(cols_.holds(col));
    col_end_ = col;
    notify(GridChange::current);
}

void GridModel::Text(std::string text) {
    if (current().text == text)
        return;
    current().text = std::move(text);
    notify(GridChange::cells);
}

void GridModel::CellPicture(const std::string& path) {
    auto found = std::find(pictures_.begin(), pictures_.end(), path);
    if (found == pictures_.end())
        found = pictures_.insert(pictures_.end(), path);
    change(current().picture, static_cast<std::uint16_t>(found - pictures_.begin()));
}

const GridCell& GridModel::cell(int row, int col) const {
    require_index(rows_.holds(row) && cols_.holds(col));
    return cells_[index(row, col)];
}

void GridModel::Clear() {
    std::fill(cells_.begin(), cells_.end(), GridCell());
    notify(GridChange::cells);
}

void GridModel::clear_contents(const CellRange& cells) {
    const auto& [rows, cols] = cells;
    if (cells.count() == 0)
        return;
    require_index(rows_.holds(rows.first) && rows_.holds(rows.last) && cols_.holds(cols.first) &&
                  cols_.holds(cols.last));
    for (int row = rows.first; row <= rows.last; ++row)
        for (int col = cols.first; col <= cols.last; ++col) {
            GridCell& cell = cells_[index(row, col)];
            cell.text.clear();
            cell.picture = 0;
        }
    notify(GridChange::cells);
    move_to(rows.last, cols.last);
}

int GridModel::RowHeight(int row) const {
    require_index(rows_.holds(row));
    return rows_.size(row);
}

int GridModel::ColWidth(int col) const {
    require_index(cols_.holds(col));
    return cols_.size(col);
}

void GridModel::RowHeight(int row, int twips) {
    require_index(rows_.holds(row));
    require_value(twips >= 0);
    rows_.set_size(row, twips);
    notify(GridChange::shape);
}

void GridModel::ColWidth(int col, int twips) {
    require_index(cols_.holds(col));
    require_value(twips >= 0);
    cols_.set_size(col, twips);
    notify(GridChange::shape);
}

int GridModel::RowPos(int row) const {
    require_index(rows_.holds(row));
    return rows_.position(row);
}

int GridModel::ColPos(int col) const {
    require_index(cols_.holds(col));
    return cols_.position(col);
}

void GridModel::TopRow(int row) {
    require_value(rows_.holds(row) && row >= FixedRows());
    rows_.set_first(row);
    notify(GridChange::shape);
}

void GridModel::LeftCol(int col) {
    require_value(cols_.holds(col) && col >= FixedCols());
    cols_.set_first(col);
    notify(GridChange::shape);
}

void GridModel::Redraw(bool on) {
    redraw_ = on;
    notify(GridChange::redraw);
}

void GridModel::add_observer(GridObserver& observer) { observers_.push_back(&observer); }

void GridModel::remove_observer(GridObserver& observer) { std::erase(observers_, &observer); }

void GridModel::notify(GridChange change) {
    for (GridObserver* observer : observers_)
        observer->grid_changed(change);
}

} // namespace table
