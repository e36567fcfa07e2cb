#pragma once

#include "core/engine/calendar_engine.h"
#include "core/shell/main_window.h"
#include "core/shell/start_gate.h"

#include <cstdint>

namespace shell {

// Brings everything up in its order. A stop ends the start and unloads the window; a failure shows its box and
// leaves the window open with what was done so far.
class StartUp {
public:
    StartUp(const host::Platform& here, settings::Settings& settings, StartGate& gate, MainWindow& window,
            engine::CalendarEngine& engine)
        : here_(here), settings_(settings), gate_(gate), window_(window), engine_(engine) {}

    std::uintptr_t ActHwnd = 0;    // the window that was in front when the program started
    std::int32_t CollColWidth = 0; // twips

    void Form_Load();
    // The window has become the active one. The first time it takes its stored state; loading is over then, also
    // when that state is none, since the end of the box that tells it makes the window active again.
    void Form_Activate();

private:
    void take_stored_state();
    void locate_settings_file();
    void read_view();
    void read_sizes();
    void read_days_off();
    void read_row_scheme();

    const host::Platform& here_;
    settings::Settings& settings_;
    StartGate& gate_;
    MainWindow& window_;
    engine::CalendarEngine& engine_;
};

} // namespace shell
