#pragma once

#include "core/act/session.h"
#include "core/grid/layout.h"
#include "core/host/clock.h"
#include "core/host/guard.h"
#include "core/host/shell.h"
#include "core/settings/per_user_store.h"
#include "core/shell/main_window.h"
#include "core/shell/program.h"

#include <string>

namespace shell {

// The roads on which the program ends: its own Exit command, the closing of the database, the closing of ACT!, and
// the restart of ACT! with its database.
class Closing {
public:
    Closing(MainWindow& window, Program& program, act::Session& session, act::EventControl& ActEvent1,
            const grid::Layout& layout, settings::PerUserStore& user_store, host::Shell& shell, host::Timer& tmr2,
            const host::Guard& guarded)
        : window_(window), program_(program), session_(session), ActEvent1_(ActEvent1), layout_(layout),
          user_store_(user_store), shell_(shell), tmr2_(tmr2), guarded_(guarded) {}

    bool RestartAct = false; // the end restarts ACT!
    int EndTicks = 0;        // seconds since it was started again

    // Stores what the next start takes up again, lets ACT! go and ends the program; with RestartAct, two seconds
    // after it has closed ACT! and handed the database to the desktop. Works in whatever state the start stopped.
    void Form_Unload();
    void tmr2_Timer();

    void ActEvent1_OnDatabaseClose();
    void ActEvent1_OnActUserWantsToClose();

    void mnuExit_Click();

private:
    void remove_old_row_heights();
    void store_row_heights();
    std::string close_act();
    void restart_act(const std::string& database);

    MainWindow& window_;
    Program& program_;
    act::Session& session_;
    act::EventControl& ActEvent1_;
    const grid::Layout& layout_;
    settings::PerUserStore& user_store_;
    host::Shell& shell_;
    host::Timer& tmr2_;
    const host::Guard& guarded_;
};

} // namespace shell
