#include "desk/windows/long_task.h"

#include "core/values/failure.h"
#include "support/with_dialogs.h"

#include <QProgressDialog>
#include <QPushButton>
#include <QTest>

#include <atomic>
#include <chrono>
#include <stdexcept>
#include <thread>

using namespace windows;

namespace {

void sleep_a_little() { std::this_thread::sleep_for(std::chrono::milliseconds(5)); }

void wait_until_gone(const QWidget& box) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return !box.isVisible(); }));
}

class LongTask : public testing::Test {
protected:
    bool run(const std::function<void(const Progress&)>& task) { return run_long_task(&window, "Counting", task); }

    QWidget window;
};

// Ends only when it is asked to, and then fails.
void go_on_until_cancelled(const Progress& progress) {
    while (progress(0.25))
        sleep_a_little();
    throw std::runtime_error("cancelled");
}

} // namespace

TEST_F(LongTask, AShortOneShowsNoBox) {
    bool done = false;
    with_dialogs({}, [&] { EXPECT_TRUE(run([&](const Progress&) { done = true; })); });
    EXPECT_TRUE(done);
}

TEST_F(LongTask, ItsFailureIsThrownToWhoAskedForIt) {
    EXPECT_THROW(run([](const Progress&) {
                     throw values::Failure(values::FailureNumber::automation, "It can't be read.");
                 }),
                 values::Failure);
}

// The task waits for what only the windows' own thread can do.
TEST_F(LongTask, TheWindowsLiveOnMeanwhileAndShowHowFarItIs) {
    std::atomic<bool> seen = false;
    const auto look = [&](QWidget& box) {
        auto& bar = dynamic_cast<QProgressDialog&>(box);
        EXPECT_EQ(box.windowTitle(), "Counting");
        EXPECT_TRUE(QTest::qWaitFor([&] { return bar.value() == bar.maximum() / 4; }));
        seen = true;
        wait_until_gone(box);
    };
    with_dialogs({look}, [&] {
        EXPECT_TRUE(run([&](const Progress& progress) {
            for (int i = 0; i < 2000 && !seen; ++i) {
                EXPECT_TRUE(progress(0.25));
                sleep_a_little();
            }
        }));
    });
    EXPECT_TRUE(seen);
}

TEST_F(LongTask, CancelEndsIt) {
    const auto cancel = [](QWidget& box) {
        QTest::mouseClick(box.findChild<QPushButton*>(), Qt::LeftButton);
        wait_until_gone(box);
    };
    with_dialogs({cancel}, [&] { EXPECT_FALSE(run(go_on_until_cancelled)); });
}

TEST_F(LongTask, ItIsCancelledWhenTheProgramEnds) {
    const auto end = [](QWidget&) { QCoreApplication::exit(); };
    bool is_done = true;
    QTimer::singleShot(0, &window, [&] { is_done = run(go_on_until_cancelled); });
    with_dialogs({end}, [] { QCoreApplication::exec(); });
    EXPECT_FALSE(is_done);
}

TEST_F(LongTask, OneThatEndsInSpiteOfCancelIsDone) {
    const auto cancel = [](QWidget& box) {
        QTest::keyClick(&box, Qt::Key_Escape);
        wait_until_gone(box);
    };
    with_dialogs({cancel}, [&] {
        EXPECT_TRUE(run([](const Progress& progress) {
            while (progress(0.5))
                sleep_a_little();
        }));
    });
}
