#include "desk/windows/long_task.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProgressDialog>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <future>

namespace windows {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds short_task(300); // needs no box
constexpr milliseconds between_looks(50);
constexpr int whole = 1000;

// What the task's thread and that of the windows tell each other.
struct Shared {
    std::atomic<double> part = 0;
    std::atomic<bool> cancelled = false;
};

bool has_ended(const std::future<void>& task) {
    return task.wait_for(milliseconds(0)) == std::future_status::ready;
}

void wait_with_box(QWidget* window, const QString& title, const std::future<void>& task, Shared& shared) {
    QProgressDialog box(title, QCoreApplication::translate("windows::run_long_task", "Cancel"), 0, whole, window);
    box.setWindowTitle(title);
    box.setWindowModality(Qt::ApplicationModal);
    box.setAutoClose(false);
    box.setAutoReset(false);
    box.setMinimumDuration(0);
    // However the box is closed, it stays until the task has really ended.
    const auto cancel = [&] {
        shared.cancelled = true;
        box.setLabelText(QCoreApplication::translate("windows::run_long_task", "Cancelling..."));
        box.setVisible(!has_ended(task));
    };
    QObject::disconnect(&box, SIGNAL(canceled()), &box, SLOT(cancel()));
    QObject::connect(&box, &QProgressDialog::canceled, &box, cancel);
    QObject::connect(&box, &QProgressDialog::rejected, &box, cancel);
    QEventLoop loop;
    QTimer looks;
    QObject::connect(&looks, &QTimer::timeout, [&] {
        box.setValue(static_cast<int>(shared.part * whole));
        if (has_ended(task)) {
            box.hide();
            loop.quit();
        }
    });
    looks.start(between_looks);
    box.show();
    loop.exec();
}

} // namespace

bool run_long_task(QWidget* window, const QString& title, const std::function<void(const Progress&)>& task) {
    Shared shared;
    const Progress progress = [&shared](double part) {
        shared.part = part;
        return !shared.cancelled;
    };
    std::future<void> running = std::async(std::launch::async, task, progress);
    if (running.wait_for(short_task) != std::future_status::ready)
        wait_with_box(window, title, running, shared);
    // The wait can end early when the program is told to end.
    if (!has_ended(running))
        shared.cancelled = true;
    try {
        running.get();
    } catch (...) {
        if (!shared.cancelled)
            throw;
        return false;
    }
    return true;
}

} // namespace windows
