#pragma once

#include "core/act/session.h"
#include "core/act/user_list.h"
#include "core/engine/refresh.h"
#include "core/grid/calendar_grid.h"
#include "core/host/application_info.h"
#include "core/host/guard.h"
#include "core/host/message_box.h"
#include "core/interaction/activity_change.h"
#include "core/interaction/instances.h"
#include "core/interaction/places.h"
#include "core/interaction/presenter.h"
#include "core/values/locale.h"

#include <cstdint>
#include <optional>
#include <string>

namespace interaction {

// An activity that the user drags to another cell: another day, time or user.
class DragDrop {
public:
    struct Needs {
        act::Session& session;
        const act::UserList& users;
        grid::CalendarGrid& grid;
        engine::Refresh& refresh;
        Instances& instances;
        ActivityChange& frmActivityChange;
        Presenter& presenter;
        host::MessageBox& box;
        const host::ApplicationInfo& application;
        const values::Locale& locale;
        const host::Guard& guarded;
    };
    explicit DragDrop(const Needs& here) : here_(here), places_(here.grid.msgSched) {}

    // Shows whether a drop is permitted at the place, in twips on the screen.
    void msgSched_DragOver(int X, int Y);
    // The cell under the place takes the activity of DragSourceCell.
    void msgSched_DragDrop(int X, int Y);
    // Asks what has to be asked and writes the source's activity to where the target stands. What writes ends in
    // a full refresh; an answer of No or Cancel changes nothing.
    void Reschedule(grid::clsMsgSchedCell& source, grid::clsMsgSchedCell& target);

private:
    bool changes_user(const grid::clsMsgSchedCell& source, const grid::clsMsgSchedCell& target) const;
    void make_current(const grid::clsMsgSchedCell& cell);
    // Selects the cell that now shows the activity in the target's slot; the target where none does.
    void select_where_shown(const std::string& id, const grid::clsMsgSchedCell& target);
    // The id of the new user, empty when the user stays; absent when the answer was No.
    std::optional<std::string> ask_for_user(const grid::clsMsgSchedCell& source,
                                            const grid::clsMsgSchedCell& target);
    bool may_leave_series();
    void move_series(const grid::clsMsgSchedCell& target, std::int32_t length, const std::string& user);
    void move_plain(const grid::clsMsgSchedCell& source, const grid::clsMsgSchedCell& target,
                    std::int32_t duration, const std::string& user);
    void write_and_update(values::DateTime start, std::int32_t minutes, const std::string& user);
    act::Activity& activity() const { return *here_.session.ActActivity; }

    Needs here_;
    Places places_;
};

} // namespace interaction
