#include "desk/windows/membership.h"

#include "core/values/failure.h"
#include "desk_fixture.h"

using namespace windows;

namespace {

class Membership : public DeskTest {
protected:
    Membership() { database.open(path); }
    std::set<std::string> members(const std::string& group) {
        const auto contacts = elsewhere()->group(group)->contacts;
        return {contacts.begin(), contacts.end()};
    }
    using Ids = std::set<std::string>;
};

} // namespace

TEST_F(Membership, AddsContactsToThoseThatAreThere) {
    add_members(database, friends, {amber, birch});
    EXPECT_EQ(members(friends), (Ids{amber, birch, cedar}));
    EXPECT_EQ(elsewhere()->group(friends)->contacts.size(), 3u);
    EXPECT_EQ(database.directory().group(friends)->contacts.size(), 3u);
}

TEST_F(Membership, RemovesOneContact) {
    remove_member(database, friends, birch);
    remove_member(database, friends, amber);
    EXPECT_EQ(members(friends), Ids{cedar});
}

TEST_F(Membership, AGroupThatHasGoneFails) {
    EXPECT_THROW(add_members(database, "NOGROUP00000", {amber}), values::Failure);
}
