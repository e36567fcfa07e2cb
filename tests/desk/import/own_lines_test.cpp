#include "desk/import/own_lines.h"

#include <gtest/gtest.h>

namespace {

using namespace importing;

Component component(const std::string& text) { return content_of(text).components.at(0); }

TEST(OwnLines, EscapeAnyBytesAndGiveThemBack) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    for (const std::string& bytes :
         {std::string(), all, std::string("Zoë; a, b\\n\nc\\x41"), std::string("\\"), std::string(" x ")}) {
        const std::string text = own::escaped(bytes);
        EXPECT_EQ(own::plain(text), bytes);
        EXPECT_EQ(text.find_first_of("\r\n\\;,|"), text.npos);
        EXPECT_EQ(own::Parts(text + "|2").text(0), bytes);
        EXPECT_EQ(own::Parts(text + "|2").number(1), 2);
    }
}

TEST(OwnLines, PartsThatAreMissingAreEmpty) {
    const own::Parts parts("a||12x");
    EXPECT_EQ(parts.size(), 3u);
    EXPECT_EQ(parts.text(1), "");
    EXPECT_EQ(parts.text(7), "");
    EXPECT_EQ(parts.number(1), std::nullopt);
    EXPECT_EQ(parts.number(2), std::nullopt);
    EXPECT_EQ(own::Parts("99999999999999999999").number(0), std::nullopt);
}

TEST(OwnLines, TheCheckHoldsInAnyOrderAndFailsAtAnyChange) {
    const std::string head = "BEGIN:VEVENT\nUID:1\nSUMMARY:A\nX-ORVANTA-TYPE:CALL\n";
    const std::string check = own::check_of(component(head + "END:VEVENT"));
    const auto holds = [&](const std::string& lines) {
        return own::is_untouched(
            component("BEGIN:VEVENT\n" + lines + "X-ORVANTA-CHECK:" + check + "\nEND:VEVENT"));
    };
    EXPECT_TRUE(holds("UID:1\nSUMMARY:A\n"));
    EXPECT_TRUE(holds("SUMMARY:A\nDTSTAMP:20240311T090000Z\nUID:1\nX-ORVANTA-TYPE:MEETING\n"));
    EXPECT_FALSE(holds("UID:1\nSUMMARY:B\n"));
    EXPECT_FALSE(holds("UID:1\n"));
    EXPECT_FALSE(holds("UID:1\nSUMMARY:A\nLOCATION:C\n"));
    EXPECT_FALSE(holds("UID:1\nSUMMARY:A\nBEGIN:VALARM\nEND:VALARM\n"));
}

TEST(OwnLines, TheRulesCheckIsThatOfItsDatesAlone) {
    const std::string rule = "DTSTART:20240311T090000\nRRULE:FREQ=DAILY;INTERVAL=2\n";
    const std::string check = own::rule_check_of(component("BEGIN:VEVENT\n" + rule + "END:VEVENT"));
    const auto holds = [&](const std::string& lines) {
        return own::has_untouched_rule(
            component("BEGIN:VEVENT\n" + lines + "X-ORVANTA-RULE-CHECK:" + check + "\nEND:VEVENT"));
    };
    EXPECT_TRUE(holds("SUMMARY:A\n" + rule));
    EXPECT_TRUE(holds("RRULE:INTERVAL=2;FREQ=DAILY\nDTSTART:20240311T090000\n"));
    EXPECT_FALSE(holds("RRULE:FREQ=DAILY;INTERVAL=3\nDTSTART:20240311T090000\n"));
    EXPECT_FALSE(holds(rule + "EXDATE:20240313T090000\n"));
}

TEST(OwnLines, ARecordsNameLeadsBackToItInItsOwnDatabaseAlone) {
    const std::string uid = own::uid_of("A0000000001 ", "00000000000000ff");
    EXPECT_EQ(uid, "A0000000001.00000000000000ff@contact-desk");
    EXPECT_EQ(own::id_of(uid, "00000000000000ff"), "A0000000001 ");
    EXPECT_EQ(own::id_of(uid, "00000000000000fe"), std::nullopt);
    EXPECT_EQ(own::id_of("A0000000001@example.org", "00000000000000ff"), std::nullopt);
}

} // namespace
