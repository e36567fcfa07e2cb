#include "ui/grid_widget/cursor_keys.h"

#include <limits>

namespace ui {

namespace {

constexpr int all_lines = std::numeric_limits<int>::max();

// The line so many visible ones further, or the last one on the way; the present one when there is none.
int stepped(const table::Axis& axis, int from, int steps) {
    const int direction = steps < 0 ? -1 : 1;
    const int missing_before = axis.fixed() - 1;
    int reached = from;
    int line = from < axis.fixed() ? missing_before : from;
    for (int left = steps < 0 ? -steps : steps; left > 0; --left) {
        do
            line += direction;
        while (line >= axis.fixed() && line < axis.count() && axis.size(line) == 0);
        if (line < axis.fixed() || line >= axis.count())
            break;
        reached = line;
    }
    return reached;
}

int first_line(const table::Axis& axis, int otherwise) {
    const int line = stepped(axis, axis.fixed() - 1, 1);
    return line < axis.fixed() ? otherwise : line;
}

} // namespace

bool move_cursor(table::GridModel& model, int key, Qt::KeyboardModifiers modifiers, int rows_in_page) {
    const bool extends = modifiers & Qt::ShiftModifier;
    const bool over_all = modifiers & Qt::ControlModifier;
    int row = extends ? model.RowSel() : model.Row();
    int col = extends ? model.ColSel() : model.Col();
    switch (key) {
    case Qt::Key_Up:
        row = stepped(model.rows(), row, -1);
        break;
    case Qt::Key_Down:
        row = stepped(model.rows(), row, 1);
        break;
    case Qt::Key_Left:
        col = stepped(model.columns(), col, -1);
        break;
    case Qt::Key_Right:
        col = stepped(model.columns(), col, 1);
        break;
    case Qt::Key_PageUp:
        row = stepped(model.rows(), row, -rows_in_page);
        break;
    case Qt::Key_PageDown:
        row = stepped(model.rows(), row, rows_in_page);
        break;
    case Qt::Key_Home:
        col = first_line(model.columns(), col);
        if (over_all)
            row = first_line(model.rows(), row);
        break;
    case Qt::Key_End:
        col = stepped(model.columns(), col, all_lines);
        if (over_all)
            row = stepped(model.rows(), row, all_lines);
        break;
    default:
        return false;
    }
    if (extends) {
        model.RowSel(row);
        model.ColSel(col);
    } else {
        model.Row(row);
        model.Col(col);
    }
    return true;
}

} // namespace ui
