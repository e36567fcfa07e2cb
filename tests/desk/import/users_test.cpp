#include "desk/import/users.h"

#include "core/values/failure.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

namespace {

using importing::Users;

class UsersTest : public testing::Test {
protected:
    std::string name_of(const std::string& id) {
        for (const store::User& user : store.users())
            if (user.id == id)
                return user.name;
        return "";
    }
    void add(const char* name) {
        store.add(store::User{.name = name, .security = "Standard", .access = "Enabled"});
    }

    support::TemporaryDatabase database;
    store::Store& store = database.store();
};

TEST_F(UsersTest, TheOneWhoWasChosenGetsAll) {
    add("Anna");
    add("Bert");
    Users users(store, "bert");
    EXPECT_EQ(name_of(users.id_for(std::nullopt)), "Bert");
    EXPECT_EQ(name_of(users.id_for("Anna")), "Bert");
    EXPECT_EQ(name_of(users.id_for("Zora")), "Bert");
    EXPECT_EQ(users.summary(), "Bert");
    EXPECT_EQ(store.users().size(), 2u);
}

TEST_F(UsersTest, WithoutAChoiceTheFileDecidesAndElseItIsTheFirst) {
    add("Bert");
    add("Anna");
    Users users(store, "");
    EXPECT_EQ(name_of(users.id_for(std::nullopt)), "Anna");
    EXPECT_EQ(name_of(users.id_for("BERT")), "Bert");
    EXPECT_EQ(users.id_for(""), "");
    EXPECT_EQ(users.summary(), "2 users");
}

TEST_F(UsersTest, OneWhomTheDatabaseDoesntHaveIsMadeAsTheFileTells) {
    add("Anna");
    Users users(store, "");
    users.tell({.name = "Zora", .security = "Browse", .access = "Disabled"});
    users.id_for("Zora");
    users.tell({.name = "Yves", .security = "God", .access = "<b>"});
    users.id_for("Yves\nEND");
    users.id_for("Yves");
    users.id_for("zora");
    ASSERT_EQ(store.users().size(), 4u);
    EXPECT_EQ(store.users()[3].security, "Browse");
    EXPECT_EQ(store.users()[3].access, "Disabled");
    EXPECT_EQ(store.users()[2].name, "Yves END");
    EXPECT_EQ(store.users()[1].security, "Standard");
    EXPECT_EQ(store.users()[1].access, "Enabled");
}

TEST_F(UsersTest, WithoutAnybodyItFails) {
    Users users(store, "");
    EXPECT_EQ(users.usual_id(), "");
    EXPECT_THROW(users.id_for(std::nullopt), values::Failure);
    EXPECT_THROW(Users(store, "Anna"), values::Failure);
}

} // namespace
