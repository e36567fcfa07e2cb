#pragma once

#include "core/act/connection.h"
#include "core/grid/calendar_grid.h"
#include "support/fake_act_server.h"
#include "support/fake_clock.h"
#include "support/fake_folders.h"
#include "support/fake_message_box.h"
#include "support/fake_shell.h"
#include "support/fake_user_store.h"
#include "support/fake_window.h"
#include "support/memory_files.h"

#include <string>
#include <vector>

namespace support {

// The calendar's grid and the session below it, in a world of fakes. The clock stands at Wednesday, 10 January
// 2024, 9:00; the settings file is empty and the locale American.
class GridWorld {
public:
    explicit GridWorld(const values::Locale& locale = values::english_us())
        : here{{.application = application,
                .locale = locale,
                .clock = clock,
                .box = box,
                .shell = shell,
                .files = files,
                .folders = folders,
                .user_store = user_values},
               window} {
        ini.SettingsFile = "/program/Orvanta.ini";
    }

    // Users named so, the id of each being its name and blanks.
    void have_users(const std::vector<std::string>& names) {
        for (const std::string& name : names)
            act_data.users.push_back({.id = user_id(name), .name = name, .security = "", .access = ""});
    }
    static std::string user_id(const std::string& name) {
        return name + std::string(values::id_length - name.size(), '-');
    }
    // Writes a key of the settings file.
    void set(const std::string& section, const std::string& key, const std::string& value) {
        ini.WriteKeyValue(section, key, value);
    }

    // The session, its users and an empty grid of seven days or one from that date's view on.
    void open(values::DateTime date, int days = 7, bool one_row_per_user = true) {
        session.Create_Database();
        users.Initialize_Users(act::ShownUsers::of_the_filter);
        users.map_users();
        grid::Layout& layout = calendar.layout;
        layout.NumDays(days);
        layout.OneRowPerUser(one_row_per_user);
        layout.Initialize_Dates(date);
        calendar.Setup_Calendar(layout.StartDate(), layout.EndDate());
    }

    FakeMessageBox box;
    host::ApplicationInfo application{
        .title = "Orvanta", .major = 1, .minor = 0, .revision = 0, .support_address = "help@example.org"};
    MemoryFiles files;
    FakeUserStore user_values;
    FakeClock clock{values::DateTime::of(2024, 1, 10, 9, 0)};
    FakeWindow window;
    FakeShell shell;
    FakeFolders folders;
    const host::Platform here;
    const host::Guard& guarded = here.guarded;
    settings::Settings settings{here};
    settings::IniLib& ini = settings.ini;
    settings::PerUserStore& user_store = settings.user_store;
    FakeActData act_data;
    FakeApplicationState application_state;
    FakeServer server{act_data, application_state};
    act::Connection act{here, settings, server};
    act::Session& session = act.session;
    act::UserList& users = act.users;
    grid::CalendarGrid calendar{here, settings, users};
};

} // namespace support
