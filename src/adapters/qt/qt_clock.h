#pragma once

#include "core/host/clock.h"

#include <memory>

namespace qt {

std::unique_ptr<host::Clock> make_clock();

// A timer that waits while a box, a dialog or another loop inside a procedure is open, and ticks once after it.
std::unique_ptr<host::Timer> make_timer();

} // namespace qt
