#include "adapters/qt/qt_clock.h"

#include <QDateTime>
#include <QEventLoop>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

std::string iso(values::DateTime time) {
    return QDateTime(QDate(time.year(), time.month(), time.day()),
                     QTime(time.hour(), time.minute(), time.second()))
        .toString(Qt::ISODate)
        .toStdString();
}

TEST(Clock, TellsTheWallClockOfTheMachine) {
    const auto clock = qt::make_clock();
    const std::string before = QDateTime::currentDateTime().toString(Qt::ISODate).toStdString();
    const std::string told = iso(clock->now());
    const std::string after = QDateTime::currentDateTime().toString(Qt::ISODate).toStdString();
    EXPECT_LE(before, told);
    EXPECT_LE(told, after);
}

TEST(Timer, TicksUntilItIsStopped) {
    const auto timer = qt::make_timer();
    QEventLoop loop;
    int ticks = 0;
    timer->start(1, [&] {
        if (++ticks == 3) {
            timer->stop();
            QTimer::singleShot(30, &loop, &QEventLoop::quit);
        }
    });
    loop.exec();
    EXPECT_EQ(ticks, 3);
}

TEST(Timer, WaitsWhileALoopInsideAProcedureRuns) {
    const auto timer = qt::make_timer();
    QEventLoop outer;
    int ticks = 0, ticks_inside = -1;
    QTimer::singleShot(0, [&] {
        QEventLoop inner;
        timer->start(1, [&] {
            ++ticks;
            timer->stop();
            outer.quit();
        });
        QTimer::singleShot(60, &inner, &QEventLoop::quit);
        inner.exec();
        ticks_inside = ticks;
    });
    outer.exec();
    EXPECT_EQ(ticks_inside, 0);
    EXPECT_EQ(ticks, 1);
}

TEST(Timer, DoesntTickInsideItsOwnTick) {
    const auto timer = qt::make_timer();
    QEventLoop outer;
    int depth = 0, deepest = 0, ticks = 0;
    timer->start(1, [&] {
        deepest = std::max(deepest, ++depth);
        QEventLoop inner;
        QTimer::singleShot(20, &inner, &QEventLoop::quit);
        inner.exec();
        --depth;
        if (++ticks == 2) {
            timer->stop();
            outer.quit();
        }
    });
    outer.exec();
    EXPECT_EQ(deepest, 1);
    EXPECT_EQ(ticks, 2);
}

} // namespace
