#pragma once

#include "core/engine/calendar_engine.h"
#include "core/shell/dialogs.h"

#include <string>

namespace shell {

// The commands of the main menu, and those of the grid's menu that set sizes back.
class MenuCommands {
public:
    MenuCommands(const host::Platform& here, const settings::Settings& settings, Dialogs& dialogs,
                 engine::CalendarEngine& engine)
        : here_(here), settings_(settings), dialogs_(dialogs), engine_(engine), grid_(engine.grid) {}

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

    const host::Platform& here_;
    const settings::Settings& settings_;
    Dialogs& dialogs_;
    engine::CalendarEngine& engine_;
    grid::CalendarGrid& grid_;
};

} // namespace shell
