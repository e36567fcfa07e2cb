#pragma once

#include "core/act/session.h"
#include "core/act/user_list.h"
#include "core/engine/placing.h"
#include "core/engine/recurring.h"
#include "core/grid/calendar_grid.h"
#include "core/host/clock.h"
#include "core/host/guard.h"
#include "core/host/window.h"
#include "core/settings/ini_lib.h"
#include "core/values/locale.h"

namespace engine {

// The full refresh: everything in the grid anew from the activity list.
class Refresh {
public:
    // `bLoading` belongs to the program's start: true until the window has first been shown.
    Refresh(act::Session& session, const act::UserList& users, grid::CalendarGrid& grid, Placing& placing,
            Recurring& recurring, const settings::IniLib& settings, const values::Locale& locale,
            const host::Clock& clock, host::Window& window, const host::Guard& guarded, const bool& bLoading)
        : session_(session), users_(users), grid_(grid), placing_(placing), recurring_(recurring),
          settings_(settings), locale_(locale), clock_(clock), window_(window), guarded_(guarded),
          bLoading_(bLoading) {}

    DateTime LastRefresh;       // when the last refresh of any kind began
    bool CheckRecurring = true; // series are expanded

    // Empties slots, records and cells, walks the list, and draws what changed. The list keeps its filters, and
    // its date scope unless series were expanded. A failure ends it where it stands: the grid then stays locked
    // and the hourglass on.
    void Refresh_Data();
    // No text and no picture in the cells of the range, ends included.
    void Clear_Msg(int row_from, int row_to, int col_from, int col_to);

private:
    void clear_cells();
    void read_settings();
    void filter_list(act::Activity& activity, host::Step& step);
    void place_plain_activities(act::Activity& activity);

    act::Session& session_;
    const act::UserList& users_;
    grid::CalendarGrid& grid_;
    Placing& placing_;
    Recurring& recurring_;
    const settings::IniLib& settings_;
    const values::Locale& locale_;
    const host::Clock& clock_;
    host::Window& window_;
    const host::Guard& guarded_;
    const bool& bLoading_;
};

} // namespace engine
