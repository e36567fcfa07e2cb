#include "ui/main_window/window_face.h"

#include "core/shell/sizing.h"
#include "ui/picture/style.h"
#include "ui_frmMain.h"

#include <QGuiApplication>
#include <QScreen>
#include <QThread>
#include <QWindow>

#include <algorithm>

namespace ui {

namespace {

constexpr int margin_below_labels = 4; // pixels
constexpr int thickest_border = 8;

} // namespace

WindowFace::WindowFace(QMainWindow& window, Ui::frmMain& controls, std::function<void()> unload)
    : view_boxes{controls.chkView_0, controls.chkView_1}, half_day_boxes{controls.chkAMPM_0, controls.chkAMPM_1},
      window_(window), controls_(controls), thread_(*QThread::currentThread()), unload_(std::move(unload)) {
    // The bar is as wide as the grid, and its controls have to stand beside each other.
    window.setMinimumWidth(controls.picBar->minimumSizeHint().width() +
                           picture::pixels_from_twips(shell::Sizing::beside_grid));
}

// The frame's corner and the size inside the frame, as move and resize take them.
QRect WindowFace::normal_place() const {
    if (!(window_.windowState() & (Qt::WindowMinimized | Qt::WindowMaximized)))
        return {window_.pos(), window_.size()};
    const QPoint frame = window_.geometry().topLeft() - window_.frameGeometry().topLeft();
    const QRect normal = window_.normalGeometry();
    // The frame can be thinner now than the one that the window goes back to, and the difference would add up from
    // start to start.
    const QPoint corner = normal.topLeft() - frame;
    const bool is_unmoved = (corner - given_corner_).manhattanLength() <= thickest_border;
    return {is_unmoved ? given_corner_ : corner, normal.size()};
}

int WindowFace::left() const { return picture::twips_from_pixels(normal_place().x()); }
int WindowFace::top() const { return picture::twips_from_pixels(normal_place().y()); }
int WindowFace::width() const { return picture::twips_from_pixels(normal_place().width()); }
int WindowFace::height() const { return picture::twips_from_pixels(normal_place().height()); }
void WindowFace::set_left(int twips) { move_to({picture::pixels_from_twips(twips), window_.y()}); }
void WindowFace::set_top(int twips) { move_to({window_.x(), picture::pixels_from_twips(twips)}); }
void WindowFace::move_to(QPoint corner) {
    given_corner_ = corner;
    window_.move(corner);
}
void WindowFace::set_size(int width, int height) {
    window_.resize(picture::pixels_from_twips(width), picture::pixels_from_twips(height));
}
int WindowFace::screen_width() const { return picture::twips_from_pixels(window_.screen()->size().width()); }
int WindowFace::screen_height() const { return picture::twips_from_pixels(window_.screen()->size().height()); }

shell::WindowState WindowFace::window_state() const {
    if (window_.isMinimized())
        return shell::WindowState::minimised;
    return window_.isMaximized() ? shell::WindowState::maximised : shell::WindowState::normal;
}

void WindowFace::set_window_state(shell::WindowState state) {
    switch (state) {
    case shell::WindowState::normal:
        window_.setWindowState(Qt::WindowNoState);
        break;
    case shell::WindowState::minimised:
        window_.setWindowState(Qt::WindowMinimized);
        break;
    case shell::WindowState::maximised:
        window_.setWindowState(Qt::WindowMaximized);
        break;
    }
}

void WindowFace::hide() { window_.hide(); }

int WindowFace::present_width() const { return picture::twips_from_pixels(window_.width()); }
int WindowFace::present_height() const { return picture::twips_from_pixels(window_.height()); }

// The bar stands above the year and the grid below it, all as wide as the grid and in the middle of the window.
void WindowFace::set_grid_size(int width, int height) {
    const QSize size(std::max(picture::pixels_from_twips(width), 0),
                     std::max(picture::pixels_from_twips(height), 0));
    const int left = (controls_.picForm->width() - size.width()) / 2;
    controls_.picBar->setGeometry(left, controls_.picBar->y(), size.width(), controls_.picBar->height());
    controls_.lblYear->move(left, controls_.lblYear->y());
    if (msgSched)
        msgSched->setGeometry({{left, controls_.lblYear->geometry().bottom() + 1 + margin_below_labels}, size});
}

void WindowFace::set_lblYear_width(int width) {
    controls_.lblYear->resize(std::max(picture::pixels_from_twips(width), 0), controls_.lblYear->height());
}

bool WindowFace::chkView(int index) const { return view_boxes[static_cast<std::size_t>(index)]->isChecked(); }
void WindowFace::set_chkView(int index, bool checked) {
    view_boxes[static_cast<std::size_t>(index)]->setChecked(checked);
}
bool WindowFace::chkAMPM(int index) const { return half_day_boxes[static_cast<std::size_t>(index)]->isChecked(); }
void WindowFace::set_chkAMPM(int index, bool checked) {
    half_day_boxes[static_cast<std::size_t>(index)]->setChecked(checked);
}

void WindowFace::fill_cboGoTo(std::span<const std::string_view> entries) {
    controls_.cboGoTo->clear();
    for (const std::string_view entry : entries)
        controls_.cboGoTo->addItem(QString::fromUtf8(entry.data(), static_cast<qsizetype>(entry.size())));
}

void WindowFace::set_cboGoTo_lines(int lines) { controls_.cboGoTo->setMaxVisibleItems(lines); }
std::string WindowFace::cboGoTo_text() const { return controls_.cboGoTo->currentText().toStdString(); }
void WindowFace::select_cboGoTo(int index) { controls_.cboGoTo->setCurrentIndex(index); }

void WindowFace::focus_grid() {
    if (msgSched)
        msgSched->setFocus();
}
void WindowFace::repaint() { window_.repaint(); }

// Windows of other programs aren't told.
std::uintptr_t WindowFace::foreground_window() const {
    const QWindow* window = QGuiApplication::focusWindow();
    return window ? window->winId() : 0;
}

void WindowFace::lock_updates() { window_.setUpdatesEnabled(false); }
void WindowFace::unlock_updates() { window_.setUpdatesEnabled(true); }
void WindowFace::show_hourglass() { window_.setCursor(Qt::WaitCursor); }
void WindowFace::show_default_pointer() { window_.unsetCursor(); }

void WindowFace::bring_to_front() {
    if (!window_.isVisible())
        return;
    window_.raise();
    window_.activateWindow();
}

int WindowFace::event_loops() const { return thread_.loopLevel(); }

} // namespace ui
