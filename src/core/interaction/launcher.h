#pragma once

#include "core/act/session.h"
#include "core/grid/calendar_grid.h"
#include "core/host/guard.h"
#include "core/host/shell.h"
#include "core/host/window.h"
#include "core/settings/ini_lib.h"
#include "core/settings/per_user_store.h"
#include "core/values/locale.h"

#include <string>

namespace interaction {

// The way into the dialogs of ACT!: it leaves values for the companion that fills a new activity's dialog, and
// selects an activity in the contact view before a command.
class Launcher {
public:
    struct Needs {
        act::Session& session;
        const grid::Layout& layout;
        const settings::IniLib& settings;
        settings::PerUserStore& user_store;
        host::Shell& shell;
        host::Window& window;
        const values::Locale& locale;
        const host::Guard& guarded;
    };
    explicit Launcher(const Needs& here) : here_(here) {}

    // Leaves where and when the cell stands, and starts the companion. The type is "C", "M" or "T".
    void Setup_ActivityWin(const grid::clsMsgSchedCell& cell, const std::string& type);
    // Runs a command on the activity, selected in the list of its contact's activities, and puts the user's own
    // filter and tab back. An activity that the list doesn't show under the filter opens no dialog.
    void Select_and_Launch_Command(const std::string& id, act::CommandNumber command, bool allDates,
                                   bool showCleared, bool startCompanion);
    // Runs a command by itself.
    void Command(act::CommandNumber command) { here_.session.ActApp->Command(command); }

private:
    void start_companion();
    void show_contact(const std::string& contact);
    // Shows the list of activities under that mask for the command alone.
    void run_in_list(act::CommandNumber command, bool allDates, int mask, bool startCompanion, host::Step& step);
    std::string dates_shown() const;
    void run_selected(act::ActivityList& list, act::CommandNumber command, bool startCompanion);
    std::string text(int field) const;

    Needs here_;
};

} // namespace interaction
