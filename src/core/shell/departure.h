#pragma once

#include "core/act/application.h"
#include "core/act/session.h"
#include "core/host/platform.h"
#include "core/shell/program.h"

#include <string>

namespace shell {

// How the calendar parts from ACT! and the process ends, or how ACT! is started again with its database.
class Departure {
public:
    Departure(const host::Platform& here, act::Session& session, act::EventControl& ActEvent1, Program& program,
              host::Timer& tmr2)
        : here_(here), session_(session), ActEvent1_(ActEvent1), program_(program), tmr2_(tmr2) {}

    bool RestartAct = false; // the end restarts ACT!
    int EndTicks = 0;        // seconds since it was started again

    void stop_listening() { ActEvent1_.Disconnect(); }
    // Closes ACT! and gives the path of the database that was open, empty when it can't be told.
    std::string close_act();
    // Lets ACT!'s objects go, as far as there are any. Has no failure handler.
    void release_act() { session_.Release(); }
    // Hands the database to the desktop; the process ends two seconds later.
    void restart_act(const std::string& database);
    void end() { program_.end(); }
    void tmr2_Timer();

private:
    const host::Platform& here_;
    act::Session& session_;
    act::EventControl& ActEvent1_;
    Program& program_;
    host::Timer& tmr2_;
};

} // namespace shell
