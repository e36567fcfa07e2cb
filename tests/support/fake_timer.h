#pragma once

#include "core/host/clock.h"

#include <functional>
#include <utility>

namespace support {

// Ticks when a test says so, and only while it runs.
class FakeTimer : public host::Timer {
public:
    void start(int milliseconds, std::function<void()> tick) override {
        period = milliseconds;
        running = true;
        tick_ = std::move(tick);
    }
    void stop() override { running = false; }

    void fire() {
        if (!running)
            return;
        const std::function<void()> tick = tick_; // a copy, as the tick may start or stop the timer
        tick();
    }

    int period = 0;
    bool running = false;

private:
    std::function<void()> tick_;
};

} // namespace support
