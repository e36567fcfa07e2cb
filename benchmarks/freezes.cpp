// How long the calendar's window hears nothing while it does what the user asked for, over a large database: the
// longest single event, and the longest part of one without the hourglass.
#include "benchmarks/bulk_database.h"
#include "support/half_real_server.h"
#include "support/platform_world.h"
#include "support/temporary_database.h"
#include "ui/main_window/frm_main.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>

namespace {

using Moment = std::chrono::steady_clock::time_point;

double milliseconds(Moment from, Moment to) {
    return std::chrono::duration<double, std::milli>(to - from).count();
}

// Times each event that no other one encloses, and the parts of it between changes of the window's pointer.
class WatchedApplication : public QApplication {
public:
    using QApplication::QApplication;

    QWidget* window = nullptr;
    double longest = 0, longest_without_hourglass = 0;

    void forget() { longest = longest_without_hourglass = 0; }

    bool notify(QObject* receiver, QEvent* event) override {
        if (event->type() == QEvent::CursorChange && receiver == window && depth_ > 0)
            end_part();
        if (depth_++ == 0)
            begin_ = part_ = now();
        const bool taken = QApplication::notify(receiver, event);
        if (--depth_ == 0) {
            end_part();
            longest = std::max(longest, milliseconds(begin_, now()));
        }
        return taken;
    }

private:
    static Moment now() { return std::chrono::steady_clock::now(); }
    bool has_hourglass() const { return window && window->cursor().shape() == Qt::WaitCursor; }

    void end_part() {
        if (!had_hourglass_)
            longest_without_hourglass = std::max(longest_without_hourglass, milliseconds(part_, now()));
        had_hourglass_ = has_hourglass();
        part_ = now();
    }

    int depth_ = 0;
    bool had_hourglass_ = false;
    Moment begin_, part_;
};

class Calendar : public support::PlatformWorld {
public:
    Calendar(WatchedApplication& application, int activities) : application_(application) {
        bench::fill_bulk(database_.store(), clock.time, activities);
        database_.now = clock.time.plus_minutes(1);
        application.window = &window_;
    }

    // Does something and what comes of it, and prints how long it took.
    void measure(const char* name, const std::function<void()>& action) {
        settle();
        application_.forget();
        QTimer::singleShot(0, &window_, action);
        settle();
        std::printf("%-14s longest event %7.1f ms, without the hourglass %7.1f ms\n", name, application_.longest,
                    application_.longest_without_hourglass);
    }
    void load() { window_.load(); }
    void click(const char* button) { window_.findChild<QAbstractButton*>(button)->click(); }
    void choose(const char* entry) { window_.findChild<QAction*>(entry)->trigger(); }
    void jump(int entry) {
        window_.findChild<QComboBox*>("cboGoTo")->setCurrentIndex(entry);
        window_.calendar().navigation.cboGoTo_Click();
    }
    void resize(QSize size) { window_.resize(size); }
    // Another process edits an activity of the week.
    void edit_elsewhere() {
        clock.time = clock.time.plus_minutes(1);
        database_.now = clock.time.plus_minutes(1);
        const values::DateTime start = values::DateTime::of(2024, 1, 9, 9);
        database_.store().add(store::Activity{.start = start,
                                              .end = start.plus_minutes(60),
                                              .duration = 60,
                                              .user = database_.store().users().front().id});
    }
    void tick() { tmrRefresh.fire(); }
    std::size_t failures() const { return box.shown.size(); }

private:
    static void settle() {
        for (int turn = 0; turn < 20; ++turn)
            QApplication::processEvents();
    }

    WatchedApplication& application_;
    support::TemporaryDatabase database_;
    support::HalfRealServer server_{database_.path()};
    ui::frmMain window_{outside(server_)};
};

} // namespace

// bench_freezes [ACTIVITIES]
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    WatchedApplication application(argc, argv);
    Calendar calendar(application, argc > 1 ? std::atoi(argv[1]) : 100'000);
    calendar.have_settings("[Settings]\nAutoRefresh=1\nAutoRefreshPrompt=0\n");
    calendar.measure("start", [&] { calendar.load(); });
    for (int round = 0; round < 2; ++round) {
        calendar.measure("next", [&] { calendar.click("cmdNext"); });
        calendar.measure("previous", [&] { calendar.click("cmdPrevious"); });
        calendar.measure("a year back", [&] { calendar.jump(2); });
        calendar.measure("today", [&] { calendar.jump(9); });
        calendar.measure("daily", [&] { calendar.click("chkView_0"); });
        calendar.measure("weekly", [&] { calendar.click("chkView_1"); });
        calendar.measure("afternoon", [&] { calendar.click("chkAMPM_1"); });
        calendar.measure("morning", [&] { calendar.click("chkAMPM_0"); });
        calendar.measure("full refresh", [&] { calendar.choose("mnuFullRefresh"); });
        calendar.edit_elsewhere();
        calendar.measure("quick refresh", [&] { calendar.choose("mnuRefresh"); });
        calendar.edit_elsewhere();
        calendar.measure("timer", [&] { calendar.tick(); });
        calendar.measure("resize", [&] { calendar.resize(round == 0 ? QSize(1500, 900) : QSize(900, 600)); });
    }
    if (calendar.failures() > 0)
        std::printf("%zu failure boxes: something else was measured\n", calendar.failures());
    return calendar.failures() > 0;
}
