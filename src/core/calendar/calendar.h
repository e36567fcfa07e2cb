#pragma once

#include "core/act/objects.h"
#include "core/act/populate_lists.h"
#include "core/act/session.h"
#include "core/act/user_list.h"
#include "core/engine/calendar_engine.h"
#include "core/grid/calendar_grid.h"
#include "core/grid/holiday_file.h"
#include "core/host/application_info.h"
#include "core/host/clock.h"
#include "core/host/files.h"
#include "core/host/folders.h"
#include "core/host/guard.h"
#include "core/host/message_box.h"
#include "core/host/shell.h"
#include "core/host/user_store.h"
#include "core/settings/ini_lib.h"
#include "core/settings/per_user_store.h"
#include "core/shell/closing.h"
#include "core/shell/dialogs.h"
#include "core/shell/main_window.h"
#include "core/shell/menu_commands.h"
#include "core/shell/navigation.h"
#include "core/shell/program.h"
#include "core/shell/sizing.h"
#include "core/shell/start_up.h"
#include "core/values/locale.h"

namespace calendar {

// What the calendar stands on: the machine, the desktop and the contact manager. All of it outlives the calendar.
struct Platform {
    const host::ApplicationInfo& application;
    const values::Locale& locale;
    host::MessageBox& box;
    const host::Clock& clock;
    host::Timer& tmrRefresh;
    host::Timer& tmr2;
    host::Shell& shell;
    host::UserStore& user_store;
    host::Files& files;
    const host::Folders& folders;
    shell::Program& program;
    act::Server& server;
    act::EventControl& ActEvent1;
};

// The calendar put together over its main window. It only composes: the window raises its events on the parts.
class Calendar {
public:
    Calendar(shell::MainWindow& window, shell::Dialogs& dialogs, const Platform& platform);
    ~Calendar();
    Calendar(const Calendar&) = delete; // its parts point to each other
    Calendar& operator=(const Calendar&) = delete;

    const host::Guard& guarded() const { return guarded_; }

private:
    act::EventControl& ActEvent1_;
    bool bLoading_ = false; // on from the load until the first activation
    host::Guard guarded_;

public:
    settings::IniLib ini;
    settings::PerUserStore user_store;
    grid::HolidayFile holidays;
    act::Session session;
    act::ListPopulator lists;
    act::UserList users;
    grid::CalendarGrid grid;
    engine::CalendarEngine engine;
    shell::StartUp start_up;
    shell::Sizing sizing;
    shell::Navigation navigation;
    shell::Closing closing;
    shell::MenuCommands menu;
};

} // namespace calendar
