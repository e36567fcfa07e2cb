#pragma once

#include "core/host/clock.h"

namespace support {

// Stands still until a test moves it.
class FakeClock : public host::Clock {
public:
    explicit FakeClock(values::DateTime start = values::DateTime::of(2024, 1, 5, 9, 0)) : time(start) {}
    values::DateTime now() const override { return time; }

    values::DateTime time;
};

} // namespace support
