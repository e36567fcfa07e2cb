#pragma once

#include "core/engine/calendar_engine.h"
#include "core/grid/calendar_grid.h"
#include "core/host/application_info.h"
#include "core/host/folders.h"
#include "core/host/guard.h"
#include "core/host/message_box.h"
#include "core/host/shell.h"
#include "core/settings/ini_lib.h"
#include "core/shell/dialogs.h"

#include <string>

namespace shell {

// The commands of the main menu, and those of the grid's menu that set sizes back.
class MenuCommands {
public:
    struct Needs {
        engine::CalendarEngine& engine;
        Dialogs& dialogs;
        grid::CalendarGrid& grid;
        const settings::IniLib& settings;
        host::MessageBox& box;
        const host::ApplicationInfo& application;
        const host::Folders& folders;
        host::Shell& shell;
        const host::Guard& guarded;
    };
    explicit MenuCommands(const Needs& needs) : need_(needs) {}

    void mnuRefresh_Click();     // what changed since the last refresh
    void mnuFullRefresh_Click(); // everything
    void mnuHolidays_Click();    // edits days off and holidays
    void mnuUsers_Click();       // opens the manual
    void mnuOnline_Click();      // opens the tutorial's page; no entry of the window calls it
    void mnuAbout_Click();       // tells title and version

    void mnuResetRowHeight_Click(); // of the current row
    // Takes the n-th day column for the n-th weekday, whatever the first day in view. In the daily view that runs
    // beyond the last column, which fails.
    void mnuResetColumnWidth_Click();

private:
    void open(const std::string& file_or_page);

    Needs need_;
};

} // namespace shell
