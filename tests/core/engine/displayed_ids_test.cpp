#include "core/engine/displayed_ids.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace {

using engine::DisplayedIds;
using Ids = std::vector<std::string_view>;

TEST(DisplayedIds, IsAPlainTextOfIdsInTheOrderOfTheirComing) {
    DisplayedIds ids;
    ids.append("AAAAAAAAAAA1");
    ids.append("AAAAAAAAAAA ");
    EXPECT_EQ(ids.text(), "AAAAAAAAAAA1AAAAAAAAAAA ");
}

TEST(DisplayedIds, HoldsWhatWasAppendedAndNothingElse) {
    DisplayedIds ids;
    EXPECT_FALSE(ids.contains("AAAAAAAAAAA1"));
    ids.append("AAAAAAAAAAA1");
    EXPECT_TRUE(ids.contains("AAAAAAAAAAA1"));
    EXPECT_FALSE(ids.contains("AAAAAAAAAAA2"));
}

TEST(DisplayedIds, FindsAnIdAcrossTheBorderOfTwoOthers) {
    DisplayedIds ids;
    ids.append("111111222222");
    ids.append("333333444444");
    EXPECT_TRUE(ids.contains("222222333333"));
}

TEST(DisplayedIds, FindsTextsOfOtherLengths) {
    DisplayedIds ids;
    ids.append("111111222222");
    EXPECT_TRUE(ids.contains("1112"));
    EXPECT_FALSE(ids.contains("1113"));
}

TEST(DisplayedIds, RemovesEveryOccurrence) {
    DisplayedIds ids;
    ids.append("AAAAAAAAAAA1");
    ids.append("BBBBBBBBBBB2");
    ids.append("AAAAAAAAAAA1");
    ids.remove("AAAAAAAAAAA1");
    EXPECT_EQ(ids.text(), "BBBBBBBBBBB2");
    EXPECT_FALSE(ids.contains("AAAAAAAAAAA1"));
}

TEST(DisplayedIds, FindsWhatARemovalBringsTogether) {
    DisplayedIds ids;
    ids.append("111111222222");
    ids.append("XXXXXXXXXXXX");
    ids.append("333333444444");
    ids.remove("XXXXXXXXXXXX");
    EXPECT_TRUE(ids.contains("222222333333"));
}

TEST(DisplayedIds, GivesItsIdsOneByOneWhereNoneCanStandAcrossTwoOthers) {
    DisplayedIds ids;
    EXPECT_EQ(ids.one_by_one('A'), Ids{});
    ids.append("A00000000002");
    ids.append("A0000000001 ");
    EXPECT_EQ(ids.one_by_one('A'), (Ids{"A00000000002", "A0000000001 "}));
}

TEST(DisplayedIds, DoesNotGiveThemWhereOneMayStandAcrossTwoOthers) {
    for (const std::string second : {"AA0000000001", "A", "000000000001", "0A0000000001"}) {
        DisplayedIds ids;
        ids.append("A00000000002");
        ids.append(second);
        EXPECT_FALSE(ids.one_by_one('A')) << second;
    }
    DisplayedIds balanced;
    balanced.append("AA0000000001");
    balanced.append("000000000002");
    EXPECT_FALSE(balanced.one_by_one('A'));
}

TEST(DisplayedIds, IsEmptyAfterClear) {
    DisplayedIds ids;
    ids.append("AAAAAAAAAAA1");
    ids.clear();
    EXPECT_EQ(ids.text(), "");
    EXPECT_FALSE(ids.contains("AAAAAAAAAAA1"));
}

TEST(DisplayedIds, AnswersRightWithMoreIdsThanItBeganWithRoomFor) {
    const auto id = [](int number) { return "A" + std::to_string(10'000'000'000 + number); };
    DisplayedIds ids;
    for (int number = 0; number < 6000; number += 2) {
        EXPECT_FALSE(ids.contains(id(number)));
        ids.append(id(number));
    }
    for (int number = 0; number < 6000; ++number)
        ASSERT_EQ(ids.contains(id(number)), number % 2 == 0) << number;
    EXPECT_TRUE(ids.contains("000000A10000"));
    EXPECT_FALSE(ids.contains("000001A10000"));
}

// Few letters, so that ids often occur by chance across borders.
TEST(DisplayedIds, AnswersAsASearchOfTheTextWould) {
    std::mt19937 random(7);
    DisplayedIds ids;
    std::string text;
    int found = 0;
    for (int round = 0; round < 20'000; ++round) {
        std::string id;
        for (int at = 0; at < 12; ++at)
            id += "ab"[random() % 2];
        const bool occurs = text.find(id) != std::string::npos;
        ASSERT_EQ(ids.contains(id), occurs) << id << " in " << text;
        found += occurs;
        if (random() % 3 == 0) {
            ids.remove(id);
            for (std::size_t at = text.find(id); at != std::string::npos; at = text.find(id, at))
                text.erase(at, id.size());
        } else if (!occurs) {
            ids.append(id);
            text += id;
        }
        ASSERT_EQ(ids.text(), text);
        if (round % 1000 == 0) {
            ids.clear();
            text.clear();
        }
    }
    EXPECT_GT(found, 1000);
}

} // namespace
