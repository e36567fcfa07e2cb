#include "core/shell/closing.h"

#include "core/settings/catalogue.h"
#include "core/shell/geometry.h"
#include "core/values/failure.h"

namespace shell {

namespace keys = settings::keys;
using values::ignoring_failure;

namespace {

constexpr int last_old_row = 150;
constexpr int second = 1000; // milliseconds
constexpr int seconds_until_end = 2;

} // namespace

void Closing::Form_Unload() {
    bool ends_later = false;
    guarded_("in frmMain: Sub Form_Unload - Line # ", [&](host::Step& step) {
        step = 10;
        remove_old_row_heights();
        step = 20;
        store_row_heights();
        step = 30;
        store_geometry(window_, user_store_);
        step = 40;
        settings::write(user_store_, keys::weekly_view, layout_.NumDays == 7 ? "1" : "0");
        step = 50;
        const std::string database = RestartAct ? close_act() : std::string();
        step = 60;
        if (session_.ActDatabase) // a start that stopped early has nothing to let go
            session_.Release();
        step = 70;
        if (!RestartAct)
            return;
        step = 80;
        restart_act(database);
        ends_later = true;
    });
    if (!ends_later)
        program_.end();
}

void Closing::remove_old_row_heights() {
    for (int row = 0; row <= last_old_row; ++row)
        ignoring_failure([&] { settings::remove(user_store_, keys::old_row_height(row)); });
}

void Closing::store_row_heights() {
    const std::string_view mode = layout_.NumDays == 1 ? settings::daily : settings::weekly;
    const table::GridModel& grid = layout_.msgSched();
    for (int row = 0; row < grid.Rows(); ++row)
        settings::write(user_store_, keys::row_height(mode, row), std::to_string(grid.RowHeight(row)));
}

// Gives the path of the database that was open.
std::string Closing::close_act() {
    std::string database;
    ignoring_failure([&] { database = session_.ActApp->GetOpenDBName(); });
    ignoring_failure([&] { session_.ActApp->Command(act::CommandNumber::close_application); });
    return database;
}

void Closing::restart_act(const std::string& database) {
    shell_.open(database);
    window_.hide();
    EndTicks = 0;
    tmr2_.start(second, [this] { tmr2_Timer(); });
}

void Closing::tmr2_Timer() {
    guarded_("in frmMain: Sub tmr2_Timer - Line # ", [&](host::Step& step) {
        step = 10;
        ++EndTicks;
        step = 20;
        if (EndTicks == seconds_until_end)
            program_.end();
    });
}

void Closing::ActEvent1_OnDatabaseClose() {
    guarded_("in frmMain: Sub ActEvent1_OnDatabaseClose - Line # ", [&](host::Step& step) {
        step = 10;
        ActEvent1_.Disconnect();
        step = 20;
        window_.unload();
    });
}

void Closing::ActEvent1_OnActUserWantsToClose() {
    guarded_("in frmMain: Sub ActEvent1_OnActUserWantsToClose - Line # ", [&](host::Step& step) {
        step = 10;
        ActEvent1_.Disconnect();
        step = 20;
        if (!RestartAct)
            window_.unload();
    });
}

void Closing::mnuExit_Click() {
    guarded_("in frmMain: Sub mnuExit_Click - Line # ", [&](host::Step& step) {
        step = 10;
        window_.unload();
    });
}

} // namespace shell
