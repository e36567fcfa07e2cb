#include "desk/import/activity_text.h"

#include <gtest/gtest.h>

namespace {

using namespace importing;

TEST(SingleLine, TurnsControlCharactersIntoOneBlank) {
    EXPECT_EQ(single_line("\tone\r\n\x07two\x7F "), "one two");
}

TEST(SingleLine, CountsCharactersNotBytes) {
    std::string text;
    for (int i = 0; i < 300; ++i)
        text += "ü";
    EXPECT_EQ(single_line(text).size(), 510u);
}

TEST(SeveralLines, KeepsLineEndsAndDropsOtherControlCharacters) {
    EXPECT_EQ(several_lines("one\r\ntwo\rthree\n\x01 four\n\n"), "one\ntwo\nthree\n four");
}

TEST(BeginsAsCall, WantsTheWholeWord) {
    EXPECT_TRUE(begins_as_call("Call Bob"));
    EXPECT_TRUE(begins_as_call(" CALL: Bob"));
    EXPECT_TRUE(begins_as_call("call"));
    EXPECT_FALSE(begins_as_call("Calligraphy"));
    EXPECT_FALSE(begins_as_call("Recall"));
}

TEST(NamesCall, WantsTheWholeWord) {
    EXPECT_TRUE(names_call("Work,Phone"));
    EXPECT_TRUE(names_call("Phone call"));
    EXPECT_FALSE(names_call("Technically,Phonebook"));
    EXPECT_FALSE(names_call(""));
}

} // namespace
