#include "adapters/records/id_map.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <random>
#include <string>

using records::IdMap;
using store::Id;

TEST(IdMap, HoldsNothingAtFirst) {
    IdMap<int> map;
    EXPECT_EQ(map.size(), 0u);
    EXPECT_FALSE(map.contains(Id("A00000000001")));
    EXPECT_EQ(map.find(Id()), nullptr);
    map.erase(Id("A00000000001"));
    EXPECT_EQ(map.size(), 0u);
}

TEST(IdMap, GivesAnEmptyValueWhereThereWasNone) {
    IdMap<int> map;
    EXPECT_EQ(map[Id("A00000000001")], 0);
    map[Id("A00000000001")] = 5;
    EXPECT_EQ(map[Id("A00000000001")], 5);
    EXPECT_EQ(map.size(), 1u);
}

TEST(IdMap, TakesTheEmptyIdAsAnyOther) {
    IdMap<int> map;
    map[Id()] = 7;
    ASSERT_TRUE(map.contains(Id()));
    EXPECT_EQ(*map.find(Id()), 7);
    map.erase(Id());
    EXPECT_FALSE(map.contains(Id()));
}

TEST(IdMap, HoldsNothingOnceItIsCleared) {
    IdMap<int> map;
    for (int number = 0; number < 1000; ++number)
        map[Id(std::to_string(number))] = number;
    map.clear();
    EXPECT_EQ(map.size(), 0u);
    EXPECT_FALSE(map.contains(Id("5")));
    map[Id("5")] = 6;
    EXPECT_EQ(*map.find(Id("5")), 6);
}

TEST(IdMap, LetsGoOfAValueThatIsErased) {
    IdMap<std::shared_ptr<int>> map;
    const auto value = std::make_shared<int>(1);
    map[Id("A00000000001")] = value;
    map.erase(Id("A00000000001"));
    EXPECT_EQ(value.use_count(), 1);
}

TEST(IdMap, HoldsAfterAnyChangesWhatAnOrderedMapHolds) {
    std::minstd_rand random(1);
    IdMap<unsigned> map;
    std::map<Id, unsigned> expected;
    for (unsigned change = 0; change < 40'000; ++change) {
        // First many come, then many go.
        const bool add = random() % 4 < (change < 20'000 ? 3u : 1u);
        const Id id("A" + std::to_string(random() % 3000));
        if (add) {
            map[id] = change;
            expected[id] = change;
        } else {
            map.erase(id);
            expected.erase(id);
        }
        ASSERT_EQ(map.size(), expected.size());
        const Id asked("A" + std::to_string(random() % 3000));
        const auto known = expected.find(asked);
        const unsigned* found = map.find(asked);
        ASSERT_EQ(found != nullptr, known != expected.end()) << asked.text() << " after " << change;
        if (found) {
            ASSERT_EQ(*found, known->second);
        }
    }
    for (const auto& [id, value] : expected) {
        ASSERT_TRUE(map.contains(id)) << id.text();
        EXPECT_EQ(*map.find(id), value);
    }
}
