#include "core/shell/departure.h"

#include "core/values/failure.h"

namespace shell {

using values::ignoring_failure;

namespace {

constexpr int second = 1000; // milliseconds
constexpr int seconds_until_end = 2;

} // namespace

std::string Departure::close_act() {
    std::string database;
    ignoring_failure([&] { database = session_.ActApp->GetOpenDBName(); });
    ignoring_failure([&] { session_.ActApp->Command(act::CommandNumber::close_application); });
    return database;
}

void Departure::restart_act(const std::string& database) {
    here_.shell.open(database);
    EndTicks = 0;
    tmr2_.start(second, [this] { tmr2_Timer(); });
}

void Departure::tmr2_Timer() {
    here_.guarded("in frmMain: Sub tmr2_Timer - Line # ", [&](host::Step& step) {
        step = 10;
        ++EndTicks;
        step = 20;
        if (EndTicks == seconds_until_end)
            program_.end();
    });
}

} // namespace shell
