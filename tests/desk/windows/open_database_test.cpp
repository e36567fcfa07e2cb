#include "desk/windows/open_database.h"

#include "core/values/failure.h"
#include "desk_fixture.h"

#include <fstream>

using windows::OpenDatabase;

namespace {

class OpenDatabaseTest : public DeskTest {
protected:
    OpenDatabaseTest() {
        QObject::connect(&database, &OpenDatabase::opened, [this] { events.push_back("opened"); });
        QObject::connect(&database, &OpenDatabase::closed, [this] { events.push_back("closed"); });
        QObject::connect(&database, &OpenDatabase::changed, [this] { events.push_back("changed"); });
    }
    using Events = std::vector<std::string>;
    Events events;
};

} // namespace

TEST_F(OpenDatabaseTest, HasNoDatabaseAtFirst) {
    EXPECT_FALSE(database.is_open());
    EXPECT_EQ(database.path(), "");
    EXPECT_THROW(database.store(), values::Failure);
    EXPECT_NO_THROW(database.refresh());
}

TEST_F(OpenDatabaseTest, OpeningTellsOnceAndReadsTheDirectory) {
    database.open(path);
    EXPECT_EQ(events, (Events{"opened", "changed"}));
    EXPECT_EQ(database.path(), path);
    EXPECT_EQ(database.directory().contacts().size(), 4u);
}

TEST_F(OpenDatabaseTest, ClosingForgetsTheRecords) {
    database.open(path);
    events.clear();
    database.close();
    EXPECT_EQ(events, (Events{"closed", "changed"}));
    EXPECT_FALSE(database.is_open());
    EXPECT_TRUE(database.directory().contacts().empty());
    database.close();
    EXPECT_EQ(events.size(), 2u);
}

TEST_F(OpenDatabaseTest, OpeningAnotherDatabaseClosesTheFirst) {
    database.open(path);
    events.clear();
    database.create(in_folder("other.desk"));
    EXPECT_EQ(events, (Events{"closed", "changed", "opened", "changed"}));
    EXPECT_EQ(database.path(), in_folder("other.desk"));
}

TEST_F(OpenDatabaseTest, ADatabaseThatCantBeOpenedLeavesTheOpenOne) {
    database.open(path);
    events.clear();
    std::ofstream(in_folder("letter.txt")) << "Dear Sir or Madam, this is no database at all.";
    EXPECT_THROW(database.open(in_folder("letter.txt")), values::Failure);
    EXPECT_THROW(database.open(in_folder("missing.desk")), values::Failure);
    EXPECT_THROW(database.create(path), values::Failure);
    EXPECT_EQ(database.path(), path);
    EXPECT_EQ(events, Events{});
}

TEST_F(OpenDatabaseTest, SeesWhatAnotherProcessWrote) {
    database.open(path);
    events.clear();
    database.refresh();
    EXPECT_EQ(events, Events{});
    contact(*elsewhere(), "Elm House", "Vera Upton");
    database.refresh();
    EXPECT_EQ(events, Events{"changed"});
    EXPECT_EQ(database.directory().contacts().size(), 5u);
    database.refresh();
    EXPECT_EQ(events, Events{"changed"});
}

TEST_F(OpenDatabaseTest, KnowsTheDayByItsClock) {
    EXPECT_EQ(database.now(), at(3, 6, 10, 10));
    EXPECT_EQ(database.today(), at(3, 6));
}
