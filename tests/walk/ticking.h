#pragma once

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include <functional>
#include <utility>

namespace walk {

// Calls a step again and again from the event loop, also from the loops that a step opens: whoever waits in a box
// goes on from there. No step comes inside another one of the same loop.
class Ticking {
public:
    Ticking(int milliseconds, std::function<void()> step) : milliseconds_(milliseconds), step_(std::move(step)) {
        go_on();
    }

    static int loops() { return QThread::currentThread()->loopLevel(); }

private:
    void go_on() {
        QTimer::singleShot(milliseconds_, &context_, [this] { tick(); });
    }
    void tick() {
        go_on();
        if (loops() <= busy_loop_)
            return;
        const int outer = std::exchange(busy_loop_, loops());
        step_();
        busy_loop_ = outer;
    }

    const int milliseconds_;
    const std::function<void()> step_;
    int busy_loop_ = 0; // in which a step is under way
    QObject context_;
};

} // namespace walk
