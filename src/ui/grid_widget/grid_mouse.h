#pragma once

#include "core/table/grid_model.h"
#include "ui/grid_widget/line_sizer.h"
#include "ui/picture/pixel_lines.h"

#include <QPoint>
#include <QRect>
#include <QTimer>

#include <optional>

class QMouseEvent;

namespace ui {

class GridWidget;

// What the mouse does on a grid widget: it moves the current cell and the selection, resizes lines, and drags the
// current cell. It scrolls the view at its edges, and raises the widget's signals.
class GridMouse {
public:
    GridMouse(GridWidget& widget, table::GridModel& model);

    void press(const QMouseEvent& event);
    void move(const QMouseEvent& event);
    void release(const QMouseEvent& event);
    void double_click(const QMouseEvent& event);

    // See GridWidget.
    void begin_drag();
    bool is_dragging() const { return is_dragging_; }
    void show_drop_permitted(bool permitted);
    // Gives up what the button is held for: a drag and a resizing leave no trace.
    void abandon();

private:
    void press_left(QPoint place, bool extends);
    void extend_selection_to(QPoint place);
    QRect cells_rect() const;
    struct Scrolling { // by lines, -1 back and 1 on
        int rows = 0;
        int cols = 0;
    };
    Scrolling wanted_scrolling() const;
    void scroll_if_at_edge();
    void scroll_on();
    void tell_drag_moved();
    void update_pointer(QPoint place);
    void end_drag();

    GridWidget& widget_;
    table::GridModel& model_;
    LineSizer sizer_;
    QTimer scroll_timer_; // while a selection is drawn beyond the view or something is dragged to its edge
    QPoint pointer_;      // where the pointer was last, in the viewport
    QRect dragged_cell_;  // where the cell lies that is dragged, until the pointer has left it
    std::optional<bool> shown_permission_; // what the pointer says while something is dragged
    struct BarValues {
        int vertical = 0;
        int horizontal = 0;
    };
    BarValues bars_at_drag_; // when the drag began
    bool is_selecting_ = false;
    bool is_dragging_ = false;
};

} // namespace ui
