#pragma once

#include "core/values/date_time.h"

#include <functional>

namespace host {

// The machine's wall clock.
class Clock {
public:
    virtual ~Clock() = default;
    virtual values::DateTime now() const = 0;
    values::DateTime today() const { return now().date(); }
};

// Calls back every so often from the program's own event loop, never inside another call.
class Timer {
public:
    virtual ~Timer() = default;
    virtual void start(int milliseconds, std::function<void()> tick) = 0;
    virtual void stop() = 0;
};

} // namespace host
