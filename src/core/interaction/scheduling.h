#pragma once

#include "core/engine/calendar_engine.h"
#include "core/interaction/launcher.h"

#include <string>

namespace interaction {

// The context menu's commands that schedule a call, a meeting or a to-do at the selected cell.
class Scheduling {
public:
    Scheduling(const host::Platform& here, engine::CalendarEngine& engine, Launcher& launcher)
        : here_(here), engine_(engine), launcher_(launcher) {}

    void mnupopCall_Click();
    void mnupopMeeting_Click();
    void mnupopTodo_Click();

private:
    void schedule(const std::string& type);

    const host::Platform& here_;
    engine::CalendarEngine& engine_;
    Launcher& launcher_;
};

} // namespace interaction
