#include "adapters/qt/qt_clock.h"

#include <QDateTime>
#include <QThread>
#include <QTimer>

#include <utility>

namespace qt {

namespace {

class QtClock : public host::Clock {
public:
    values::DateTime now() const override {
        const QDateTime now = QDateTime::currentDateTime();
        const QDate date = now.date();
        const QTime time = now.time();
        return values::DateTime::of(date.year(), date.month(), date.day(), time.hour(), time.minute(),
                                    time.second());
    }
};

constexpr int retry_milliseconds = 50;

class QtTimer : public host::Timer {
public:
    QtTimer() {
        late_.setSingleShot(true);
        QObject::connect(&regular_, &QTimer::timeout, [this] { tick_or_wait(); });
        QObject::connect(&late_, &QTimer::timeout, [this] { tick_or_wait(); });
    }
    void start(int milliseconds, std::function<void()> tick) override {
        tick_ = std::move(tick);
        late_.stop();
        regular_.start(milliseconds);
    }
    void stop() override {
        regular_.stop();
        late_.stop();
    }

private:
    void tick_or_wait() {
        if (running_ || QThread::currentThread()->loopLevel() > 1) {
            late_.start(retry_milliseconds);
            return;
        }
        late_.stop();
        running_ = true;
        const std::function<void()> tick = tick_; // the call may start the timer again
        tick();
        running_ = false;
    }

    QTimer regular_;
    QTimer late_;
    std::function<void()> tick_;
    bool running_ = false;
};

} // namespace

std::unique_ptr<host::Clock> make_clock() { return std::make_unique<QtClock>(); }

std::unique_ptr<host::Timer> make_timer() { return std::make_unique<QtTimer>(); }

} // namespace qt
