#pragma once

#include "core/engine/calendar_engine.h"
#include "core/interaction/instance_editor.h"
#include "core/interaction/launcher.h"
#include "core/interaction/mouse.h"

#include <string>

namespace interaction {

// The double click and the context menu's commands that open the dialogs of activities that there are. ACT!'s
// dialogs do the editing; what the user did there is found out afterwards.
class Editing {
public:
    Editing(const host::Platform& here, engine::CalendarEngine& engine, Mouse& mouse, Launcher& launcher,
            InstanceEditor& editor)
        : here_(here), engine_(engine), grid_(engine.grid), mouse_(mouse), launcher_(launcher), editor_(editor) {}

    // Edits the activity of the current cell, or the one that runs on into it; schedules one in an empty cell.
    // On a day's title it opens the day.
    void msgSched_DblClick();
    void mnupopReschedule_Click() { msgSched_DblClick(); }
    void mnuPopRecurring_Click(); // edits the series of the selected cell
    void mnupopDetails_Click();
    void mnupopSend_Click(); // the activity of the current cell

private:
    void edit_clicked(const grid::clsMsgSchedCell& clicked, std::string id, bool allDates);

    const host::Platform& here_;
    engine::CalendarEngine& engine_;
    grid::CalendarGrid& grid_;
    Mouse& mouse_;
    Launcher& launcher_;
    InstanceEditor& editor_;
};

} // namespace interaction
