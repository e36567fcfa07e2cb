#include "adapters/bus/application_link.h"
#include "contract/names.h"
#include "desk_process.h"
#include "support/desk_on_bus.h"
#include "told.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

namespace {

class EventControl : public ::testing::Test {
protected:
    std::unique_ptr<act::EventControl> listen() {
        auto control = bus::make_event_control(link);
        control->OnDatabaseClose = [this] { events << "database closed"; };
        control->OnActUserWantsToClose = [this] { events << "wants to close"; };
        return control;
    }
    bool hear(const QStringList& expected) {
        return QTest::qWaitFor([&] { return events.size() >= expected.size(); }, 3000) && events == expected;
    }
    // Whatever was on its way has arrived after this.
    void settle() {
        bus_connection.call(QDBusMessage::createMethodCall("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                                           "org.freedesktop.DBus.Peer", "Ping"));
        QTest::qWait(50);
    }

    support::PrivateBus bus;
    QDBusConnection bus_connection = bus.connection();
    Told told;
    std::shared_ptr<bus::Link> link = bus::make_link(bus_connection, &told);
    QStringList events;
};

TEST_F(EventControl, FindsNoDatabaseAndNoCommunicationWithoutADesk) {
    const auto control = listen();
    EXPECT_EQ(control->Open_Databases(0), 0);
    EXPECT_TRUE(control->Communication_Failed());
}

TEST_F(EventControl, FindsNoDatabaseAndNoCommunicationWithoutABus) {
    const auto control = bus::make_event_control(bus::make_link(QDBusConnection("no such connection")));
    EXPECT_EQ(control->Open_Databases(0), 0);
    EXPECT_TRUE(control->Communication_Failed());
}

TEST_F(EventControl, TellsADeskWithoutADatabaseFromOneThatIsNotThere) {
    const support::DeskOnBus on_bus(bus, "");
    const auto control = listen();
    EXPECT_EQ(control->Open_Databases(0), 0);
    EXPECT_FALSE(control->Communication_Failed());
}

TEST_F(EventControl, CountsTheOpenDatabase) {
    const support::DeskOnBus on_bus(bus);
    const auto control = listen();
    EXPECT_EQ(control->Open_Databases(0), 1);
    EXPECT_FALSE(control->Communication_Failed());
}

// Owns the desk's name and swallows every call.
class Silence : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection&) override {
        call.setDelayedReply(true);
        return true;
    }
};

TEST_F(EventControl, GivesADeskThatDoesNotAnswerUpWithinSeconds) {
    auto other = bus.connection();
    Silence silence;
    other.registerVirtualObject("/", &silence, QDBusConnection::SubPath);
    ASSERT_TRUE(other.registerService(contract::bus_name));
    const auto control = listen();
    QElapsedTimer watch;
    watch.start();
    EXPECT_EQ(control->Open_Databases(0), 0);
    EXPECT_TRUE(control->Communication_Failed());
    EXPECT_LT(watch.elapsed(), 5000);
}

TEST_F(EventControl, TellsThatTheDatabaseHasClosed) {
    support::DeskOnBus on_bus(bus);
    const auto control = listen();
    on_bus.run([&] { on_bus.desk.on_database_closed(); });
    EXPECT_TRUE(hear({"database closed"}));
}

TEST_F(EventControl, TellsThatTheUserWantsToClose) {
    support::DeskOnBus on_bus(bus);
    const auto control = listen();
    on_bus.run([&] { on_bus.desk.on_user_wants_to_close(); });
    EXPECT_TRUE(hear({"wants to close"}));
}

TEST_F(EventControl, HearsADeskThatStartsLater) {
    const auto control = listen();
    support::DeskOnBus on_bus(bus);
    on_bus.run([&] {
        on_bus.desk.on_user_wants_to_close();
        on_bus.desk.on_database_closed();
    });
    EXPECT_TRUE(hear({"wants to close", "database closed"}));
}

TEST_F(EventControl, TellsNothingWithoutTheEventLoop) {
    support::DeskOnBus on_bus(bus);
    const auto control = listen();
    on_bus.run([&] { on_bus.desk.on_database_closed(); });
    EXPECT_EQ(control->Open_Databases(0), 1); // an ordinary call delivers nothing
    EXPECT_TRUE(events.isEmpty());
    EXPECT_TRUE(hear({"database closed"}));
}

TEST_F(EventControl, TellsNothingAfterDisconnect) {
    support::DeskOnBus on_bus(bus);
    const auto control = listen();
    on_bus.run([&] { on_bus.desk.on_database_closed(); });
    settle();
    ASSERT_EQ(events, QStringList{"database closed"});
    control->Disconnect();
    on_bus.run([&] {
        on_bus.desk.on_database_closed();
        on_bus.desk.on_user_wants_to_close();
    });
    settle();
    EXPECT_EQ(events, QStringList{"database closed"});
}

TEST_F(EventControl, TellsNothingMoreWhenAnEventDisconnects) {
    support::DeskOnBus on_bus(bus);
    const auto control = listen();
    control->OnActUserWantsToClose = [&] {
        events << "wants to close";
        control->Disconnect();
    };
    on_bus.run([&] {
        on_bus.desk.on_user_wants_to_close();
        on_bus.desk.on_database_closed();
    });
    settle();
    EXPECT_EQ(events, QStringList{"wants to close"});
}

TEST_F(EventControl, CanBeDestroyedByItsOwnEvent) {
    support::DeskOnBus on_bus(bus);
    auto control = listen();
    control->OnDatabaseClose = [&] {
        control.reset();
        events << "destroyed";
    };
    on_bus.run([&] {
        on_bus.desk.on_database_closed();
        on_bus.desk.on_user_wants_to_close();
    });
    settle();
    EXPECT_EQ(events, QStringList{"destroyed"});
}

TEST_F(EventControl, TakesAKilledDeskForOneThatTheUserCloses) {
    DeskProcess process(bus);
    const auto control = listen();
    ASSERT_EQ(control->Open_Databases(0), 1);
    process.kill();
    EXPECT_TRUE(hear({"wants to close"}));
    EXPECT_EQ(told.losses, std::vector<std::string>{"The contact desk has ended without notice."});
}

TEST_F(EventControl, LeavesItToACommandToTellOfADeskThatDiedUnderIt) {
    DeskProcess process(bus);
    const auto control = listen();
    QTimer::singleShot(100, [&] { process.kill(); });
    EXPECT_ANY_THROW(link->run(act::CommandNumber::edit_activity));
    EXPECT_TRUE(hear({"wants to close"}));
    EXPECT_TRUE(told.losses.empty());
}

TEST_F(EventControl, TellsTheEndOfADeskThatClosesOnce) {
    const DeskProcess process(bus);
    const auto control = listen();
    bus::make_application(link)->Command(act::CommandNumber::close_application);
    EXPECT_TRUE(hear({"wants to close"}));
    settle();
    EXPECT_EQ(events, QStringList{"wants to close"});
    EXPECT_TRUE(told.losses.empty());
}

TEST_F(EventControl, TakesTheEndOfTheBusForThatOfTheDesk) {
    const DeskProcess process(bus);
    const auto control = listen();
    ASSERT_EQ(control->Open_Databases(0), 1);
    bus.stop();
    EXPECT_TRUE(hear({"wants to close"}));
    EXPECT_EQ(told.losses,
              std::vector<std::string>{"The contact desk can't be reached any more: the session bus is gone."});
}

TEST_F(EventControl, KeepsEventsUntilACommandHasReturned) {
    support::DeskOnBus on_bus(bus);
    const auto control = listen();
    const auto application = bus::make_application(link);
    QTimer::singleShot(0, [&] { on_bus.run([&] { on_bus.desk.on_database_closed(); }); });
    QTimer::singleShot(200, [&] {
        EXPECT_TRUE(link->waits());
        EXPECT_TRUE(events.isEmpty());
        on_bus.run([&] { on_bus.desk.finish_command(); });
    });
    application->Command(act::CommandNumber::edit_activity);
    EXPECT_FALSE(link->waits());
    EXPECT_TRUE(events.isEmpty()); // still inside the program's own message
    EXPECT_TRUE(hear({"database closed"}));
}

TEST_F(EventControl, KeepsTheOrderOfEventsOverTwoCommands) {
    support::DeskOnBus on_bus(bus);
    const auto control = listen();
    const auto application = bus::make_application(link);
    on_bus.run([&] {
        on_bus.desk.on_command = [&](act::CommandNumber) {
            if (on_bus.desk.commands.size() == 1)
                on_bus.desk.on_database_closed();
            else
                on_bus.desk.on_user_wants_to_close();
            on_bus.desk.finish_command();
        };
    });
    application->Command(act::CommandNumber::edit_activity);
    application->Command(act::CommandNumber::edit_activity);
    EXPECT_TRUE(events.isEmpty());
    EXPECT_TRUE(hear({"database closed", "wants to close"}));
}

} // namespace
