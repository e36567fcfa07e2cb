#include "desk/model/directory.h"

#include "desk/team_fixture.h"

using model::Directory;

using DirectoryTest = TeamTest;

TEST_F(DirectoryTest, NamesContactsUsersAndGroupsById) {
    auto store = elsewhere();
    const Directory directory(*store);
    EXPECT_EQ(directory.contact_name(cedar), "Xenia Stone");
    EXPECT_EQ(directory.user_name(bert), "Bert Cole");
    EXPECT_EQ(directory.group_name(friends), "Friends");
    EXPECT_EQ(directory.contacts().size(), 4u);
    EXPECT_EQ(directory.users().size(), 2u);
    EXPECT_EQ(directory.groups().size(), 2u);
}

TEST_F(DirectoryTest, AnUnknownIdHasNoName) {
    auto store = elsewhere();
    const Directory directory(*store);
    EXPECT_EQ(directory.contact("NOBODY000000"), nullptr);
    EXPECT_EQ(directory.contact_name("NOBODY000000"), "");
    EXPECT_EQ(directory.user_name(""), "");
    EXPECT_EQ(directory.group_name(""), "");
}

TEST_F(DirectoryTest, AContactWithoutANameIsCalledByItsCompany) {
    auto store = elsewhere();
    const auto only_company = contact(*store, "Elm House", "");
    const auto neither = contact(*store, "", "");
    const Directory directory(*store);
    EXPECT_EQ(directory.contact_name(only_company), "Elm House");
    EXPECT_EQ(directory.contact_name(neither), "(unnamed)");
}

TEST_F(DirectoryTest, AFieldThatARecordDoesntHaveIsEmpty) {
    EXPECT_EQ(model::field_of({{}, {{25, "Elm House"}}, 0}, 26), "");
}
