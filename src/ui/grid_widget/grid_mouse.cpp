#include "ui/grid_widget/grid_mouse.h"

#include "ui/grid_widget/grid_widget.h"
#include "ui/picture/picture_cache.h"

#include <QCursor>
#include <QFile>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>

namespace ui {

namespace {

// Milliseconds for a row or column while the grid scrolls by itself.
constexpr int selection_interval = 60, drag_interval = 150;
constexpr int drag_reach = 24; // pixels from an edge at which a drag scrolls

int button_number(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return 1;
    case Qt::RightButton:
        return 2;
    case Qt::MiddleButton:
        return 4;
    default:
        return 0;
    }
}

int shift_number(Qt::KeyboardModifiers modifiers) {
    return (modifiers & Qt::ShiftModifier ? 1 : 0) + (modifiers & Qt::ControlModifier ? 2 : 0) +
           (modifiers & Qt::AltModifier ? 4 : 0);
}

QCursor drop_cursor(bool permitted, qreal ratio) {
    QFile file(permitted ? ":/grid/drag_yes.svg" : ":/grid/drag_no.svg");
    if (!file.open(QIODevice::ReadOnly))
        return permitted ? Qt::DragMoveCursor : Qt::ForbiddenCursor;
    const QPoint tip = permitted ? QPoint(2, 2) : QPoint(16, 16);
    return QCursor(picture::drawn_pixmap(file.readAll(), ratio), tip.x(), tip.y());
}

// The shown line nearest to a place, titles left out; -1 if there is none.
int nearest_line(const picture::PixelLines& lines, int place) {
    const auto& shown = lines.shown();
    const auto body = std::lower_bound(shown.begin(), shown.end(), lines.fixed());
    const auto found = std::find_if(body, shown.end(), [&](int line) { return place < lines.end(line); });
    if (body == shown.end())
        return -1;
    return found == shown.end() ? shown.back() : *found;
}

} // namespace

GridMouse::GridMouse(GridWidget& widget, table::GridModel& model) : widget_(widget), model_(model), sizer_(model) {
    QObject::connect(&scroll_timer_, &QTimer::timeout, &widget, [this] { scroll_on(); });
}

void GridMouse::press(const QMouseEvent& event) {
    const QPoint place = pointer_ = event.position().toPoint();
    const int button = button_number(event.button());
    if (button == 0 || is_dragging_ || sizer_.is_sizing())
        return;
    if (button == 1) {
        if (sizer_.begin(place, widget_.view()))
            return;
        press_left(place, event.modifiers() & Qt::ShiftModifier);
    }
    const GridWidget::TwipsPlace twips = widget_.twips_from_pixels(place);
    emit widget_.mouse_pressed(button, shift_number(event.modifiers()), twips.x, twips.y);
}

void GridMouse::press_left(QPoint place, bool extends) {
    const auto [row, col] = widget_.cell_at(place);
    const bool on_cell = row >= model_.FixedRows() && col >= model_.FixedCols();
    is_selecting_ = on_cell;
    if (on_cell && extends) {
        model_.RowSel(row);
        model_.ColSel(col);
    } else if (on_cell) {
        model_.Row(row);
        model_.Col(col);
    } else {
        model_.Row(model_.Row());
    }
}

void GridMouse::move(const QMouseEvent& event) {
    const QPoint place = pointer_ = event.position().toPoint();
    const bool is_pressed = event.buttons() & Qt::LeftButton;
    if (sizer_.is_sizing() && is_pressed) {
        sizer_.move_to(place);
    } else if (is_dragging_) {
        if (!dragged_cell_.contains(place))
            dragged_cell_ = {};
        tell_drag_moved();
        scroll_if_at_edge();
    } else if (is_selecting_ && is_pressed) {
        extend_selection_to(place);
        scroll_if_at_edge();
    } else {
        update_pointer(place);
    }
}

void GridMouse::release(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton)
        return;
    const QPoint place = pointer_ = event.position().toPoint();
    is_selecting_ = false;
    scroll_timer_.stop();
    sizer_.end();
    const bool drops = is_dragging_;
    end_drag();
    if (drops && widget_.viewport()->rect().contains(place)) {
        const GridWidget::TwipsPlace twips = widget_.twips_from_pixels(place);
        emit widget_.dropped(twips.x, twips.y);
    }
}

