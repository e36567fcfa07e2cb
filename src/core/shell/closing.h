#pragma once

#include "core/grid/layout.h"
#include "core/settings/settings.h"
#include "core/shell/departure.h"
#include "core/shell/main_window.h"

namespace shell {

// The roads on which the program ends: its own Exit command, the closing of the database, the closing of ACT!, and
// the restart of ACT! with its database.
class Closing {
public:
    Closing(const host::Platform& here, settings::Settings& settings, MainWindow& window,
            const grid::Layout& layout, Departure& departure)
        : here_(here), settings_(settings), window_(window), layout_(layout), departure_(departure) {}

    // Stores what the next start takes up again, lets ACT! go and ends the program; with RestartAct, two seconds
    // after it has closed ACT! and handed the database to the desktop. Works in whatever state the start stopped.
    void Form_Unload();
    void ActEvent1_OnDatabaseClose();
    void ActEvent1_OnActUserWantsToClose();
    void mnuExit_Click();

private:
    void remove_old_row_heights();
    void store_row_heights();

    const host::Platform& here_;
    settings::Settings& settings_;
    MainWindow& window_;
    const grid::Layout& layout_;
    Departure& departure_;
};

} // namespace shell
