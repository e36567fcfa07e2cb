#pragma once

#include "core/shell/dialogs.h"
#include "core/shell/main_window.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace support {

// A main window of 18000 by 11400 twips on a screen of 28800 by 16200, which remembers what was asked of it.
class FakeMainWindow : public shell::MainWindow {
public:
    int left() const override { return place.left; }
    int top() const override { return place.top; }
    int width() const override { return place.width; }
    int height() const override { return place.height; }
    void set_left(int twips) override {
        place.left = twips;
        calls.emplace_back("set_left");
    }
    void set_top(int twips) override {
        place.top = twips;
        calls.emplace_back("set_top");
    }
    void set_size(int width, int height) override {
        calls.emplace_back("set_size");
        place.width = width;
        place.height = height;
    }
    int screen_width() const override { return 28800; }
    int screen_height() const override { return 16200; }
    shell::WindowState window_state() const override { return state; }
    void set_window_state(shell::WindowState to) override {
        state = to;
        calls.emplace_back("set_window_state");
    }
    void unload() override {
        ++unloads;
        if (unloads == 1 && Form_Unload)
            Form_Unload();
    }
    void hide() override { calls.emplace_back("hide"); }
    int present_width() const override { return place.width; }
    int present_height() const override { return place.height; }
    void set_grid_size(int width, int height) override { grid_width = width, grid_height = height; }
    void set_lblYear_width(int width) override { lblYear_width = width; }
    bool chkView(int index) const override { return view_boxes[index]; }
    void set_chkView(int index, bool checked) override {
        set_box(view_boxes[index], checked, index, chkView_Click);
    }
    bool chkAMPM(int index) const override { return half_day_boxes[index]; }
    void set_chkAMPM(int index, bool checked) override {
        set_box(half_day_boxes[index], checked, index, chkAMPM_Click);
    }
    void fill_cboGoTo(std::span<const std::string_view> entries) override {
        cboGoTo.assign(entries.begin(), entries.end());
    }
    void set_cboGoTo_lines(int lines) override { cboGoTo_lines = lines; }
    std::string cboGoTo_text() const override { return jump; }
    void select_cboGoTo(int index) override { jump = cboGoTo.at(static_cast<std::size_t>(index)); }
    void focus_grid() override { calls.emplace_back("focus_grid"); }
    void repaint() override { calls.emplace_back("repaint"); }
    std::uintptr_t foreground_window() const override { return 4711; }

    void lock_updates() override { calls.emplace_back("lock_updates"); }
    void unlock_updates() override { calls.emplace_back("unlock_updates"); }
    void show_hourglass() override { calls.emplace_back("show_hourglass"); }
    void show_default_pointer() override { calls.emplace_back("show_default_pointer"); }
    void bring_to_front() override { calls.emplace_back("bring_to_front"); }
    int event_loops() const override { return loops; }

    struct Place {
        int left = 0, top = 0, width = 18000, height = 11400;
    } place;
    shell::WindowState state = shell::WindowState::normal;
    int grid_width = 0, grid_height = 0, lblYear_width = 0;
    bool view_boxes[2] = {false, true};
    bool half_day_boxes[2] = {false, false};
    std::vector<std::string> cboGoTo;
    std::string jump; // the entry that cboGoTo shows
    int cboGoTo_lines = 0;
    int unloads = 0;
    int loops = 0;
    std::vector<std::string> calls;
    std::function<void()> Form_Unload;
    std::function<void(int)> chkView_Click, chkAMPM_Click;

private:
    static void set_box(bool& box, bool checked, int index, const std::function<void(int)>& Click) {
        if (box == checked)
            return;
        box = checked;
        Click(index);
    }
};

// Closes each dialog at once and remembers which were opened. The mini calendar is cancelled unless there is a
// date to pick.
class FakeDialogs : public shell::Dialogs {
public:
    void show_frmHolidays() override { shown.emplace_back("frmHolidays"); }
    void show_frmMiniCalendar(forms::JumpDates& dates) override {
        opened_on.push_back(dates.datCurrentNow);
        dates.bDateNowCancel = !pick;
        if (pick)
            dates.datNow = *pick;
    }

    std::vector<std::string> shown;
    std::vector<values::DateTime> opened_on; // by the mini calendar
    std::optional<values::DateTime> pick;
};

} // namespace support
