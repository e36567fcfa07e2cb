#pragma once

#include "core/host/window.h"

#include <string>
#include <vector>

namespace support {

// Records what was asked of the window, in order, by the names of the operations.
class FakeWindow : public host::Window {
public:
    void lock_updates() override {
        calls.emplace_back("lock_updates");
        locked = true;
    }
    void unlock_updates() override {
        calls.emplace_back("unlock_updates");
        locked = false;
    }
    void show_hourglass() override {
        calls.emplace_back("show_hourglass");
        hourglass = true;
    }
    void show_default_pointer() override {
        calls.emplace_back("show_default_pointer");
        hourglass = false;
    }
    void bring_to_front() override { calls.emplace_back("bring_to_front"); }
    int event_loops() const override { return loops; }

    std::vector<std::string> calls;
    bool locked = false;
    bool hourglass = false;
    int loops = 0;
};

} // namespace support
