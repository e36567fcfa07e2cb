#pragma once

#include "core/engine/calendar_engine.h"
#include "core/interaction/activity_change.h"
#include "core/interaction/instances.h"

#include <cstdint>
#include <optional>
#include <string>

namespace interaction {

// Takes an activity to another day, time or user: asks what has to be asked, then has it written.
class Rescheduling {
public:
    Rescheduling(const host::Platform& here, engine::CalendarEngine& engine, Instances& instances,
                 ActivityChange& frmActivityChange)
        : here_(here), engine_(engine), grid_(engine.grid), instances_(instances),
          frmActivityChange_(frmActivityChange) {}

    // Writes the source's activity to where the target stands. What writes ends in a full refresh; an answer of No
    // or Cancel changes nothing.
    void Reschedule(const grid::clsMsgSchedCell& source, const grid::clsMsgSchedCell& target);
    bool changes_user(const grid::clsMsgSchedCell& source, const grid::clsMsgSchedCell& target) const;

private:
    // Selects the cell that now shows the activity in the target's slot; the target where none does.
    void select_where_shown(const std::string& id, const grid::clsMsgSchedCell& target);
    // The id of the new user, empty when the user stays; absent when the answer was No.
    std::optional<std::string> ask_for_user(const grid::clsMsgSchedCell& source,
                                            const grid::clsMsgSchedCell& target);
    bool may_leave_series();
    void move_series(const grid::clsMsgSchedCell& target, std::int32_t length, const std::string& user);
    void move_plain(const grid::clsMsgSchedCell& source, const grid::clsMsgSchedCell& target,
                    std::int32_t duration, const std::string& user);
    act::Activity& activity() { return *engine_.act.session.ActActivity; }

    const host::Platform& here_;
    engine::CalendarEngine& engine_;
    grid::CalendarGrid& grid_;
    Instances& instances_;
    ActivityChange& frmActivityChange_;
};

} // namespace interaction
