#pragma once

#include "engine/calendar_engine.h"
#include "host/application_info.h"
#include "host/guard.h"
#include "host/message_box.h"

namespace shell {

// The commands of the main menu.
class MenuCommands {
public:
    MenuCommands(engine::CalendarEngine& engine, host::MessageBox& box, const host::ApplicationInfo& application,
                 const host::Guard& guarded)
        : engine_(engine), box_(box), application_(application), guarded_(guarded) {}

    void mnuRefresh_Click();     // what changed since the last refresh
    void mnuFullRefresh_Click(); // everything
    void mnuAbout_Click();       // tells title and version

private:
    engine::CalendarEngine& engine_;
    host::MessageBox& box_;
    const host::ApplicationInfo& application_;
    const host::Guard& guarded_;
};

} // namespace shell
