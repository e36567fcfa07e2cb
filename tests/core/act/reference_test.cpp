#include "core/act/reference.h"

#include <gtest/gtest.h>

namespace {

struct Thing {
    explicit Thing(int n) : number(n) {}
    ~Thing() { ++gone; }
    int number;
    static inline int gone = 0;
};

TEST(Reference, FailsWith91WhileItIsUnset) {
    const act::Reference<Thing> thing;
    EXPECT_FALSE(thing);
    try {
        (void)thing->number;
        FAIL() << "no failure";
    } catch (const values::Failure& failure) {
        EXPECT_EQ(failure.number(), 91);
    }
}

TEST(Reference, OwnsWhatItIsGivenAndLetsTheFormerOneGo) {
    Thing::gone = 0;
    act::Reference<Thing> thing;
    thing = std::make_unique<Thing>(1);
    thing = std::make_unique<Thing>(2);
    EXPECT_EQ(Thing::gone, 1);
    EXPECT_EQ(thing->number, 2);
    thing.release();
    EXPECT_EQ(Thing::gone, 2);
    EXPECT_FALSE(thing);
}

TEST(Reference, LeavesAnothersObjectAlive) {
    Thing::gone = 0;
    Thing another(3);
    act::Reference<Thing> thing;
    thing = another;
    EXPECT_EQ(&*thing, &another);
    thing.release();
    EXPECT_EQ(Thing::gone, 0);
}

} // namespace
