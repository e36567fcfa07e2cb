#include "desk/windows/open_database.h"

#include "core/values/failure.h"
#include "desk_fixture.h"

#include <fstream>

using windows::OpenDatabase;

namespace {

class SessionTest : public DeskTest {
protected:
    SessionTest() {
        QObject::connect(&session, &OpenDatabase::opened, [this] { events.push_back("opened"); });
        QObject::connect(&session, &OpenDatabase::closed, [this] { events.push_back("closed"); });
        QObject::connect(&session, &OpenDatabase::changed, [this] { events.push_back("changed"); });
    }
    using Events = std::vector<std::string>;
    Events events;
};

} // namespace

TEST_F(SessionTest, HasNoDatabaseAtFirst) {
    EXPECT_FALSE(session.is_open());
    EXPECT_EQ(session.path(), "");
    EXPECT_THROW(session.store(), values::Failure);
    EXPECT_NO_THROW(session.refresh());
}

TEST_F(SessionTest, OpeningTellsOnceAndReadsTheDirectory) {
    session.open(path);
    EXPECT_EQ(events, (Events{"opened", "changed"}));
    EXPECT_EQ(session.path(), path);
    EXPECT_EQ(session.directory().contacts().size(), 4u);
}

TEST_F(SessionTest, ClosingForgetsTheRecords) {
    session.open(path);
    events.clear();
    session.close();
    EXPECT_EQ(events, (Events{"closed", "changed"}));
    EXPECT_FALSE(session.is_open());
    EXPECT_TRUE(session.directory().contacts().empty());
    session.close();
    EXPECT_EQ(events.size(), 2u);
}

TEST_F(SessionTest, OpeningAnotherDatabaseClosesTheFirst) {
    session.open(path);
    events.clear();
    session.create(in_folder("other.desk"));
    EXPECT_EQ(events, (Events{"closed", "changed", "opened", "changed"}));
    EXPECT_EQ(session.path(), in_folder("other.desk"));
}

TEST_F(SessionTest, ADatabaseThatCantBeOpenedLeavesTheOpenOne) {
    session.open(path);
    events.clear();
    std::ofstream(in_folder("letter.txt")) << "Dear Sir or Madam, this is no database at all.";
    EXPECT_THROW(session.open(in_folder("letter.txt")), values::Failure);
    EXPECT_THROW(session.open(in_folder("missing.desk")), values::Failure);
    EXPECT_THROW(session.create(path), values::Failure);
    EXPECT_EQ(session.path(), path);
    EXPECT_EQ(events, Events{});
}

TEST_F(SessionTest, SeesWhatAnotherProcessWrote) {
    session.open(path);
    events.clear();
    session.refresh();
    EXPECT_EQ(events, Events{});
    contact(*elsewhere(), "Elm House", "Vera Upton");
    session.refresh();
    EXPECT_EQ(events, Events{"changed"});
    EXPECT_EQ(session.directory().contacts().size(), 5u);
    session.refresh();
    EXPECT_EQ(events, Events{"changed"});
}

TEST_F(SessionTest, KnowsTheDayByItsClock) {
    EXPECT_EQ(session.now(), at(3, 6, 10, 10));
    EXPECT_EQ(session.today(), at(3, 6));
}
