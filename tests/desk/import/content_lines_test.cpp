#include "desk/import/content_lines.h"

#include "core/values/failure.h"

#include <gtest/gtest.h>

namespace {

using namespace importing;

std::string refusal_of(std::string_view bytes) {
    try {
        content_of(bytes);
    } catch (const values::Failure& failure) {
        return failure.description();
    }
    return "";
}

TEST(ContentOf, NestsComponentsAndKeepsLineNumbers) {
    const auto whole = content_of("\nbegin:a\nX:1\n 2\nBEGIN:B\nY:3\nend:b\nZ:4\nEND:A\n").components;
    ASSERT_EQ(whole.size(), 1u);
    EXPECT_EQ(whole[0].name, "A");
    EXPECT_EQ(whole[0].line, 2);
    ASSERT_EQ(whole[0].lines.size(), 2u);
    EXPECT_EQ(whole[0].lines[0].text, "X:12");
    EXPECT_EQ(whole[0].lines[1].number, 8);
    EXPECT_EQ(whole[0].parts.at(0).lines.at(0).text, "Y:3");
}

TEST(ContentOf, SaysWhatIsWrong) {
    EXPECT_EQ(refusal_of(std::string_view("BEGIN:A\0", 8)), "it is no text file");
    EXPECT_EQ(refusal_of("hello"), "it has something that is no calendar and no address card in line 1");
    EXPECT_EQ(refusal_of("END:A"), "it has something that is no calendar and no address card in line 1");
    EXPECT_EQ(refusal_of("BEGIN:A\nBEGIN:B\nEND:A"), "the end of B is missing before the one in line 3");
    EXPECT_EQ(refusal_of("BEGIN:A\nX:1"), "it seems cut off: the entry that begins in line 1 has no end");
}

TEST(ContentOf, TellsOfLinesThatStandInNoComponent) {
    const Content content = content_of("X:0\nBEGIN:A\nX:1\nEND:A\nEND:A\nhello");
    EXPECT_EQ(content.components.size(), 1u);
    EXPECT_EQ(content.stray_lines, (std::vector<int>{1, 5, 6}));
}

TEST(ContentOf, OneBrokenByteLeavesTheOtherLinesAndCharactersAsTheyAre) {
    const Content content = content_of("BEGIN:A\nX:Größe\nY:Größe \xE9 Zoë\nEND:A");
    ASSERT_EQ(content.components.size(), 1u);
    EXPECT_EQ(content.components[0].lines.at(0).text, "X:Größe");
    EXPECT_EQ(content.components[0].lines.at(1).text, "Y:Größe é Zoë");
    EXPECT_EQ(content.mended_lines, 1u);
}

TEST(Readable, ReadsWhatIsNoUtf8AsWindows1252) {
    EXPECT_EQ(readable("plain, Zoë, €, 😀"), "plain, Zoë, €, 😀");
    EXPECT_EQ(readable("Gr\xF6\xDF"
                       "e 5 \x80"),
              "Größe 5 €");
    EXPECT_EQ(readable("€\xE2\x82"), "€â‚");
    EXPECT_EQ(readable(""), "");
}

TEST(ContentOf, RefusesEndlessNesting) {
    std::string bytes;
    for (int i = 0; i < 100000; ++i)
        bytes += "BEGIN:A\n";
    EXPECT_EQ(refusal_of(bytes), "its entries lie too deep in each other in line 17");
}

TEST(NameOf, LeavesGroupAndParametersAway) {
    EXPECT_EQ(name_of({1, "item1.email;TYPE=work:a@b"}), "EMAIL");
    EXPECT_EQ(name_of({1, "no colon"}), "");
}

TEST(ValueOf, PassesOverAColonInQuotes) {
    EXPECT_EQ(value_of({1, "ATTENDEE;CN=\"a:b\":mailto:c"}), "mailto:c");
    EXPECT_EQ(value_of({1, "no colon"}), "");
}

} // namespace
