#pragma once

#include "core/engine/cell_text.h"
#include "core/engine/placing.h"
#include "core/engine/quick_refresh.h"
#include "core/engine/recurring.h"
#include "core/engine/refresh.h"
#include "core/engine/refresh_timer.h"

namespace engine {

// What the engine needs of its surroundings.
struct Surroundings {
    act::Session& session;
    const act::UserList& users;
    act::ListPopulator& lists;
    grid::CalendarGrid& grid;
    const settings::IniLib& settings;
    const values::Locale& locale;
    const host::Clock& clock;
    host::Timer& tmrRefresh;
    host::MessageBox& box;
    host::Window& window;
    const host::Guard& guarded;
    const bool& bLoading; // true until the window has first been shown
};

// The road from the activity list to the grid, put together.
class CalendarEngine {
public:
    explicit CalendarEngine(const Surroundings& here)
        : cell_text(here.session, here.lists, here.grid.layout, here.settings, here.locale, here.guarded),
          placing(here.session, here.users, cell_text, here.grid.layout, here.settings, here.locale, here.guarded),
          recurring(here.session, here.users, placing, here.grid.layout, here.locale, here.guarded),
          refresh(here.session, here.users, here.grid, placing, recurring, here.settings, here.locale, here.clock,
                  here.window, here.guarded, here.bLoading),
          quick_refresh(here.session, here.users, here.grid, placing, recurring, refresh, here.settings,
                        here.locale, here.clock, here.window, here.guarded),
          refresh_timer(quick_refresh, refresh, here.settings, here.tmrRefresh, here.box, here.guarded) {}
    CalendarEngine(const CalendarEngine&) = delete; // its parts point to each other
    CalendarEngine& operator=(const CalendarEngine&) = delete;

    CellText cell_text;
    Placing placing;
    Recurring recurring;
    Refresh refresh;
    QuickRefresh quick_refresh;
    RefreshTimer refresh_timer;
};

} // namespace engine
