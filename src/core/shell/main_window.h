#pragma once

#include "core/host/window.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace shell {

enum class WindowState { normal = 0, minimised = 1, maximised = 2 };

// The main window and the controls on it, as far as the shell's procedures touch them. Sizes and places are
// twips. Before anything is set the window has the size of its design.
class MainWindow : public host::Window {
public:
    // The window's place and size; of a minimised or maximised one, what it goes back to.
    virtual int left() const = 0;
    virtual int top() const = 0;
    virtual int width() const = 0;
    virtual int height() const = 0;
    virtual void set_left(int twips) = 0;
    virtual void set_top(int twips) = 0;
    virtual void set_size(int width, int height) = 0;
    virtual int screen_width() const = 0;
    virtual int screen_height() const = 0;
    virtual WindowState window_state() const = 0;
    virtual void set_window_state(WindowState state) = 0;

    // Raises Form_Unload, once however often it is asked for, also inside Form_Unload itself.
    virtual void unload() = 0;
    virtual void hide() = 0;

    // The size of the window as it is now, which Form_Resize goes by, and what it sizes.
    virtual int present_width() const = 0;
    virtual int present_height() const = 0;
    virtual void set_grid_size(int width, int height) = 0; // less than nothing counts as nothing
    virtual void set_lblYear_width(int width) = 0;

    // chkView: 0 "Daily", 1 "Weekly"; chkAMPM: 0 morning, 1 afternoon. Setting a box to another value raises its
    // click, as the user's does.
    virtual bool chkView(int index) const = 0;
    virtual void set_chkView(int index, bool checked) = 0;
    virtual bool chkAMPM(int index) const = 0;
    virtual void set_chkAMPM(int index, bool checked) = 0;
    virtual void fill_cboGoTo(std::span<const std::string_view> entries) = 0; // the first one is selected
    // Lets the list of cboGoTo open to so many lines without a scroll bar.
    virtual void set_cboGoTo_lines(int lines) = 0;
    virtual std::string cboGoTo_text() const = 0;
    virtual void select_cboGoTo(int index) = 0; // raises nothing

    virtual void focus_grid() = 0;
    virtual void repaint() = 0; // at once

    // The platform's number of the window in front, 0 where it doesn't tell.
    virtual std::uintptr_t foreground_window() const = 0;
};

} // namespace shell
