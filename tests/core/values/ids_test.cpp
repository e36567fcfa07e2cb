#include "core/values/ids.h"

#include <gtest/gtest.h>

using values::ids_in;
using values::whole_id;

TEST(WholeId, GetsItsTrailingBlankBack) {
    EXPECT_EQ(whole_id("ABCDEFGHIJK"), "ABCDEFGHIJK ");
    EXPECT_EQ(whole_id("ABCDEFGHIJKL"), "ABCDEFGHIJKL");
    EXPECT_EQ(whole_id("short"), "short");
    EXPECT_EQ(whole_id(""), "");
}

TEST(IdsIn, CutsTheListIntoPiecesOf12) {
    EXPECT_EQ(ids_in("ABCDEFGHIJK MNOPQRSTUVWX"), (std::vector<std::string>{"ABCDEFGHIJK ", "MNOPQRSTUVWX"}));
    EXPECT_EQ(ids_in("ABCDEFGHIJKLrest"), std::vector<std::string>{"ABCDEFGHIJKL"});
    EXPECT_TRUE(ids_in("").empty());
    EXPECT_TRUE(ids_in("ABCDEFGHIJK").empty());
}

TEST(IdsIn, CountsCharactersOfIdsInOtherScripts) {
    EXPECT_EQ(ids_in("ÄÄÄÄÄÄÄÄÄÄÄÄBBBBBBBBBBBB"), (std::vector<std::string>{"ÄÄÄÄÄÄÄÄÄÄÄÄ", "BBBBBBBBBBBB"}));
}
