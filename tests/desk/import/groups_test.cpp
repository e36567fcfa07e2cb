#include "desk/import/groups.h"

#include "desk/import/own_lines.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

namespace {

using importing::Groups;

class GroupsTest : public testing::Test {
protected:
    std::string contact() { return store.add(store::Contact{}); }

    support::TemporaryDatabase database;
    store::Store& store = database.store();
};

TEST_F(GroupsTest, AreFoundByTheirRecordsThenByNameAndElseMade) {
    const std::string friends = store.add(store::Group{.name = "Friends"});
    Groups groups(store);
    EXPECT_EQ(groups.id_of("", "Friends"), "");
    EXPECT_EQ(groups.id_of(importing::own::uid_of(friends, store.identity()), "Renamed"), friends);
    EXPECT_EQ(groups.id_of("one@elsewhere", "friends"), friends);
    const std::string other = groups.id_of("two@elsewhere", "Friends");
    EXPECT_NE(other, friends);
    EXPECT_EQ(groups.id_of("two@elsewhere", "Friends"), other);
    EXPECT_EQ(Groups(store).id_of("two@elsewhere", "Called otherwise now"), other);
    EXPECT_EQ(store.groups().size(), 2u);
}

TEST_F(GroupsTest, NewMembersComeBehindThoseThatAreThereInTheirOrder) {
    const std::string first = contact(), second = contact(), third = contact();
    const std::string id = store.add(store::Group{.name = "Friends", .contacts = {third}});
    Groups groups(store);
    groups.join({.uid = "g", .name = "Friends", .place = 1}, second);
    groups.join({.uid = "g", .name = "Friends", .place = 0}, first);
    groups.join({.uid = "g", .name = "Friends", .place = 2}, third);
    groups.fill();
    EXPECT_EQ(store.group(id)->contacts, (std::vector{third, first, second}));
}

} // namespace
