#include "ui/grid_widget/accessible_cell.h"

#include "core/table/selected_cells.h"

namespace ui {

QString spoken_text(const table::GridModel& model, int row, int col) {
    QString text = QString::fromStdString(model.TextMatrix(row, col));
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text.trimmed();
}

int titled_row(const table::GridModel& model, int row, int col) {
    for (int above = row; above >= model.FixedRows(); --above)
        if (!model.TextMatrix(above, col).empty())
            return above;
    return row;
}

bool AccessibleCell::isValid() const { return widget_ && row_ < model().Rows() && col_ < model().Cols(); }

QAccessibleInterface* AccessibleCell::parent() const {
    return widget_ ? QAccessible::queryAccessibleInterface(widget_) : nullptr;
}

QString AccessibleCell::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name && isValid() ? spoken_text(model(), row_, col_) : QString();
}

QRect AccessibleCell::rect() const {
    if (!isValid())
        return {};
    const QRect rect = widget_->cell_rect(row_, col_);
    return rect.isEmpty() ? QRect() : QRect(widget_->viewport()->mapToGlobal(rect.topLeft()), rect.size());
}

QAccessible::Role AccessibleCell::role() const {
    if (!isValid())
        return QAccessible::NoRole;
    if (row_ < model().FixedRows())
        return QAccessible::ColumnHeader;
    return col_ < model().FixedCols() ? QAccessible::RowHeader : QAccessible::Cell;
}

QAccessible::State AccessibleCell::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.readOnly = state.focusable = state.selectable = state.multiSelectable = true;
    state.selected = isSelected();
    state.focused = widget_->hasFocus() && row_ == model().Row() && col_ == model().Col();
    state.active = row_ == model().Row() && col_ == model().Col();
    state.invisible = model().RowHeight(row_) == 0 || model().ColWidth(col_) == 0;
    state.offscreen = !state.invisible && widget_->cell_rect(row_, col_).isEmpty();
    return state;
}

void* AccessibleCell::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::TableCellInterface ? static_cast<QAccessibleTableCellInterface*>(this) : nullptr;
}

bool AccessibleCell::isSelected() const {
    return isValid() && table::selected_cells(model()).holds({.row = row_, .col = col_});
}

QList<QAccessibleInterface*> AccessibleCell::columnHeaderCells() const {
    QList<QAccessibleInterface*> headers;
    for (int row = 0; isValid() && row < model().FixedRows() && row < row_; ++row)
        headers.append(cell_at(row, col_));
    return headers;
}

QList<QAccessibleInterface*> AccessibleCell::rowHeaderCells() const {
    QList<QAccessibleInterface*> headers;
    for (int col = 0; isValid() && row_ >= model().FixedRows() && col < model().FixedCols() && col < col_; ++col)
        headers.append(cell_at(titled_row(model(), row_, col), col));
    return headers;
}

QAccessibleInterface* AccessibleCell::cell_at(int row, int col) const {
    return parent()->tableInterface()->cellAt(row, col);
}

} // namespace ui
