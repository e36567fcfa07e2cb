#include "core/settings/ini_document.h"

#include "core/values/text.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

using settings::IniDocument;
using support::content_of;
using Names = std::vector<std::string>;

namespace {

std::string golden(const std::string& name) { return content_of(std::string(TEST_DATA "/profile/") + name); }

// The value as GetKeyValue's default would show it: an empty value counts as absent.
std::string value_or_default(const IniDocument& document, std::string_view section, std::string_view key) {
    const std::string value = document.value(section, key).value_or("");
    return value.empty() ? "DEF" : value;
}

std::string after_set(std::string_view bytes, std::string_view section, std::string_view key,
                      std::string_view value) {
    IniDocument document(bytes);
    EXPECT_TRUE(document.set(section, key, value));
    return document.bytes();
}

} // namespace

TEST(IniDocument, ReadsAHandEditedFileAsThePlatformDoes) {
    const IniDocument document(golden("hand_edited.ini"));
    const auto lines = values::split(golden("hand_edited.expected"), "\n");
    EXPECT_GT(lines.size(), 50u);
    for (const std::string& line : lines) {
        if (line.empty())
            continue;
        const auto parts = values::split(line, "\t");
        ASSERT_EQ(parts.size(), 3u) << line;
        EXPECT_EQ(value_or_default(document, parts[0], parts[1]), parts[2]) << line;
    }
}

TEST(IniDocument, ListsKeysInFileOrder) {
    const IniDocument document(golden("hand_edited.ini"));
    EXPECT_EQ(document.keys("signs"), (Names{"d", "e", "c", "#e", "//h", "f;g", "i", "after comments"}));
    EXPECT_EQ(document.keys("Twice"), (Names{"key", "KEY"}));
    EXPECT_EQ(document.keys("l"), (Names{"in l", "below h", "after blank lines"}));
    EXPECT_EQ(document.keys("nothing"), Names{});
    EXPECT_EQ(document.keys("missing"), Names{});
}

TEST(IniDocument, ReadsEveryLineEndAndEndsALineAtANul) {
    const IniDocument document(golden("line_ends.ini"));
    EXPECT_EQ(document.keys("s"), (Names{"a", "b", "c", "d", "f"}));
    EXPECT_EQ(document.value("s", "b"), "2");
    EXPECT_EQ(document.value("s", "d"), "4");
    EXPECT_EQ(document.value("s", "f"), "6");
}

TEST(IniDocument, ReadsEveryEncoding) {
    for (const char* name : {"windows_1252.ini", "utf8_marked.ini", "utf16le.ini"}) {
        const IniDocument document(golden(name));
        EXPECT_EQ(document.value("Größe", "Preis"), "5 €") << name;
        EXPECT_EQ(document.value("größe", "name"), "Müller") << name;
    }
}

TEST(IniDocument, WritesInTheFilesEncodingAndLineEnds) {
    const std::string added = "Ort=Köln\r\n";
    EXPECT_EQ(after_set(golden("utf8_marked.ini"), "Größe", "Ort", "Köln"), golden("utf8_marked.ini") + added);
    EXPECT_EQ(after_set(golden("windows_1252.ini"), "Größe", "Ort", "Köln"),
              golden("windows_1252.ini") + "Ort=K\xF6ln\r\n");
    std::string wide;
    for (const char letter : std::string("Ort=K\xF6ln\r\n"))
        wide.append(1, letter).append(1, '\0');
    EXPECT_EQ(after_set(golden("utf16le.ini"), "Größe", "Ort", "Köln"), golden("utf16le.ini") + wide);
}

TEST(IniDocument, AnUnknownCharacterMakesAFileOfWindows1252OneOfUtf8) {
    const IniDocument document(after_set(golden("windows_1252.ini"), "Größe", "Ort", "Łódź"));
    EXPECT_EQ(document.value("Größe", "Ort"), "Łódź");
    EXPECT_EQ(document.value("Größe", "Name"), "Müller");
}

TEST(IniDocument, AKeyThatIsThereIsReplacedInPlace) {
    EXPECT_EQ(after_set("[s]\n; c\na=1\n\n  B = 2 \t\nb=3\n", "S", "b", "new"),
              "[s]\n; c\na=1\n\n  B = new \t\nb=3\n");
    EXPECT_EQ(after_set("[s]\r\na=\"1\"\r\nb=2\r\n", "s", "a", "3"), "[s]\r\na=3\r\nb=2\r\n");
    EXPECT_EQ(after_set("[s]\na=\nb=2\n", "s", "a", "1"), "[s]\na=1\nb=2\n");
    EXPECT_EQ(after_set("[s]\na=1", "s", "a", "22"), "[s]\na=22");
    EXPECT_EQ(after_set(std::string("[s]\na=1\0x\n", 10), "s", "a", "2"), std::string("[s]\na=2\0x\n", 10));
}

