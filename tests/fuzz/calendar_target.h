#pragma once

#include "core/shell/shell_world.h"
#include "fuzz/target.h"

#include <string>

namespace fuzz {

// Starts a calendar with these settings and holidays, and pages through it. What it can't read may end in boxes;
// it must come up all the same.
inline void start_calendar(const std::string& settings, const std::string& holidays) {
    class World : public support::ShellWorld {
    public:
        World(const std::string& settings_text, const std::string& holidays_text) {
            data.activities.clear();
            have_settings(settings_text);
            files.content["/program/holidays.dat"] = holidays_text;
        }
        void work() {
            start();
            calendar.navigation.cmdNext_Click();
            calendar.menu.mnuFullRefresh_Click();
            calendar.closing.Form_Unload();
            require(program.ends == 1);
        }
    };
    World(settings, holidays).work();
}

} // namespace fuzz