void GridMouse::double_click(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) {
        press(event);
        return;
    }
    if (!LineSizer::cursor_at(event.position().toPoint(), widget_.view()))
        emit widget_.double_clicked();
}

void GridMouse::extend_selection_to(QPoint place) {
    const int row = nearest_line(widget_.view().rows, place.y());
    const int col = nearest_line(widget_.view().cols, place.x());
    if (row < 0 || col < 0)
        return;
    if (row != model_.RowSel())
        model_.RowSel(row);
    if (col != model_.ColSel())
        model_.ColSel(col);
}

// The view without the titles.
QRect GridMouse::cells_rect() const {
    return widget_.viewport()->rect().adjusted(widget_.view().cols.fixed_end(), widget_.view().rows.fixed_end(), 0,
                                               0);
}

// A selection scrolls when it is drawn beyond the view, a drag already near its edge. A drag that has not left its
// own cell doesn't scroll, or a click in the last row could move an activity.
GridMouse::Scrolling GridMouse::wanted_scrolling() const {
    const QRect cells = cells_rect();
    if (is_dragging_ && !dragged_cell_.isEmpty())
        return {};
    const auto direction = [this](int at, int begin, int end) {
        const int reach = is_dragging_ ? std::min(drag_reach, (end - begin) / 4) : 0;
        return at < begin + reach ? -1 : at > end - reach ? 1 : 0;
    };
    return {.rows = direction(pointer_.y(), cells.top(), cells.bottom()),
            .cols = direction(pointer_.x(), cells.left(), cells.right())};
}

void GridMouse::scroll_if_at_edge() {
    const Scrolling wanted = wanted_scrolling();
    if (wanted.rows == 0 && wanted.cols == 0)
        scroll_timer_.stop();
    else if (!scroll_timer_.isActive())
        scroll_timer_.start(is_dragging_ ? drag_interval : selection_interval);
}

void GridMouse::scroll_on() {
    const Scrolling wanted = wanted_scrolling();
    const auto scroll = [](QScrollBar* bar, int lines) { bar->setValue(bar->value() + lines); };
    scroll(widget_.horizontalScrollBar(), wanted.cols);
    scroll(widget_.verticalScrollBar(), wanted.rows);
    if (is_dragging_)
        tell_drag_moved();
    else
        extend_selection_to(pointer_);
}

void GridMouse::tell_drag_moved() {
    const GridWidget::TwipsPlace twips = widget_.twips_from_pixels(pointer_);
    emit widget_.drag_moved(twips.x, twips.y);
}

void GridMouse::update_pointer(QPoint place) {
    if (const auto shape = LineSizer::cursor_at(place, widget_.view()))
        widget_.viewport()->setCursor(*shape);
    else
        widget_.viewport()->unsetCursor();
}

void GridMouse::begin_drag() {
    is_dragging_ = true;
    is_selecting_ = false;
    dragged_cell_ = widget_.cell_rect(model_.Row(), model_.Col());
    bars_at_drag_ = {.vertical = widget_.verticalScrollBar()->value(),
                     .horizontal = widget_.horizontalScrollBar()->value()};
    show_drop_permitted(true);
}

void GridMouse::show_drop_permitted(bool permitted) {
    if (!is_dragging_ || shown_permission_ == permitted)
        return;
    shown_permission_ = permitted;
    widget_.viewport()->setCursor(drop_cursor(permitted, widget_.devicePixelRatioF()));
}

void GridMouse::end_drag() {
    is_dragging_ = false;
    shown_permission_.reset();
    update_pointer(pointer_);
}

void GridMouse::abandon() {
    if (sizer_.is_sizing())
        sizer_.abandon();
    if (is_dragging_) {
        end_drag();
        widget_.horizontalScrollBar()->setValue(bars_at_drag_.horizontal);
        widget_.verticalScrollBar()->setValue(bars_at_drag_.vertical);
    }
    is_selecting_ = false;
    scroll_timer_.stop();
}

} // namespace ui