TEST(IniDocument, ANewKeyGoesBehindTheSectionsLastKey) {
    EXPECT_EQ(after_set("[s]\na=1\n\n; about t\n[t]\nb=2\n", "s", "c", "3"),
              "[s]\na=1\nc=3\n\n; about t\n[t]\nb=2\n");
    EXPECT_EQ(after_set("[s]\n; empty\n\n[t]\n", "s", "c", "3"), "[s]\nc=3\n; empty\n\n[t]\n");
    EXPECT_EQ(after_set("[s]\na=1\n[S]\nb=2\n", "s", "b", "3"), "[s]\na=1\nb=3\n[S]\nb=2\n");
}

TEST(IniDocument, ANewSectionGoesToTheEnd) {
    EXPECT_EQ(after_set("", "s", "a", "1"), "[s]\na=1\n");
    EXPECT_EQ(after_set("[s]\r\na=1\r\n", " t ", " b ", "2"), "[s]\r\na=1\r\n[t]\r\nb=2\r\n");
}

TEST(IniDocument, AMissingLastLineEndIsAddedFirst) {
    EXPECT_EQ(after_set("[s]\r\na=1", "s", "b", "2"), "[s]\r\na=1\r\nb=2\r\n");
    EXPECT_EQ(after_set("[s]", "t", "b", "2"), "[s]\n[t]\nb=2\n");
}

TEST(IniDocument, WritesValuesAsGiven) {
    EXPECT_EQ(after_set("", "s", "a", ""), "[s]\na=\n");
    EXPECT_EQ(after_set("", "s", "a", "\"v\""), "[s]\na=\"v\"\n");
    EXPECT_EQ(IniDocument("[s]\na=\"v\"\n").value("s", "a"), "v");
    EXPECT_EQ(after_set("", "s", "a", "1=2;3]"), "[s]\na=1=2;3]\n");
}

TEST(IniDocument, TheSameValueChangesNothing) {
    EXPECT_EQ(after_set("[s]\n a =  1 \n", "s", "a", "1"), "[s]\n a =  1 \n");
    EXPECT_EQ(after_set("[s]\na=\n", "s", "a", ""), "[s]\na=\n");
}

TEST(IniDocument, RefusesWhatCouldNotBeReadBack) {
    IniDocument document("[s]\na=1\n");
    const std::string nul("x\0y", 3);
    for (const std::string& bad : {std::string("x\ny"), std::string("x\ry"), nul, std::string("x\xFF")}) {
        EXPECT_FALSE(document.set("s", "a", bad)) << bad;
        EXPECT_FALSE(document.set("s", bad, "1")) << bad;
        EXPECT_FALSE(document.set(bad, "a", "1")) << bad;
    }
    EXPECT_FALSE(document.set("x]y", "a", "1"));
    EXPECT_FALSE(document.set(" ", "a", "1"));
    EXPECT_FALSE(document.set("s", "\t", "1"));
    EXPECT_FALSE(document.set("s", "x=y", "1"));
    EXPECT_FALSE(document.set("s", ";x", "1"));
    EXPECT_FALSE(document.set("s", "[x", "1"));
    EXPECT_EQ(document.bytes(), "[s]\na=1\n");
}

TEST(IniDocument, ASectionIsRemovedWithItsKeysAndComments) {
    IniDocument document("; top\n[s]\n; c\na=1\n\n[t]\nb=2\n[S]\nc=3\n");
    EXPECT_TRUE(document.remove_section("S"));
    EXPECT_EQ(document.bytes(), "; top\n[t]\nb=2\n[S]\nc=3\n");
    EXPECT_EQ(document.value("s", "c"), "3");
    EXPECT_FALSE(document.remove_section("missing"));
}

TEST(IniDocument, RemovingTheOnlySectionLeavesAnEmptyFile) {
    IniDocument document("[s]\na=1\n");
    EXPECT_TRUE(document.remove_section("s"));
    EXPECT_EQ(document.bytes(), "");
}

TEST(IniDocument, AKeyIsRemovedAlone) {
    IniDocument document("[s]\n; c\na=1\n\nA=2\n");
    EXPECT_TRUE(document.remove_key("s", "a"));
    EXPECT_EQ(document.bytes(), "[s]\n; c\n\nA=2\n");
    EXPECT_TRUE(document.remove_key("s", "a"));
    EXPECT_EQ(document.bytes(), "[s]\n; c\n\n");
    EXPECT_FALSE(document.remove_key("s", "a"));
    EXPECT_FALSE(document.remove_key("t", "a"));
}

TEST(IniDocument, SurvivesAnyBytesAndLosesNoneOfThem) {
    std::string bytes;
    unsigned state = 7;
    for (int i = 0; i < 200'000; ++i) {
        state = state * 1664525 + 1013904223;
        bytes += (state >> 24) % 5 == 0 ? "[]=\n\0\r;"[(state >> 16) % 7] : static_cast<char>(state >> 12);
    }
    IniDocument document(bytes);
    EXPECT_EQ(document.bytes(), bytes);
    ASSERT_TRUE(document.set("a new section", "key", "value"));
    EXPECT_EQ(document.bytes().substr(0, bytes.size()), bytes);
    EXPECT_EQ(IniDocument(document.bytes()).value("a new section", "key"), "value");
}
