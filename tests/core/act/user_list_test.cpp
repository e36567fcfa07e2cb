#include "core/act/user_list.h"

#include "support/fake_act_server.h"
#include "support/fake_message_box.h"
#include "support/fake_window.h"
#include "support/memory_files.h"

#include <gtest/gtest.h>

namespace {

using Texts = std::vector<std::string>;

class UserListTest : public testing::Test {
protected:
    UserListTest() {
        ini.SettingsFile = "/program/Orvanta.ini";
        session.Create_Database();
        data.users = {
            {"ANN---------", "Ann", "", ""}, {"BOB---------", "Bob", "", ""}, {"CEM-------- ", "Cem", "", ""}};
    }
    void have_filter(const std::string& ids) { ini.WriteKeyValue("Filter", "Users", ids); }
    Texts shown() const {
        Texts all;
        for (int index = 0; index < users.cboUsers.ListCount(); ++index)
            all.push_back(users.cboUsers.List(index));
        return all;
    }

    support::FakeMessageBox box;
    host::ApplicationInfo application{.title = "Orvanta", .support_address = "help@example.org"};
    support::FakeWindow window;
    host::Guard guarded{box, application, window};
    support::MemoryFiles files;
    settings::IniLib ini{files, guarded};
    support::FakeActData data;
    support::FakeApplicationState state;
    support::FakeServer server{data, state};
    act::Session session{server, guarded};
    act::ListPopulator lists{session, guarded};
    act::UserList users{session, lists, ini, guarded};
};

TEST_F(UserListTest, ShowsAllUsersWithoutAFilter) {
    users.Initialize_Users(act::ShownUsers::of_the_filter);
    EXPECT_EQ(shown(), (Texts{"Ann", "Bob", "Cem"}));
    EXPECT_EQ(users.UsersFilter, " ");
    EXPECT_EQ(users.NumUsers, 3);
}

TEST_F(UserListTest, ShowsTheChosenUsersInTheFiltersOrderWithTheirPositions) {
    have_filter("BOB---------ANN---------");
    users.Initialize_Users(act::ShownUsers::of_the_filter);
    EXPECT_EQ(shown(), (Texts{"Bob", "Ann"}));
    EXPECT_EQ(users.cboUsers.ItemData(0), 2);
    EXPECT_EQ(users.cboUsers.ItemData(1), 1);
    EXPECT_EQ(users.UsersFilter, "BOB---------ANN--------- ");
    EXPECT_EQ(users.NumUsers, 2);
}

TEST_F(UserListTest, RestoresTheBlankThatAFileTakesFromTheLastId) {
    have_filter("ANN---------CEM-------- ");
    users.Initialize_Users(act::ShownUsers::of_the_filter);
    EXPECT_EQ(users.UsersFilter, "ANN---------CEM-------- ");
    EXPECT_EQ(shown(), (Texts{"Ann", "Cem"}));
    EXPECT_EQ(users.NumUsers, 2);
}

TEST_F(UserListTest, ShowsOnlyTheOthersWhenAChosenUserHasLeft) {
    have_filter("GONE--------BOB---------");
    users.Initialize_Users(act::ShownUsers::of_the_filter);
    EXPECT_EQ(shown(), (Texts{"Bob"}));
    EXPECT_EQ(users.NumUsers, 2);
}

TEST_F(UserListTest, ShowsAllUsersWhenNoChosenOneIsLeft) {
    have_filter("GONE--------AWAY--------");
    users.Initialize_Users(act::ShownUsers::of_the_filter);
    EXPECT_EQ(shown(), (Texts{"Ann", "Bob", "Cem"}));
    EXPECT_EQ(users.UsersFilter, " ");
    EXPECT_EQ(users.NumUsers, 3);
}

TEST_F(UserListTest, IsNeverEmptyAsLongAsThereIsOneUser) {
    data.users.resize(1);
    have_filter("GONE--------");
    users.Initialize_Users(act::ShownUsers::of_the_filter);
    EXPECT_EQ(shown(), Texts{"Ann"});
    EXPECT_EQ(users.NumUsers, 1);
}

TEST_F(UserListTest, IgnoresTheFilterWhenAllUsersAreAskedFor) {
    have_filter("BOB---------");
    users.Initialize_Users(act::ShownUsers::all);
    EXPECT_EQ(shown(), (Texts{"Ann", "Bob", "Cem"}));
}

TEST_F(UserListTest, StaysEmptyInADatabaseWithoutUsers) {
    data.users.clear();
    have_filter("BOB---------");
    users.Initialize_Users(act::ShownUsers::of_the_filter);
    EXPECT_EQ(shown(), (Texts{}));
    EXPECT_EQ(users.NumUsers, 0);
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(UserListTest, RoundsARestOfHalfAnIdToTheEvenNumber) {
    have_filter("BOB---------ANN--"); // 17 characters and the blank: one and a half
    users.Initialize_Users(act::ShownUsers::of_the_filter);
    EXPECT_EQ(users.NumUsers, 2);
    EXPECT_EQ(shown(), (Texts{"Bob"}));
    have_filter("BOB---------ANN---------CEM--"); // two and a half
    users.Initialize_Users(act::ShownUsers::of_the_filter);
    EXPECT_EQ(users.NumUsers, 2);
}

TEST_F(UserListTest, CutsTheFilterByCharacters) {
    data.users.push_back({"ÄRZTE-------", "Änne", "", ""});
    have_filter("ÄRZTE-------BOB---------");
    users.Initialize_Users(act::ShownUsers::of_the_filter);
    EXPECT_EQ(shown(), (Texts{"Änne", "Bob"}));
    EXPECT_EQ(users.NumUsers, 2);
}

TEST_F(UserListTest, MapsEveryUserBothWaysWhateverTheFilter) {
    have_filter("BOB---------");
    users.Initialize_Users(act::ShownUsers::of_the_filter);
    users.map_users();
    EXPECT_EQ(users.UserIdToName.at("CEM-------- "), "Cem");
    EXPECT_EQ(users.UserNameToId.at("Ann"), "ANN---------");
    EXPECT_EQ(users.UserIdToName.size(), 3U);
}

TEST_F(UserListTest, PassesEveryUserThroughABlankFilterAndTheNamedThroughAnother) {
    users.UsersFilter = " ";
    EXPECT_TRUE(users.passes_filter("ANYBODY-----"));
    users.UsersFilter = "ANN---------BOB--------- ";
    EXPECT_TRUE(users.passes_filter("BOB---------"));
    EXPECT_FALSE(users.passes_filter("CEM-------- "));
}

} // namespace
