#include "ui/grid_widget/grid_widget.h"

#include "core/table/selected_cells.h"
#include "ui/grid_widget/accessible_grid.h"
#include "ui/grid_widget/cursor_keys.h"
#include "ui/picture/style.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

namespace ui {

namespace {

// The line at a position among the scrollable ones; the present one when there is none.
int scrolled_line(const picture::PixelLines& lines, int position, int present) {
    const auto& scrollable = lines.scrollable();
    return position >= 0 && position < static_cast<int>(scrollable.size())
               ? scrollable[static_cast<std::size_t>(position)]
               : present;
}

table::CellRange all_cells(const table::GridModel& model) {
    return {.rows = {0, model.Rows() - 1}, .cols = {0, model.Cols() - 1}};
}

} // namespace

GridWidget::GridWidget(table::GridModel& model, QWidget* parent)
    : QAbstractScrollArea(parent), model_(model), painter_(font()), mouse_(*this, model),
      told_cells_(all_cells(model)), told_current_(table::current_cell(model)),
      told_selection_(table::selected_cells(model)) {
    install_grid_accessibility();
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->setMouseTracking(true);
    model_.add_observer(*this);
    sync_scroll_bars();
}

GridWidget::~GridWidget() { model_.remove_observer(*this); }

void GridWidget::lock_updates() {
    is_locked_ = true;
    viewport()->setUpdatesEnabled(false);
}

void GridWidget::unlock_updates() {
    is_locked_ = false;
    viewport()->setUpdatesEnabled(model_.Redraw());
}

void GridWidget::grid_changed(table::GridChange change) {
    switch (change) {
    case table::GridChange::cells:
        cells_changed_ = true;
        break;
    case table::GridChange::shape:
        shape_changed_ = is_view_stale_ = true;
        break;
    case table::GridChange::current:
        break;
    case table::GridChange::redraw:
        viewport()->setUpdatesEnabled(!is_locked_ && model_.Redraw());
        break;
    }
    settle_soon();
}

void GridWidget::settle_soon() {
    if (settle_is_due_)
        return;
    settle_is_due_ = true;
    QMetaObject::invokeMethod(this, &GridWidget::settle, Qt::QueuedConnection);
}

void GridWidget::settle() {
    settle_is_due_ = false;
    if (shape_changed_)
        sync_scroll_bars();
    tell_what_is_new();
    cells_changed_ = shape_changed_ = focus_came_ = false;
    viewport()->update();
}

// A refresh moves the current cell about and back again, of which nobody needs to hear.
void GridWidget::tell_what_is_new() {
    const table::CellRange cells = all_cells(model_);
    const table::Place current = table::current_cell(model_);
    const table::CellRange selection = table::selected_cells(model_);
    const bool is_reshaped = cells != told_cells_;
    GridNews news{.cells = cells_changed_,
                  .size = is_reshaped,
                  .focus = current != told_current_ || is_reshaped || focus_came_};
    if (selection != told_selection_)
        news.selection_before = told_selection_;
    tell(news);
    told_cells_ = cells;
    told_current_ = current;
    told_selection_ = selection;
}

void GridWidget::tell(const GridNews& news) {
    if (QAccessible::isActive())
        tell_screen_readers(*this, news);
}

const picture::View& GridWidget::view() const {
    if (is_view_stale_)
        view_ = picture::View(model_, viewport()->size());
    is_view_stale_ = false;
    return view_;
}

void GridWidget::sync_scroll_bars() {
    const auto sync = [](QScrollBar* bar, const picture::PixelLines& lines) {
        bar->setRange(0, lines.last_scroll_position());
        bar->setPageStep(lines.lines_in_view());
        bar->setValue(lines.scroll_position());
    };
    sync(verticalScrollBar(), view().rows);
    sync(horizontalScrollBar(), view().cols);
}

// A scroll bar has got a new value: from the user, or because the model no longer reaches as far as it was
// scrolled.
void GridWidget::scrollContentsBy(int, int) {
    scroll_to({.row = scrolled_line(view().rows, verticalScrollBar()->value(), model_.TopRow()),
               .col = scrolled_line(view().cols, horizontalScrollBar()->value(), model_.LeftCol())});
}

void GridWidget::make_visible(int row, int col) {
    scroll_to({.row = view().rows.first_to_show(row), .col = view().cols.first_to_show(col)});
}

void GridWidget::scroll_to(table::Place first) {
    if (first.row != model_.TopRow())
        model_.TopRow(first.row);
    if (first.col != model_.LeftCol())
        model_.LeftCol(first.col);
}

QRect GridWidget::cell_rect(int row, int col) const {
    const table::Place cell{.row = row, .col = col};
    return view().shows(cell) ? view().rect_of(cell) : QRect();
}

GridWidget::TwipsPlace GridWidget::twips_from_pixels(QPoint place) const {
    return {.x = view().cols.twips_from_pixels(place.x(), model_.columns()),
            .y = view().rows.twips_from_pixels(place.y(), model_.rows())};
}

void GridWidget::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    painter_.paint(painter, viewport()->rect(), model_, view(),
                   hasFocus() ? picture::Marks::with_focus : picture::Marks::without_focus);
}

void GridWidget::resizeEvent(QResizeEvent*) {
    is_view_stale_ = true;
    sync_scroll_bars();
}

void GridWidget::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) {
        painter_.set_font(font());
        viewport()->update();
    }
    QAbstractScrollArea::changeEvent(event);
}

void GridWidget::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    focus_came_ = true; // the cell is told after the widget itself, so that it is what is spoken last
    settle_soon();
}

void GridWidget::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    mouse_.abandon();
    viewport()->update();
}

void GridWidget::keyPressEvent(QKeyEvent* event) {
    if (mouse_.is_dragging() && event->key() != Qt::Key_Escape)
        return; // what is drawn mustn't lose the ground it came from
    const bool extends = event->modifiers() & Qt::ShiftModifier;
    if (move_cursor(model_, event->key(), event->modifiers(), view().rows.lines_in_view())) {
        make_visible(extends ? model_.RowSel() : model_.Row(), extends ? model_.ColSel() : model_.Col());
        emit cursor_moved();
        return;
    }
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (show_current_cell())
            emit double_clicked();
        break;
    case Qt::Key_Escape:
        mouse_.abandon();
        break;
    case Qt::Key_F10:
        if (extends)
            request_menu();
        else
            event->ignore();
        break;
    default:
        event->ignore();
    }
}

// A press of the mouse opens its menu itself; the Menu key comes here.
void GridWidget::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard)
        request_menu();
    event->accept();
}

// A key means the current cell, so it has to be seen. False for one in a hidden row or column.
bool GridWidget::show_current_cell() {
    make_visible(model_.Row(), model_.Col());
    return !cell_rect(model_.Row(), model_.Col()).isEmpty();
}

void GridWidget::request_menu() {
    if (!show_current_cell())
        return;
    const TwipsPlace middle = twips_from_pixels(cell_rect(model_.Row(), model_.Col()).center());
    emit menu_requested(middle.x, middle.y);
}

} // namespace ui
