#include "core/values/text.h"

#include <gtest/gtest.h>

using namespace values;
using Pieces = std::vector<std::string>;

TEST(Trimmed, TakesBlanksOffBothEnds) {
    EXPECT_EQ(trimmed("  a b  "), "a b");
    EXPECT_EQ(trimmed("a"), "a");
    EXPECT_EQ(trimmed("   "), "");
    EXPECT_EQ(trimmed(""), "");
    EXPECT_EQ(trimmed("\ta\n"), "\ta\n");
}

TEST(Split, GivesThePiecesBetweenSeparators) {
    EXPECT_EQ(split("a,b,,c", ","), (Pieces{"a", "b", "", "c"}));
    EXPECT_EQ(split(",a,", ","), (Pieces{"", "a", ""}));
    EXPECT_EQ(split("a", ","), Pieces{"a"});
    EXPECT_EQ(split("", ","), Pieces{});
    EXPECT_EQ(split("a::b", "::"), (Pieces{"a", "b"}));
    EXPECT_EQ(split("ab", ""), Pieces{"ab"});
}

TEST(Replaced, ReplacesEveryOccurrence) {
    EXPECT_EQ(replaced("a-b-c", "-", "+"), "a+b+c");
    EXPECT_EQ(replaced("aaa", "aa", "b"), "ba");
    EXPECT_EQ(replaced("aa", "a", "aa"), "aaaa");
    EXPECT_EQ(replaced("abc", "", "x"), "abc");
    EXPECT_EQ(replaced("abc", "b", ""), "ac");
}

TEST(Lower, KnowsAsciiAndWesternEuropeanLetters) {
    EXPECT_EQ(lower("ABCxyz 1"), "abcxyz 1");
    EXPECT_EQ(lower("ÄÖÜÉÀÇØÞ×ß"), "äöüéàçøþ×ß");
    EXPECT_EQ(lower("ŁŹŸŒČŽĲŃ"), "łźÿœčžĳń");
    EXPECT_EQ(lower("łźÿœčžĳń"), "łźÿœčžĳń");
    EXPECT_EQ(lower("A\xFF\xC3"), "a\xFF\xC3");
}

TEST(EqualIgnoringCase, ComparesWholeTexts) {
    EXPECT_TRUE(equal_ignoring_case("Müller", "MÜLLER"));
    EXPECT_FALSE(equal_ignoring_case("Müller", "Muller"));
    EXPECT_FALSE(equal_ignoring_case("a", "ab"));
    EXPECT_TRUE(equal_ignoring_case("", ""));
}

TEST(Length, CountsCharacters) {
    EXPECT_EQ(length("abc"), 3u);
    EXPECT_EQ(length("Zoë"), 3u);
    EXPECT_EQ(length("€😀"), 2u);
    EXPECT_EQ(length(""), 0u);
}

TEST(FirstCharacters, CutsBetweenCharacters) {
    EXPECT_EQ(first_characters("Zoë!", 3), "Zoë");
    EXPECT_EQ(first_characters("Zoë", 10), "Zoë");
    EXPECT_EQ(first_characters("Zoë", 0), "");
    EXPECT_EQ(first_characters("😀😀", 1), "😀");
}

TEST(IsUtf8, RefusesWhatIsNot) {
    EXPECT_TRUE(is_utf8(""));
    EXPECT_TRUE(is_utf8("plain, Zoë, €, 😀"));
    for (const char* bytes : {"\xE9", "\xC3", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF0\x80\x80\x80",
                              "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\x80", "a\xE2\x82", "\xC3(", "\xFF"})
        EXPECT_FALSE(is_utf8(bytes)) << bytes;
}

TEST(Windows1252, HasACharacterForEveryByteAndTheWayBack) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    const std::string text = utf8_from_windows_1252(bytes);
    EXPECT_TRUE(is_utf8(text));
    EXPECT_EQ(length(text), 256u);
    EXPECT_EQ(windows_1252_from_utf8(text), bytes);
    EXPECT_EQ(utf8_from_windows_1252("\x80 \x9F \xE9"), "€ Ÿ é");
}

TEST(Windows1252, IsAbsentForOtherCharacters) {
    EXPECT_FALSE(windows_1252_from_utf8("Łódź"));
    EXPECT_FALSE(windows_1252_from_utf8("😀"));
    EXPECT_FALSE(windows_1252_from_utf8("\xE9"));
}
