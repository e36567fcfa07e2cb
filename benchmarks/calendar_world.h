#pragma once

#include "adapters/qt/qt_files.h"
#include "adapters/records/desk_database.h"
#include "core/engine/calendar_engine.h"
#include "support/fake_act_server.h"
#include "support/fake_timer.h"
#include "support/grid_world.h"

#include <memory>
#include <string>

namespace bench {

// The calendar over a database file, as far as a refresh goes: the real engine, grid, settings and data; no window
// and no running desk.
class CalendarWorld : private act::Server {
public:
    // Shows the week that holds the day.
    CalendarWorld(std::string database, const std::string& settings_file, values::DateTime day)
        : database_(std::move(database)) {
        settings.ini.SettingsFile = settings_file;
        act.session.Create_Database();
        act.users.Initialize_Users(act::ShownUsers::of_the_filter);
        act.users.map_users();
        calendar.layout.NumDays(7);
        calendar.layout.Initialize_Dates(day);
        calendar.Setup_Calendar(calendar.layout.StartDate(), calendar.layout.EndDate());
    }

    // A full refresh up to the filled slots: while every day is a day off, nothing is drawn.
    void fill() {
        calendar.layout.DaysOff("1234567");
        engine.refresh.Refresh_Data();
        calendar.layout.DaysOff("");
    }
    void draw() { calendar.rendering.Display_Changes(""); } // what was filled since it was last drawn

private:
    std::unique_ptr<act::Application> create_application() override { return desk_.create_application(); }
    std::unique_ptr<act::Database> create_database() override {
        return records::make_database([this] { return database_; });
    }
    std::unique_ptr<act::AuxCommands> create_aux_commands() override { return desk_.create_aux_commands(); }

    std::string database_;
    support::FakeActData desk_data_;
    support::FakeApplicationState desk_state_;
    support::FakeServer desk_{desk_data_, desk_state_};
    support::FakeMessageBox box_;
    host::ApplicationInfo application_{.title = "Orvanta", .major = 1, .support_address = ""};
    std::unique_ptr<host::Files> files_ = qt::make_files();
    support::FakeUserStore user_values_;
    support::FakeWindow window_;
    support::FakeShell shell_;
    support::FakeFolders folders_;
    support::FakeTimer timer_;

public:
    support::FakeClock clock;
    const host::Platform here{{.application = application_,
                               .locale = values::english_us(),
                               .clock = clock,
                               .box = box_,
                               .shell = shell_,
                               .files = *files_,
                               .folders = folders_,
                               .user_store = user_values_},
                              window_};
    settings::Settings settings{here};
    act::Connection act{here, settings, *this};
    grid::CalendarGrid calendar{here, settings, act.users};
    engine::CalendarEngine engine{here, settings, act, calendar, timer_};
    // Boxes that were shown: a run with one of them measured something else.
    std::size_t failures() const { return box_.shown.size(); }
};

} // namespace bench
