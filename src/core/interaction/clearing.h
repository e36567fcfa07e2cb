#pragma once

#include "core/engine/calendar_engine.h"
#include "core/interaction/activity_change.h"
#include "core/interaction/instances.h"
#include "core/interaction/launcher.h"

#include <string>

namespace interaction {

// The context menu's command that clears the activity of the selected cell, or one occurrence of its series.
class Clearing {
public:
    Clearing(const host::Platform& here, engine::CalendarEngine& engine, Launcher& launcher, Instances& instances,
             ActivityChange& frmActivityChange)
        : here_(here), engine_(engine), grid_(engine.grid), launcher_(launcher), instances_(instances),
          frmActivityChange_(frmActivityChange) {}

    void mnupopClear_Click();

private:
    void clear_plain(const grid::clsMsgSchedCell& cell);
    // False when nothing has changed.
    bool clear_occurrence(const grid::clsMsgSchedCell& cell);
    // What becomes of a series after its instance was deleted; false when nothing has changed.
    bool settle_deletion(const std::string& series, values::DateTime day);
    act::Activity& activity() { return *engine_.act.session.ActActivity; }

    const host::Platform& here_;
    engine::CalendarEngine& engine_;
    const grid::CalendarGrid& grid_;
    Launcher& launcher_;
    Instances& instances_;
    ActivityChange& frmActivityChange_;
};

} // namespace interaction
