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
        ini.SettingsFile = settings_file;
        session.Create_Database();
        users.Initialize_Users(act::ShownUsers::of_the_filter);
        users.map_users();
        calendar.layout.NumDays = 7;
        calendar.layout.Initialize_Dates(day);
        calendar.Setup_Calendar(calendar.layout.StartDate, calendar.layout.EndDate);
    }

    // A full refresh up to the filled slots: while every day is a day off, nothing is drawn.
    void fill() {
        calendar.layout.DaysOff = "1234567";
        engine.refresh.Refresh_Data();
        calendar.layout.DaysOff.clear();
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
    host::Guard guarded_{box_, application_};
    std::unique_ptr<host::Files> files_ = qt::make_files();
    support::FakeUserStore user_values_;
    settings::PerUserStore user_store_{user_values_};
    support::FakeWindow window_;
    support::FakeFolders folders_;
    support::FakeTimer timer_;
    const values::Locale& locale_ = values::english_us();
    const bool is_loading_ = false;

public:
    support::FakeClock clock;
    settings::IniLib ini{*files_, guarded_};
    act::Session session{*this, guarded_};
    act::ListPopulator lists{session, guarded_};
    act::UserList users{session, lists, ini, guarded_};
    grid::CalendarGrid calendar{users, folders_,
                                grid::Surroundings{ini, user_store_, locale_, clock, window_, guarded_}};
    engine::CalendarEngine engine{engine::Surroundings{session, users, lists, calendar, ini, locale_, clock,
                                                       timer_, box_, window_, guarded_, is_loading_}};
    // Boxes that were shown: a run with one of them measured something else.
    std::size_t failures() const { return box_.shown.size(); }
};

} // namespace bench
