#pragma once

#include "core/shell/main_window.h"

#include <QPoint>
#include <QRect>

#include <functional>
#include <vector>

class QCheckBox;
class QMainWindow;
class QThread;
class QWidget;

namespace Ui {
class frmMain;
}

namespace ui {

// The main window as the shell knows it: twips in place of pixels, and the controls by what is done to them.
class WindowFace : public shell::MainWindow {
public:
    // `unload` raises Form_Unload.
    WindowFace(QMainWindow& window, Ui::frmMain& controls, std::function<void()> unload);

    int left() const override;
    int top() const override;
    int width() const override;
    int height() const override;
    void set_left(int twips) override;
    void set_top(int twips) override;
    void set_size(int width, int height) override;
    int screen_width() const override;
    int screen_height() const override;
    shell::WindowState window_state() const override;
    void set_window_state(shell::WindowState state) override;
    void unload() override { unload_(); }
    void hide() override;

    int present_width() const override;
    int present_height() const override;
    void set_grid_size(int width, int height) override;
    void set_lblYear_width(int width) override;

    bool chkView(int index) const override;
    void set_chkView(int index, bool checked) override;
    bool chkAMPM(int index) const override;
    void set_chkAMPM(int index, bool checked) override;
    void fill_cboGoTo(std::span<const std::string_view> entries) override;
    void set_cboGoTo_lines(int lines) override;
    std::string cboGoTo_text() const override;
    void select_cboGoTo(int index) override;
    void focus_grid() override;
    void repaint() override;
    std::uintptr_t foreground_window() const override;

    void lock_updates() override;
    void unlock_updates() override;
    void show_hourglass() override;
    void show_default_pointer() override;
    void bring_to_front() override;
    int event_loops() const override;

    // The control arrays chkView and chkAMPM.
    const std::vector<QCheckBox*> view_boxes, half_day_boxes;
    QWidget* msgSched = nullptr; // sized by set_grid_size once it is there

private:
    QRect normal_place() const;
    void move_to(QPoint corner);

    QMainWindow& window_;
    Ui::frmMain& controls_;
    const QThread& thread_; // the windows'
    std::function<void()> unload_;
    QPoint given_corner_; // of the frame, when the shell last moved it
};

} // namespace ui
