#pragma once

#include "core/act/session.h"
#include "core/act/user_list.h"
#include "core/engine/calendar_engine.h"
#include "core/grid/calendar_grid.h"
#include "core/grid/holiday_file.h"
#include "core/host/application_info.h"
#include "core/host/clock.h"
#include "core/host/folders.h"
#include "core/host/guard.h"
#include "core/host/message_box.h"
#include "core/settings/ini_lib.h"
#include "core/settings/per_user_store.h"
#include "core/shell/main_window.h"
#include "core/shell/program.h"

#include <cstdint>

namespace shell {

// Brings everything up in its order. A stop ends the start and unloads the window; a failure shows its box and
// leaves the window open with what was done so far.
class StartUp {
public:
    struct Needs {
        MainWindow& window;
        Program& program;
        host::MessageBox& box;
        const host::ApplicationInfo& application;
        const host::Clock& clock;
        const host::Folders& folders;
        const host::Guard& guarded;
        settings::IniLib& settings;
        const settings::PerUserStore& user_store;
        act::EventControl& ActEvent1;
        act::Session& session;
        act::UserList& users;
        grid::CalendarGrid& grid;
        engine::CalendarEngine& engine;
        grid::HolidayFile& holidays;
        bool& bLoading; // on from the load until the first activation
    };
    explicit StartUp(const Needs& needs) : need_(needs) {}

    std::uintptr_t ActHwnd = 0;    // the window that was in front when the program started
    std::int32_t CollColWidth = 0; // twips

    void Form_Load();
    // The window has become the active one. The first time it takes its stored state.
    void Form_Activate();

private:
    bool is_first_instance();
    bool is_database_open();
    void locate_settings_file();
    void read_view();
    void read_sizes();
    void read_days_off();
    void read_row_scheme();

    Needs need_;
};

} // namespace shell
