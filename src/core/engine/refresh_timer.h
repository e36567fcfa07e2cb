#pragma once

#include "core/engine/quick_refresh.h"
#include "core/host/clock.h"
#include "core/settings/settings.h"

#include <cstdint>

namespace engine {

// Refreshes by itself every so often, after a question if the user wants to be asked.
class RefreshTimer {
public:
    RefreshTimer(const host::Platform& here, const settings::Settings& settings, host::Timer& tmrRefresh,
                 QuickRefresh& quick_refresh, const Placing& placing)
        : here_(here), settings_(settings), tmrRefresh_(tmrRefresh), quick_refresh_(quick_refresh),
          placing_(placing) {}

    // The period in milliseconds. The settings dialog changes it while the timer runs, or doesn't.
    std::int32_t AutoRefresh = 0;

    // Reads the period from the settings and lets the timer run if it is above 0. Has no failure handler.
    void start();
    void tmrRefresh_Timer(); // once a minute

private:
    const host::Platform& here_;
    const settings::Settings& settings_;
    host::Timer& tmrRefresh_;
    QuickRefresh& quick_refresh_;
    const Placing& placing_;
    std::int32_t elapsed_ = 0; // milliseconds since the last refresh or question
};

} // namespace engine
