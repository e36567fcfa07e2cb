#pragma once

#include "core/engine/quick_refresh.h"
#include "core/engine/refresh.h"
#include "core/host/clock.h"
#include "core/host/guard.h"
#include "core/host/message_box.h"
#include "core/settings/ini_lib.h"

#include <cstdint>

namespace engine {

// Refreshes by itself every so often, after a question if the user wants to be asked.
class RefreshTimer {
public:
    RefreshTimer(QuickRefresh& quick_refresh, const Refresh& refresh, const settings::IniLib& settings,
                 host::Timer& tmrRefresh, host::MessageBox& box, const host::Guard& guarded)
        : quick_refresh_(quick_refresh), refresh_(refresh), settings_(settings), tmrRefresh_(tmrRefresh),
          box_(box), guarded_(guarded) {}

    // The period in milliseconds. The settings dialog changes it while the timer runs, or doesn't.
    std::int32_t AutoRefresh = 0;

    // Reads the period from the settings and lets the timer run if it is above 0. Has no failure handler.
    void start();
    void tmrRefresh_Timer(); // once a minute

private:
    QuickRefresh& quick_refresh_;
    const Refresh& refresh_;
    const settings::IniLib& settings_;
    host::Timer& tmrRefresh_;
    host::MessageBox& box_;
    const host::Guard& guarded_;
    std::int32_t elapsed_ = 0; // milliseconds since the last refresh or question
};

} // namespace engine
