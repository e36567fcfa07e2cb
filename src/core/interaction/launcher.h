#pragma once

#include "core/act/connection.h"
#include "core/grid/calendar_grid.h"

#include <string>

namespace interaction {

// The way into the dialogs of ACT!: it leaves values for the companion that fills a new activity's dialog, and
// selects an activity in the contact view before a command.
class Launcher {
public:
    Launcher(const host::Platform& here, settings::Settings& settings, act::Connection& act,
             const grid::Layout& layout)
        : here_(here), settings_(settings), act_(act), layout_(layout) {}

    // Leaves where and when the cell stands, and starts the companion. The type is "C", "M" or "T".
    void Setup_ActivityWin(const grid::clsMsgSchedCell& cell, const std::string& type);
    // The same with the type that the settings give new activities.
    void Setup_ActivityWin(const grid::clsMsgSchedCell& cell);
    // Leaves the word that the next dialog is opened for the settings of a series, and takes it away again once
    // that dialog has closed or was refused: it isn't meant for any other.
    void announce_recurring_edit();
    void withdraw_recurring_edit();

    // How an activity is looked for in the list of its contact's activities, and what else happens.
    struct Launch {
        bool allDates = false;       // else among those of the days in view
        bool showCleared = false;    // among the cleared ones too
        bool startCompanion = false; // before the command
    };
    // Runs a command on the activity, selected in the list of its contact's activities, and puts the user's own
    // filter and tab back. An activity that the list doesn't show under the filter opens no dialog.
    void Select_and_Launch_Command(const std::string& id, act::CommandNumber command, const Launch& launch);
    // Runs a command by itself.
    void Command(act::CommandNumber command) { act_.session.ActApp->Command(command); }

private:
    void start_companion();
    void show_contact(const std::string& contact);
    // Shows the list of activities under that mask for the command alone.
    void run_in_list(act::CommandNumber command, int mask, const Launch& launch);
    std::string dates_shown() const;
    void run_selected(act::ActivityList& list, act::CommandNumber command, const Launch& launch);
    act::Activity& activity() { return *act_.session.ActActivity; }
    std::string text(int field);

    const host::Platform& here_;
    settings::Settings& settings_;
    act::Connection& act_;
    const grid::Layout& layout_;
};

} // namespace interaction
