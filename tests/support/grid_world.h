#pragma once

#include "core/act/session.h"
#include "core/act/user_list.h"
#include "core/grid/calendar_grid.h"
#include "core/host/application_info.h"
#include "core/host/guard.h"
#include "core/settings/ini_lib.h"
#include "core/settings/per_user_store.h"
#include "core/values/locale.h"
#include "support/fake_act_server.h"
#include "support/fake_clock.h"
#include "support/fake_folders.h"
#include "support/fake_message_box.h"
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
    explicit GridWorld(const values::Locale& locale = values::english_us()) : surroundings_locale(locale) {
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
        layout.NumDays = days;
        layout.OneRowPerUser = one_row_per_user;
        layout.FixedCols = one_row_per_user ? 2 : 1;
        layout.Initialize_Dates(date);
        calendar.Setup_Calendar(layout.StartDate, layout.EndDate);
    }

    FakeMessageBox box;
    host::ApplicationInfo application{
        .title = "Orvanta", .major = 1, .minor = 0, .revision = 0, .support_address = "help@example.org"};
    host::Guard guarded{box, application};
    MemoryFiles files;
    settings::IniLib ini{files, guarded};
    FakeUserStore user_values;
    settings::PerUserStore user_store{user_values};
    FakeClock clock{values::DateTime::of(2024, 1, 10, 9, 0)};
    FakeWindow window;
    FakeFolders folders;
    FakeActData act_data;
    FakeApplicationState application_state;
    FakeServer server{act_data, application_state};
    act::Session session{server, guarded};
    act::ListPopulator lists{session, guarded};
    act::UserList users{session, lists, ini, guarded};
    const values::Locale& surroundings_locale;
    grid::CalendarGrid calendar{users, folders,
                                grid::Surroundings{ini, user_store, surroundings_locale, clock, window, guarded}};
};

} // namespace support
