#include "desk/service/service.h"

#include "contract/application_proxy.h"
#include "contract/names.h"
#include "support/desk_on_bus.h"

#include <QDBusConnectionInterface>
#include <QTest>

namespace {

using Registration = service::Service::Registration;

class Service : public ::testing::Test {
protected:
    service::Service make() { return service::Service(desk, toolbar, values::english_us()); }
    bool name_is_taken() { return watcher.interface()->isServiceRegistered(contract::bus_name); }

    support::PrivateBus bus;
    QDBusConnection watcher = bus.connection();
    support::FakeDesk desk;
    support::FakeToolbarCommands toolbar;
};

TEST_F(Service, TakesTheDesksName) {
    auto desk_service = make();
    EXPECT_FALSE(name_is_taken());
    EXPECT_EQ(desk_service.register_on(bus.connection()), Registration::done);
    EXPECT_TRUE(name_is_taken());
}

TEST_F(Service, LeavesTheNameWithItsEnd) {
    {
        auto desk_service = make();
        desk_service.register_on(bus.connection());
    }
    EXPECT_FALSE(name_is_taken());
}

TEST_F(Service, TellsASecondDeskThatTheNameIsTaken) {
    const support::DeskOnBus first(bus);
    auto second = make();
    EXPECT_EQ(second.register_on(bus.connection()), Registration::name_taken);
}

TEST_F(Service, LeavesTheFirstDeskAloneWhenTheSecondEnds) {
    support::DeskOnBus first(bus);
    {
        auto second = make();
        second.register_on(bus.connection());
    }
    EXPECT_TRUE(name_is_taken());
    ApplicationProxy proxy(contract::bus_name, contract::application_path, watcher);
    EXPECT_EQ(proxy.GetOpenDBName().value(), "/data/Sample.db");
}

TEST_F(Service, TellsThatThereIsNoBus) {
    auto desk_service = make();
    EXPECT_EQ(desk_service.register_on(QDBusConnection("no such connection")), Registration::no_bus);
}

TEST_F(Service, SendsTheTwoEventsInTheirOrder) {
    support::DeskOnBus on_bus(bus);
    ApplicationProxy proxy(contract::bus_name, contract::application_path, watcher);
    QStringList events;
    QObject::connect(&proxy, &ApplicationProxy::DatabaseClosed, [&] { events << "database closed"; });
    QObject::connect(&proxy, &ApplicationProxy::UserWantsToClose, [&] { events << "wants to close"; });
    on_bus.run([&] {
        on_bus.desk.on_user_wants_to_close();
        on_bus.desk.on_database_closed();
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return events.size() == 2; }, 3000));
    EXPECT_EQ(events, (QStringList{"wants to close", "database closed"}));
}

TEST_F(Service, TakesItsHandsOffTheDeskWithItsEnd) {
    {
        auto desk_service = make();
        EXPECT_TRUE(desk.on_database_closed);
        desk.on_database_closed(); // without a bus it is no failure
    }
    EXPECT_FALSE(desk.on_database_closed);
    EXPECT_FALSE(desk.on_user_wants_to_close);
}

} // namespace
