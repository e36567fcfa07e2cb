#pragma once

#include "core/engine/calendar_engine.h"
#include "core/forms/jump_dates.h"
#include "core/shell/dialogs.h"
#include "core/shell/main_window.h"

#include <string>

namespace shell {

// The controls above the grid: they change the days in view, or the part of them that is visible, and make the
// grid whole again.
class Navigation {
public:
    Navigation(const host::Platform& here, MainWindow& window, Dialogs& dialogs, engine::CalendarEngine& engine)
        : here_(here), window_(window), dialogs_(dialogs), engine_(engine), grid_(engine.grid) {}

    forms::JumpDates dates;

    // A day in the daily view, a week in the weekly one.
    void cmdPrevious_Click();
    void cmdNext_Click();
    // Goes where the entry shown says. Columns and rows keep their sizes.
    void cboGoTo_Click();
    void cboGoTo_KeyPress(int key); // 13, Enter, does the same
    // Raised by the user and by set_chkView: 0 "Daily", 1 "Weekly". A box that goes off changes nothing.
    void chkView_Click(int index);
    // 0 shows the day's first rows, 1 the afternoon's.
    void chkAMPM_Click(int index);

    // Moves the days in view. A step of a single day goes on over days off.
    void Move_Start(int days);
    // Turns from the weekly view to the day of a column, or back to its week.
    void Switch_View(int column);

    std::string GetDate(int column) const; // the column's date
    std::string GetTime(int row) const;    // the start of the row's slot
    // The path with a "b" before the name of a file that lies in the program's folder.
    std::string GetButtonPicture(const std::string& path) const;

private:
    static constexpr int daily = 0, weekly = 1;      // chkView
    static constexpr int morning = 0, afternoon = 1; // chkAMPM

    void step_by(int days);
    void remember_last_jump(values::DateTime today);
    void show_day();
    void show_week();
    void begin_view(int other_box);
    void rebuild();

    const host::Platform& here_;
    MainWindow& window_;
    Dialogs& dialogs_;
    engine::CalendarEngine& engine_;
    grid::CalendarGrid& grid_;
};

} // namespace shell
