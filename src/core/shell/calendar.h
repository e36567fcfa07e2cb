#pragma once

#include "act/objects.h"
#include "act/populate_lists.h"
#include "act/session.h"
#include "act/user_list.h"
#include "engine/calendar_engine.h"
#include "grid/calendar_grid.h"
#include "host/application_info.h"
#include "host/clock.h"
#include "host/files.h"
#include "host/folders.h"
#include "host/guard.h"
#include "host/message_box.h"
#include "host/shell.h"
#include "host/user_store.h"
#include "settings/ini_lib.h"
#include "settings/per_user_store.h"
#include "shell/closing.h"
#include "shell/dialogs.h"
#include "shell/holidays.h"
#include "shell/main_window.h"
#include "shell/menu_commands.h"
#include "shell/navigation.h"
#include "shell/program.h"
#include "shell/sizing.h"
#include "shell/start_up.h"
#include "values/locale.h"

namespace shell {

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
    Program& program;
    act::Server& server;
    act::EventControl& ActEvent1;
};

// The calendar put together over its main window. It only composes: the window raises its events on the parts.
class Calendar {
public:
    Calendar(MainWindow& window, Dialogs& dialogs, const Platform& platform);
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
    HolidayFile holidays;
    act::Session session;
    act::ListPopulator lists;
    act::UserList users;
    grid::CalendarGrid grid;
    engine::CalendarEngine engine;
    StartUp start_up;
    Sizing sizing;
    Navigation navigation;
    Closing closing;
    MenuCommands menu;
};

} // namespace shell
