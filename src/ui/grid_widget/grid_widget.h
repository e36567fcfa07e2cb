#pragma once

#include "core/table/grid_model.h"
#include "ui/grid_widget/grid_mouse.h"
#include "ui/picture/grid_painter.h"
#include "ui/picture/view.h"

#include <QAbstractScrollArea>

#include <optional>

namespace ui {

struct GridNews;

// Shows a grid model and brings the user's mouse and keys to it. However much of the model changes, it is painted
// once an event-loop turn. The model outlives the widget.
//
// Places that signals carry are twips on the screen, as the model's RowPos and ColPos count them. Buttons are
// 1 left, 2 right, 4 middle; shift is the sum of 1 Shift, 2 Ctrl, 4 Alt.
class GridWidget : public QAbstractScrollArea, private table::GridObserver {
    Q_OBJECT
public:
    explicit GridWidget(table::GridModel& model, QWidget* parent = nullptr);
    ~GridWidget() override;

    const table::GridModel& model() const { return model_; }

    // Nothing is painted from lock to unlock. Locks aren't counted.
    void lock_updates();
    void unlock_updates();

    // Scrolls no further than needed for the cell to show whole.
    void make_visible(int row, int col);
    // How the model shows in the viewport.
    const picture::View& view() const;
    // A place of the viewport in twips on the screen.
    struct TwipsPlace {
        int x, y;
    };
    TwipsPlace twips_from_pixels(QPoint place) const;
    // Where a cell lies in the viewport, in pixels; empty for a hidden or rolled away one.
    QRect cell_rect(int row, int col) const;
    // The cell at a place in the viewport; its row or column is -1 where there is none.
    table::Place cell_at(QPoint place) const { return view().cell_at(place); }

    // The user draws the current cell from the press on until the button is let go. At an edge of the view the
    // grid scrolls. Escape, or somebody else's getting the focus, gives the drag up and scrolls back.
    void begin_drag() { mouse_.begin_drag(); }
    bool is_dragging() const { return mouse_.is_dragging(); }
    // What the pointer says while the user drags.
    void show_drop_permitted(bool permitted) { mouse_.show_drop_permitted(permitted); }

signals:
    // A press. A left one has by then made a day cell under it the current cell, or with Shift the far end of the
    // selection; on titles it has only dropped the selection. Other buttons have changed nothing.
    void mouse_pressed(int button, int shift, int x, int y);
    // The left button twice, or Enter on the current cell.
    void double_clicked();
    // The Menu key, or Shift with F10; the place is the middle of the current cell.
    void menu_requested(int x, int y);
    // A key has moved the current cell or the far end of the selection.
    void cursor_moved();
    void drag_moved(int x, int y);
    void dropped(int x, int y);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent* event) override { mouse_.press(*event); }
    void mouseMoveEvent(QMouseEvent* event) override { mouse_.move(*event); }
    void mouseReleaseEvent(QMouseEvent* event) override { mouse_.release(*event); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { mouse_.double_click(*event); }
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    // Hands what is new to screen readers, where one listens.
    virtual void tell(const GridNews& news);

private:
    void grid_changed(table::GridChange change) override;
    // Brings scroll bars, screen and screen readers up to date with the model, in the event loop's next turn.
    void settle_soon();
    void settle();
    void tell_what_is_new();
    void sync_scroll_bars();
    void scroll_to(table::Place first); // the first row and column after the titles
    bool show_current_cell();
    void request_menu();

    table::GridModel& model_;
    picture::GridPainter painter_;
    GridMouse mouse_;
    mutable picture::View view_;
    mutable bool is_view_stale_ = true;
    // What screen readers know of.
    table::CellRange told_cells_; // all of the grid
    table::Place told_current_;
    table::CellRange told_selection_;
    bool is_locked_ = false;
    bool settle_is_due_ = false;
    bool cells_changed_ = false, shape_changed_ = false, focus_came_ = false; // since the last settle
};

} // namespace ui
