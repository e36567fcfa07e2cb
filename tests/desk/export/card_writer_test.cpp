#include "desk/export/card_writer.h"

#include "core/values/text.h"
#include "desk/store/contact_fields.h"

#include <gtest/gtest.h>

namespace {

namespace field = store::contact_field;

const std::string identity = "0123456789abcdef";

std::string card_of(const std::map<int, std::string>& fields) {
    const std::string text = exporting::card_text({.id = "C00000000001", .fields = fields}, {}, {}, identity);
    return text.substr(0, text.find("X-ORVANTA-RECORD"));
}

std::string card(const std::string& lines) {
    return "BEGIN:VCARD\r\nVERSION:3.0\r\nUID:C00000000001.0123456789abcdef@contact-desk\r\n" + lines;
}

} // namespace

TEST(CardText, TellsOtherProgramsWhatTheFormatHasAPlaceFor) {
    EXPECT_EQ(card_of({{field::name, "Zoe van Quinn"},
                       {field::company, "Amber; Works"},
                       {field::department, "Sales"},
                       {field::address, "Street 1"},
                       {field::city, "Town"},
                       {field::phone, "1"},
                       {field::mobile, "2"},
                       {field::e_mail, "zoe@amber.example"},
                       {field::birthday, "2001-02-03"}}),
              card("FN:Zoe van Quinn\r\n"
                   "N:Quinn;Zoe van;;;\r\n"
                   "ORG:Amber\\; Works;Sales\r\n"
                   "EMAIL;TYPE=INTERNET:zoe@amber.example\r\n"
                   "TEL;TYPE=WORK,VOICE:1\r\n"
                   "TEL;TYPE=CELL:2\r\n"
                   "ADR;TYPE=WORK:;;Street 1;Town;;;\r\n"
                   "BDAY:2001-02-03\r\n"));
}

TEST(CardText, KeepsForADeskWhatTheFormatLoses) {
    EXPECT_EQ(card_of({{field::company, " Amber"}, {field::status, "Customer"}, {field::birthday, "3 May"}}),
              card("FN:Amber\r\n"
                   "N:;;;;\r\n"
                   "ORG:Amber;\r\n"
                   "X-ORVANTA-FIELD:25|%20Amber\r\n"
                   "X-ORVANTA-FIELD:26|\r\n"
                   "X-ORVANTA-FIELD:34|Customer\r\n"
                   "X-ORVANTA-FIELD:53|3 May\r\n"));
}

TEST(CardText, TellsNotesAndGroupsToBoth) {
    const std::string text = exporting::card_text(
        {.id = "C00000000001", .fields = {{field::name, "Zoe"}}},
        {{.written = values::DateTime::from_seconds(60), .text = "Likes, tea"}}, {{"g", "Friends", 2}}, identity);
    EXPECT_TRUE(values::contains(text, "\r\nNOTE:Likes\\, tea\r\nCATEGORIES:Friends\r\n")) << text;
    EXPECT_TRUE(values::contains(text, "\r\nX-ORVANTA-GROUP:g|Friends|2\r\nX-ORVANTA-NOTE:60|Likes%2C tea\r\n"));
}
