#include "called_desk.h"

#include "contract/application_proxy.h"

#include <QTemporaryFile>

namespace {

class ApplicationObject : public CalledDesk<ApplicationProxy> {
protected:
    ApplicationObject() : CalledDesk(contract::application_path) {}
};

constexpr auto no_database = "No database is open in the contact desk.";

TEST_F(ApplicationObject, CountsTheOpenDatabase) {
    EXPECT_EQ(proxy.OpenDatabases().value(), 1);
    on_bus.run([&] { desk.path.clear(); });
    EXPECT_EQ(proxy.OpenDatabases().value(), 0);
}

TEST_F(ApplicationObject, NamesTheOpenDatabase) {
    EXPECT_EQ(proxy.GetOpenDBName().value(), "/data/Sample.db");
    on_bus.run([&] { desk.path.clear(); });
    EXPECT_EQ(refusal(proxy.GetOpenDBName()), "");
    EXPECT_EQ(proxy.GetOpenDBName().value(), "");
}

TEST_F(ApplicationObject, AttachesToTheOpenDatabaseByAnEmptyPathOrItsOwn) {
    EXPECT_EQ(refusal(proxy.OpenFile("")), "");
    EXPECT_EQ(refusal(proxy.OpenFile("/data/Sample.db")), "");
}

TEST_F(ApplicationObject, KnowsTheOpenDatabaseByAnotherPathToIt) {
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    on_bus.run([&] { desk.path = file.fileName().toStdString(); });
    auto roundabout = file.fileName();
    EXPECT_EQ(refusal(proxy.OpenFile(roundabout.insert(roundabout.lastIndexOf('/'), "/."))), "");
}

TEST_F(ApplicationObject, DoesNotAttachToAnotherDatabase) {
    EXPECT_EQ(refusal(proxy.OpenFile("/data/Other.db")),
              "The contact desk has another database open: /data/Sample.db");
}

TEST_F(ApplicationObject, DoesNotAttachWithoutADatabase) {
    on_bus.run([&] { desk.path.clear(); });
    EXPECT_EQ(refusal(proxy.OpenFile("")), no_database);
}

TEST_F(ApplicationObject, RepliesToACommandWhenItsDialogHasClosed) {
    auto reply = proxy.Command(1321);
    proxy.OpenDatabases().waitForFinished(); // the desk has had the command before
    EXPECT_FALSE(reply.isFinished());
    on_bus.run([&] {
        EXPECT_EQ(desk.commands, std::vector{act::CommandNumber::schedule_activity});
        desk.finish_command();
    });
    EXPECT_EQ(refusal(reply), "");
}

TEST_F(ApplicationObject, RunsEveryCommandNumber) {
    on_bus.run([&] { desk.on_command = [&](act::CommandNumber) { desk.finish_command(); }; });
    for (const int number : {150, 701, 1321, 1323, 1337, 1343, 20251})
        EXPECT_EQ(refusal(proxy.Command(number)), "") << number;
}

TEST_F(ApplicationObject, RefusesACommandThatThereIsNot) {
    EXPECT_EQ(refusal(proxy.Command(12)), "The contact desk has no command 12.");
    on_bus.run([&] { EXPECT_TRUE(desk.commands.empty()); });
}

TEST_F(ApplicationObject, RefusesASecondCommandBeforeTheFirstHasFinished) {
    auto first = proxy.Command(1321);
    EXPECT_EQ(refusal(proxy.Command(1337)), "The contact desk is still busy with another command.");
    on_bus.run([&] { desk.finish_command(); });
    EXPECT_EQ(refusal(first), "");
}

TEST_F(ApplicationObject, TakesTheNextCommandAfterOneThatCouldNotBegin) {
    on_bus.run([&] { desk.refusal = "No activity is selected."; });
    EXPECT_EQ(refusal(proxy.Command(1337)), "No activity is selected.");
    on_bus.run([&] { desk.on_command = [&](act::CommandNumber) { desk.finish_command(); }; });
    EXPECT_EQ(refusal(proxy.Command(1337)), "");
}

TEST_F(ApplicationObject, RepliesOnceToADialogThatTellsItsEndTwice) {
    auto first = proxy.Command(1321);
    proxy.OpenDatabases().waitForFinished();
    on_bus.run([&] {
        desk.finish_command();
        desk.finish_command();
    });
    EXPECT_EQ(refusal(first), "");
    auto second = proxy.Command(1321);
    proxy.OpenDatabases().waitForFinished();
    EXPECT_FALSE(second.isFinished());
    on_bus.run([&] { desk.finish_command(); });
    EXPECT_EQ(refusal(second), "");
}

TEST_F(ApplicationObject, RunsOnlyTheCloseCommandWithoutADatabase) {
    on_bus.run([&] {
        desk.path.clear();
        desk.on_command = [&](act::CommandNumber) { desk.finish_command(); };
    });
    for (const int number : {701, 1321, 1323, 1337, 1343, 20251})
        EXPECT_EQ(refusal(proxy.Command(number)), no_database) << number;
    EXPECT_EQ(refusal(proxy.Command(150)), "");
}

} // namespace
