#pragma once

#include "core/act/session.h"
#include "core/act/user_list.h"
#include "core/engine/placing.h"
#include "core/engine/recurring.h"
#include "core/engine/refresh.h"
#include "core/grid/calendar_grid.h"
#include "core/host/guard.h"
#include "core/host/window.h"
#include "core/settings/ini_lib.h"
#include "core/values/locale.h"

#include <optional>
#include <string>
#include <string_view>

namespace engine {

// The cheaper ways to bring the grid up to date between two full refreshes.
class QuickRefresh {
public:
    QuickRefresh(act::Session& session, const act::UserList& users, grid::CalendarGrid& grid, Placing& placing,
                 Recurring& recurring, Refresh& refresh, const settings::IniLib& settings,
                 const values::Locale& locale, const host::Clock& clock, host::Window& window,
                 const host::Guard& guarded)
        : session_(session), users_(users), grid_(grid), placing_(placing), recurring_(recurring),
          refresh_(refresh), settings_(settings), locale_(locale), clock_(clock), window_(window),
          guarded_(guarded) {}

    // The quick refresh: what changed or vanished since then is read again. Callers pass LastRefresh.
    void Add_New(DateTime since);
    // The id of the activity last in the list of those edited after that moment, followed by the displayed ids
    // that the list no longer holds.
    std::string Find_New(DateTime since);
    // Reads one activity again, from a new list without filters and scope. The selected cell can be cleared
    // first.
    void Refresh_Activity(std::string id, bool clear_selected);
    // After a command that may have changed something: the selected activity is read again where the caller
    // knows of a change, and then a second one, which becomes the selected cell; else a quick refresh finds out.
    void Ask_Refresh(bool changed, const std::string& second_id, int row, int col);
    // The contacts with whom the current activity is scheduled, appended to a list of ids that may hold them.
    std::string AddOtherIDs(std::string ids);
    // Takes the first cell that shows the activity off the grid, and its id out of DisplayedIDs.
    void Erase_Slot(std::string_view id);

private:
    std::optional<std::string> missing_without_walk(act::Activity& activity) const;
    void clear_cell_of(const std::string& id, std::string& treated);
    bool passes_filters(const act::Activity& activity) const;
    void place_single(act::Activity& activity);
    void place_series(act::Activity& activity);
    std::string text(const act::Activity& activity, int field) const;

    act::Session& session_;
    const act::UserList& users_;
    grid::CalendarGrid& grid_;
    Placing& placing_;
    Recurring& recurring_;
    Refresh& refresh_;
    const settings::IniLib& settings_;
    const values::Locale& locale_;
    const host::Clock& clock_;
    host::Window& window_;
    const host::Guard& guarded_;
};

} // namespace engine
