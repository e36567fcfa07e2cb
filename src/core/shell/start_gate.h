#pragma once

#include "core/act/application.h"
#include "core/host/platform.h"
#include "core/shell/program.h"

namespace shell {

// Whether the program may start: once for each user and display, and beside an open database. What stands against
// it is shown in a box.
class StartGate {
public:
    StartGate(const host::Platform& here, Program& program, act::EventControl& ActEvent1)
        : here_(here), program_(program), ActEvent1_(ActEvent1) {}

    bool lets_in() { return is_first_instance() && is_database_open(); }

private:
    bool is_first_instance();
    bool is_database_open();

    const host::Platform& here_;
    Program& program_;
    act::EventControl& ActEvent1_;
};

} // namespace shell
