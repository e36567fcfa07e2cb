#pragma once

#include "core/interaction/interaction.h"
#include "core/shell/closing.h"
#include "core/shell/menu_commands.h"
#include "core/shell/navigation.h"
#include "core/shell/sizing.h"
#include "core/shell/start_up.h"

namespace calendar {

// What the calendar stands on: the machine, its own process and timers, and the contact manager. All of it
// outlives the calendar.
struct Outside {
    host::Machine machine;
    shell::Program& program;
    act::Server& server;
    act::EventControl& ActEvent1;
    host::Timer& tmrRefresh;
    host::Timer& tmr2;
};

// The main window as the calendar sees it.
struct Face {
    shell::MainWindow& window;
    shell::Dialogs& dialogs;
    interaction::Presenter& presenter;
    interaction::ActivityChange& frmActivityChange;
};

// The calendar put together behind its main window. It only composes: the window raises its events on the parts.
class Calendar {
public:
    Calendar(const Outside& outside, const Face& face);
    ~Calendar();
    Calendar(const Calendar&) = delete; // its parts point to each other
    Calendar& operator=(const Calendar&) = delete;

    const host::Platform& here() const { return here_; }

private:
    host::Platform here_;
    act::EventControl& ActEvent1_;
    shell::StartGate gate_;

public:
    settings::Settings settings;
    act::Connection act;
    grid::CalendarGrid grid;
    engine::CalendarEngine engine;
    shell::StartUp start_up;
    shell::Sizing sizing;
    shell::Navigation navigation;
    shell::Departure departure;
    shell::Closing closing;
    shell::MenuCommands menu;
    interaction::Interaction interaction;
};

} // namespace calendar
