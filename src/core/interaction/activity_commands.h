#pragma once

#include "core/engine/calendar_engine.h"
#include "core/grid/calendar_grid.h"
#include "core/host/clock.h"
#include "core/host/guard.h"
#include "core/interaction/activity_change.h"
#include "core/interaction/click.h"
#include "core/interaction/instance_editor.h"
#include "core/interaction/instances.h"
#include "core/interaction/launcher.h"
#include "core/interaction/presenter.h"
#include "core/settings/ini_lib.h"
#include "core/settings/per_user_store.h"

#include <string>

namespace interaction {

// The double click and the context menu's commands on activities. ACT!'s dialogs do the editing; what the user
// did there is found out afterwards.
class ActivityCommands {
public:
    struct Needs {
        act::Session& session;
        grid::CalendarGrid& grid;
        engine::CalendarEngine& engine;
        const settings::IniLib& settings;
        settings::PerUserStore& user_store;
        const host::Clock& clock;
        const values::Locale& locale;
        Click& click;
        Launcher& launcher;
        Instances& instances;
        InstanceEditor& editor;
        ActivityChange& frmActivityChange;
        Presenter& presenter;
        const host::Guard& guarded;
    };
    explicit ActivityCommands(const Needs& here) : here_(here) {}

    // Edits the activity of the current cell, or the one that runs on into it; schedules one in an empty cell.
    // On a day's title it opens the day.
    void msgSched_DblClick();
    void mnupopReschedule_Click() { msgSched_DblClick(); }

    // Schedule a call, a meeting, a to-do at the selected cell.
    void mnupopCall_Click();
    void mnupopMeeting_Click();
    void mnupopTodo_Click();

    void mnuPopRecurring_Click(); // edits the series of the selected cell
    void mnupopDetails_Click();
    void mnupopSend_Click(); // the activity of the current cell
    void mnupopClear_Click();

private:
    void edit_clicked(const grid::clsMsgSchedCell& clicked, std::string id, bool allDates);
    void schedule(const std::string& type);
    void clear_plain(const grid::clsMsgSchedCell& cell);
    void clear_occurrence(const grid::clsMsgSchedCell& cell, host::Step& step);
    // What becomes of a series after its instance was deleted; false when nothing has changed.
    bool settle_deletion(const std::string& series, values::DateTime day);
    std::string text(int field) const;

    Needs here_;
};

} // namespace interaction
