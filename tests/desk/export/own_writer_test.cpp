#include "desk/export/own_writer.h"

#include "core/values/text.h"
#include "desk/import/own_lines.h"

#include <gtest/gtest.h>

using namespace exporting;

TEST(OwnLine, EscapesItsParts) {
    EXPECT_EQ(own_line("X-ORVANTA-NOTE", {"1", "a|b, 100 %\nc"}), "X-ORVANTA-NOTE:1|a%7Cb%2C 100 %25%0Ac\r\n");
}

TEST(KnownLine, EscapesTextsAsTheFormatsDo) {
    EXPECT_EQ(known_line("ADR", {"", "a;b", "c,d\\", "e\nf"}), "ADR:;a\\;b;c\\,d\\\\;e\\nf\r\n");
}

TEST(KnownLine, IsFoldedBetweenCharacters) {
    std::string text;
    for (int i = 0; i < 200; ++i)
        text += "€";
    const std::string line = known_line("NOTE", {text});
    for (const std::string& piece : values::split(line, "\r\n")) {
        EXPECT_LE(piece.size(), 75u);
        EXPECT_TRUE(values::is_utf8(piece)) << piece;
    }
    EXPECT_EQ(values::replaced(line, "\r\n ", ""), "NOTE:" + text + "\r\n");
}

TEST(WithOwnLines, PutsThemBeforeTheEndWithAnActivitysNames) {
    const store::Activity activity{.type = store::ActivityType::call,
                                   .regarding = "Plans",
                                   .start = values::DateTime::from_seconds(60),
                                   .end = values::DateTime::from_seconds(120),
                                   .duration = 1};
    const std::string text = with_own_lines("BEGIN:VEVENT\r\nSUMMARY:Plans\r\nEND:VEVENT\r\n", activity,
                                            {.user = "Anna", .contacts = {{.uid = "c", .name = "Zoe"}}});
    EXPECT_TRUE(text.starts_with("BEGIN:VEVENT\r\nSUMMARY:Plans\r\n"
                                 "X-ORVANTA-TYPE:CALL\r\n"
                                 "X-ORVANTA-TIMES:60|120|1\r\n"
                                 "X-ORVANTA-REGARDING:Plans\r\n" // without a start nothing is read back
                                 "X-ORVANTA-CLEARED:0\r\n"
                                 "X-ORVANTA-USER:Anna\r\n"
                                 "X-ORVANTA-CONTACT:c|Zoe||\r\n"
                                 "X-ORVANTA-RULE-CHECK:"))
        << text;
    EXPECT_TRUE(text.ends_with("\r\nEND:VEVENT\r\n"));
    EXPECT_TRUE(importing::own::is_untouched(importing::content_of(text).components.at(0)));
}
