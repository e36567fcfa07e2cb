#include "adapters/bus/application_link.h"

#include "desk_process.h"
#include "failure_text.h"
#include "support/desk_on_bus.h"
#include "told.h"

#include <QElapsedTimer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

using act::CommandNumber;

class Command : public ::testing::Test {
protected:
    void finish() {
        on_bus.run([&] { on_bus.desk.finish_command(); });
    }

    support::PrivateBus bus;
    support::DeskOnBus on_bus{bus};
    std::shared_ptr<bus::Link> link = bus::make_link(bus.connection());
};

TEST_F(Command, ReturnsWhenTheDialogHasClosed) {
    bool closed = false;
    QTimer::singleShot(100, [&] {
        closed = true;
        finish();
    });
    link->run(CommandNumber::schedule_activity);
    EXPECT_TRUE(closed);
    on_bus.run([&] { EXPECT_EQ(on_bus.desk.commands, std::vector{CommandNumber::schedule_activity}); });
}

TEST_F(Command, WaitsLongerThanAnOrdinaryCall) {
    QTimer::singleShot(2500, [&] { finish(); });
    EXPECT_EQ(failure_text([&] { link->run(CommandNumber::edit_activity); }), "");
}

TEST_F(Command, FailsWithTheDesksOwnSentence) {
    on_bus.run([&] { on_bus.desk.refusal = "No activity is selected."; });
    EXPECT_EQ(failure_text([&] { link->run(CommandNumber::edit_activity); }), "440 No activity is selected.");
    EXPECT_FALSE(link->waits());
}

TEST_F(Command, FailsWhileAnotherOneWaits) {
    std::string second;
    QTimer::singleShot(100, [&] {
        second = failure_text([&] { link->run(CommandNumber::edit_activity); });
        EXPECT_TRUE(link->waits());
        finish();
    });
    link->run(CommandNumber::schedule_activity);
    EXPECT_EQ(second, "440 The contact desk is still busy with another command.");
}

TEST_F(Command, ReturnsWhenItIsAbandonedThoughTheDialogIsStillOpen) {
    QTimer::singleShot(100, [&] { bus::abandon_command(*link); });
    EXPECT_EQ(failure_text([&] { link->run(CommandNumber::edit_activity); }), "");
    EXPECT_FALSE(link->waits());
    EXPECT_TRUE(link->desk_runs());
    finish();
    QTimer::singleShot(100, [&] { finish(); });
    link->run(CommandNumber::edit_activity); // the next one waits for its own dialog
}

TEST_F(Command, NoticesNoAbandonmentWhileNoneWaits) {
    bus::abandon_command(*link);
    bool closed = false;
    QTimer::singleShot(100, [&] {
        closed = true;
        finish();
    });
    link->run(CommandNumber::edit_activity);
    EXPECT_TRUE(closed);
}

class PaintCounter : public QWidget {
public:
    int count = 0;

protected:
    void paintEvent(QPaintEvent*) override { ++count; }
};

TEST_F(Command, LetsTheProgramsWindowsRepaint) {
    PaintCounter window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    const int before = window.count;
    QTimer::singleShot(50, [&] { window.update(); });
    QTimer::singleShot(300, [&] {
        EXPECT_GT(window.count, before);
        finish();
    });
    link->run(CommandNumber::edit_activity);
}

TEST_F(Command, ThrowsTheUsersInputAway) {
    QPushButton button("Delete");
    int clicks = 0;
    QObject::connect(&button, &QPushButton::clicked, [&] { ++clicks; });
    button.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&button));
    QTimer::singleShot(50, [&] {
        QTest::mouseClick(&button, Qt::LeftButton);
        QTest::keyClick(&button, Qt::Key_Space);
        finish();
    });
    link->run(CommandNumber::edit_activity);
    QTest::qWait(50);
    EXPECT_EQ(clicks, 0);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
}

class CommandToAProcess : public ::testing::Test {
protected:
    // Runs a command and does something to the desk in the middle of it.
    template <typename Body>
    std::string interrupted(Body body) {
        QElapsedTimer watch;
        QTimer::singleShot(200, [&] {
            EXPECT_TRUE(link->waits());
            body();
            watch.start();
        });
        const auto result = failure_text([&] { link->run(CommandNumber::edit_activity); });
        EXPECT_LT(watch.elapsed(), 1000);
        EXPECT_FALSE(link->waits());
        return result;
    }

    support::PrivateBus bus;
    DeskProcess process{bus};
    std::shared_ptr<bus::Link> link = bus::make_link(bus.connection());
};

TEST_F(CommandToAProcess, FailsWithinASecondWhenTheDeskDies) {
    EXPECT_EQ(interrupted([&] { process.kill(); }), "440 The contact desk ended before its dialog was closed.");
}

TEST_F(CommandToAProcess, FailsWithinASecondWhenTheBusDies) {
    EXPECT_EQ(interrupted([&] { bus.stop(); }), "440 The contact desk ended before its dialog was closed.");
}

class CommandToAFrozenDesk : public CommandToAProcess {
protected:
    CommandToAFrozenDesk() { link = bus::make_link(bus.connection(), &told); }

    Told told;
};

TEST_F(CommandToAFrozenDesk, CanBeGivenUpAfterFiveSeconds) {
    told.gives_up = true;
    QTimer::singleShot(200, [&] { process.freeze(); });
    EXPECT_EQ(failure_text([&] { link->run(CommandNumber::edit_activity); }),
              "440 The contact desk doesn't answer.");
    EXPECT_EQ(told.silences, 1);
    EXPECT_EQ(told.answers, 1) << "the notice goes with the wait";
    EXPECT_FALSE(link->waits());
}

TEST_F(CommandToAFrozenDesk, WaitsOnWhenTheDeskAnswersAgain) {
    told.on_silence = [&] { process.freeze(false); };
    QTimer::singleShot(200, [&] { process.freeze(); });
    QTimer end;
    QObject::connect(&end, &QTimer::timeout, [&] {
        if (told.answers > 0)
            bus::abandon_command(*link);
    });
    end.start(20);
    EXPECT_EQ(failure_text([&] { link->run(CommandNumber::edit_activity); }), "");
    EXPECT_EQ(told.silences, 1);
    EXPECT_EQ(told.answers, 1);
}

TEST_F(CommandToAFrozenDesk, LeavesAnOpenDialogAllTheTimeItTakes) {
    QTimer::singleShot(7000, [&] { bus::abandon_command(*link); });
    EXPECT_EQ(failure_text([&] { link->run(CommandNumber::edit_activity); }), "");
    EXPECT_EQ(told.silences, 0);
}

TEST_F(CommandToAProcess, ClosesTheDeskAndReturnsWhenItHasGone) {
    link->run(CommandNumber::close_application);
    EXPECT_FALSE(link->desk_runs());
}

TEST_F(Command, GivesUpWaitingForADeskThatDoesNotEnd) {
    on_bus.run([&] { on_bus.desk.on_command = [&](CommandNumber) { on_bus.desk.finish_command(); }; });
    EXPECT_EQ(failure_text([&] { link->run(CommandNumber::close_application); }), "");
    EXPECT_TRUE(link->desk_runs());
}

} // namespace
