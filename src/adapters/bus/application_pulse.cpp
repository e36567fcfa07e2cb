#include "adapters/bus/application_pulse.h"

#include <QDBusPendingCallWatcher>

#include <utility>

namespace bus {

namespace {

constexpr int beat_milliseconds = 1000;
constexpr int patience_milliseconds = 5000;

} // namespace

Pulse::Pulse(ApplicationProxy& desk, std::function<void()> falls_silent, std::function<void()> answers)
    : desk_(desk), falls_silent_(std::move(falls_silent)), answers_(std::move(answers)) {
    connect(&timer_, &QTimer::timeout, this, &Pulse::beat);
    timer_.start(beat_milliseconds);
    beat();
}

Pulse::~Pulse() { end_silence(); }

void Pulse::beat() {
    if (since_asked_.isValid()) {
        if (since_asked_.elapsed() >= patience_milliseconds && !std::exchange(is_silent_, true))
            falls_silent_();
        return;
    }
    since_asked_.start();
    auto* answer = new QDBusPendingCallWatcher(desk_.GetOpenDBName(), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        since_asked_.invalidate();
        end_silence();
    });
}

void Pulse::end_silence() {
    if (std::exchange(is_silent_, false))
        answers_();
}

} // namespace bus
