#include "core/engine/refresh_timer.h"

#include "core/settings/catalogue.h"
#include "core/values/numbers.h"

namespace engine {

namespace {

constexpr std::int32_t minute = 60'000;

} // namespace

void RefreshTimer::start() {
    AutoRefresh = values::to_int32(values::to_double(read(settings_.ini, settings::keys::auto_refresh)) * minute);
    if (AutoRefresh <= 0)
        return;
    elapsed_ = minute;
    tmrRefresh_.start(minute, [this] { tmrRefresh_Timer(); });
}

void RefreshTimer::tmrRefresh_Timer() {
    here_.guarded("in frmMain: Sub tmrRefresh_Timer - Line # ", [&](host::Step& step) {
        step = 10;
        if (elapsed_ < AutoRefresh) {
            elapsed_ += minute;
            return;
        }
        step = 20;
        const std::string prompt = read(settings_.ini, settings::keys::auto_refresh_prompt);
        step = 30;
        if (values::leading_number(prompt) != 1 ||
            here_.box.show({.text = "Do you want to refresh your calendar?",
                            .title = "Auto-refresh",
                            .icon = host::Icon::question,
                            .buttons = host::Buttons::yes_no}) == host::Answer::yes) {
            step = 40;
            quick_refresh_.Add_New(placing_.LastRefresh);
        }
        step = 50;
        elapsed_ = minute;
    });
}

} // namespace engine
