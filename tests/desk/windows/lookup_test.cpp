#include "desk/windows/lookup.h"

#include "core/values/failure.h"
#include "desk_fixture.h"

using windows::Lookup;

namespace {

class LookupTest : public DeskTest {
protected:
    LookupTest() : lookup(database) {
        database.open(path);
        QObject::connect(&lookup, &Lookup::current_changed, [this] { shown.push_back(lookup.current()); });
    }
    using Ids = std::vector<std::string>;
    Lookup lookup;
    Ids shown;
};

} // namespace

TEST_F(LookupTest, BeginsWithAllContactsAndShowsTheFirst) {
    EXPECT_EQ(lookup.contacts(), (Ids{amber, birch, cedar, dahlia}));
    EXPECT_EQ(lookup.current(), amber);
    EXPECT_EQ(lookup.position(), 0);
}

TEST_F(LookupTest, ALookupOverAnOpenDatabaseShowsItsFirstContactToo) {
    EXPECT_EQ(Lookup(database).current(), amber);
}

TEST_F(LookupTest, KeepsTheOrderOfTheDatabaseAndLeavesUnknownIdsOut) {
    lookup.show({dahlia, "NOBODY000000", birch, birch});
    EXPECT_EQ(lookup.contacts(), (Ids{birch, dahlia}));
    EXPECT_EQ(lookup.current(), birch);
}

TEST_F(LookupTest, ALookupOfUnknownIdsAloneIsEmpty) {
    lookup.show({"NOBODY000000"});
    EXPECT_TRUE(lookup.contacts().empty());
    EXPECT_EQ(lookup.current(), "");
    EXPECT_EQ(lookup.position(), -1);
    lookup.step(1);
    lookup.show_all();
    EXPECT_EQ(lookup.current(), amber);
}

TEST_F(LookupTest, GoesToAContactOutsideAndStaysAsItIs) {
    lookup.show({birch, cedar});
    EXPECT_TRUE(lookup.go_to(amber));
    EXPECT_EQ(lookup.current(), amber);
    EXPECT_EQ(lookup.position(), -1);
    EXPECT_EQ(lookup.contacts(), (Ids{birch, cedar}));
}

TEST_F(LookupTest, DoesntGoToAContactThatThereIsNot) {
    EXPECT_FALSE(lookup.go_to("NOBODY000000"));
    EXPECT_EQ(lookup.current(), amber);
    EXPECT_EQ(shown, Ids{});
}

TEST_F(LookupTest, StepsAlongAndStopsAtItsEnds) {
    lookup.step(1);
    lookup.step(1);
    EXPECT_EQ(lookup.current(), cedar);
    lookup.step(9);
    EXPECT_EQ(lookup.current(), dahlia);
    lookup.step(-9);
    EXPECT_EQ(lookup.current(), amber);
    EXPECT_EQ(shown, (Ids{birch, cedar, dahlia, amber}));
}

TEST_F(LookupTest, FindsContactsByAPartOfAFieldInAnyCase) {
    EXPECT_EQ(lookup.matching("WORKS", {25}), Ids{amber});
    EXPECT_EQ(lookup.matching("r", {25}), (Ids{amber, birch, cedar, dahlia}));
    EXPECT_EQ(lookup.matching("reed", {25}), Ids{});
    EXPECT_EQ(lookup.matching("reed", {25, 26}), Ids{birch});
}

TEST_F(LookupTest, WhatRefusesToLeaveKeepsTheContactAndTheLookup) {
    lookup.before_leaving = [] { throw values::Failure(values::FailureNumber::automation, "no"); };
    EXPECT_THROW(lookup.go_to(birch), values::Failure);
    EXPECT_THROW(lookup.show({birch}), values::Failure);
    EXPECT_THROW(lookup.step(1), values::Failure);
    EXPECT_EQ(lookup.current(), amber);
    EXPECT_EQ(lookup.contacts(), (Ids{amber, birch, cedar, dahlia}));
    EXPECT_EQ(shown, Ids{});
}

TEST_F(LookupTest, TakesInAContactThatWasAddedAndShowsIt) {
    lookup.show({birch});
    const auto elm = contact(database.store(), "Elm House", "Vera Upton");
    database.refresh();
    lookup.include(elm);
    EXPECT_EQ(lookup.contacts(), (Ids{birch, elm}));
    EXPECT_EQ(lookup.current(), elm);
}

TEST_F(LookupTest, AContactThatAnotherProcessAddsJoinsAllContactsOnly) {
    contact(*elsewhere(), "Elm House", "Vera Upton");
    database.refresh();
    EXPECT_EQ(lookup.contacts().size(), 5u);
    lookup.show({birch});
    contact(*elsewhere(), "Fir Farm", "Tom Ives");
    database.refresh();
    EXPECT_EQ(lookup.contacts(), Ids{birch});
}

TEST_F(LookupTest, IsEmptyWhenTheDatabaseCloses) {
    database.close();
    EXPECT_TRUE(lookup.contacts().empty());
    EXPECT_EQ(lookup.current(), "");
}

TEST_F(LookupTest, AnotherDatabaseBeginsWithAllItsContacts) {
    lookup.show({birch});
    database.open(path);
    EXPECT_EQ(lookup.contacts().size(), 4u);
}
