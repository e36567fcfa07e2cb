#include "core/settings/text_encoding.h"

#include <gtest/gtest.h>
#include <string>

using settings::decoded;
using settings::encoded;
using settings::FileText;

namespace {

std::string bytes_of(std::initializer_list<int> codes) {
    std::string bytes;
    for (const int code : codes)
        bytes += static_cast<char>(code);
    return bytes;
}

} // namespace

TEST(Decoded, TellsTheThreeFormsApart) {
    EXPECT_EQ(decoded("Zo\xC3\xAB").form, FileText::Form::utf8);
    EXPECT_EQ(decoded("Zo\xEB").form, FileText::Form::windows_1252);
    EXPECT_EQ(decoded("Zo\xEB").text, "Zoë");
    const FileText wide = decoded(bytes_of({0xFF, 0xFE, 'Z', 0, 0xAC, 0x20, 0x3D, 0xD8, 0, 0xDE}));
    EXPECT_EQ(wide.form, FileText::Form::utf16le);
    EXPECT_EQ(wide.text, "Z€😀");
}

TEST(Decoded, SkipsTheByteOrderMark) {
    EXPECT_EQ(decoded("\xEF\xBB\xBF[s]").text, "[s]");
    EXPECT_TRUE(decoded("\xEF\xBB\xBF[s]").has_byte_order_mark);
    EXPECT_EQ(decoded("").text, "");
    EXPECT_EQ(decoded("\xFF\xFE").text, "");
}

TEST(Encoded, GivesTheBytesBackWhateverTheyWere) {
    std::string bytes;
    unsigned state = 1;
    for (int i = 0; i < 3000; ++i) {
        state = state * 1664525 + 1013904223;
        bytes += static_cast<char>(state >> 24);
        for (const std::string& start : {std::string(), std::string("\xFF\xFE"), std::string("\xEF\xBB\xBF")}) {
            const std::string file = start + bytes.substr(bytes.size() - std::min<std::size_t>(bytes.size(), 60));
            ASSERT_EQ(encoded(decoded(file)), file) << i;
        }
    }
}

TEST(Encoded, KeepsSurrogatesWithoutTheirHalfAndAnOddByte) {
    for (const std::string& bytes :
         {bytes_of({0xFF, 0xFE, 0x3D, 0xD8}), bytes_of({0xFF, 0xFE, 0, 0xDE, 0x3D, 0xD8, 'a', 0}),
          bytes_of({0xFF, 0xFE, 'a', 0, 'b'}), bytes_of({0xFF, 0xFE, 'b'})})
        EXPECT_EQ(encoded(decoded(bytes)), bytes);
}

TEST(Encoded, BecomesUtf8WhereWindows1252LacksACharacter) {
    FileText file = decoded("Zo\xEB");
    file.text += " Łódź";
    EXPECT_EQ(encoded(file), "Zoë Łódź");
}

TEST(Encoded, BecomesUtf8WhereItsBytesWouldBeTakenForThat) {
    FileText file = decoded("Zo\xEB");
    file.text = "Ã©";
    EXPECT_EQ(decoded(encoded(file)).text, "Ã©");
}
