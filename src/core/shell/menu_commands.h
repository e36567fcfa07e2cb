#pragma once

#include "engine/calendar_engine.h"
#include "host/application_info.h"
#include "host/guard.h"
#include "host/message_box.h"
#include "shell/dialogs.h"

namespace shell {

// The commands of the main menu.
class MenuCommands {
public:
    MenuCommands(engine::CalendarEngine& engine, Dialogs& dialogs, host::MessageBox& box,
                 const host::ApplicationInfo& application, const host::Guard& guarded)
        : engine_(engine), dialogs_(dialogs), box_(box), application_(application), guarded_(guarded) {}

    void mnuRefresh_Click();     // what changed since the last refresh
    void mnuFullRefresh_Click(); // everything
    void mnuHolidays_Click();    // edits days off and holidays
    void mnuAbout_Click();       // tells title and version

private:
    engine::CalendarEngine& engine_;
    Dialogs& dialogs_;
    host::MessageBox& box_;
    const host::ApplicationInfo& application_;
    const host::Guard& guarded_;
};

} // namespace shell
