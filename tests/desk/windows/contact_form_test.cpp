#include "desk/windows/contact_form.h"

#include "desk/store/contact_fields.h"
#include "desk_fixture.h"

using windows::ContactForm;

namespace {

class ContactFormTest : public testing::Test {
protected:
    ContactFormTest() : grid(new QGridLayout(&page)), form(*grid, &page) { page.show(); }

    QLineEdit* line(int number) { return page.findChild<QLineEdit*>(QString("field_%1").arg(number)); }

    QWidget page;
    QGridLayout* grid;
    ContactForm form;
};

} // namespace

TEST_F(ContactFormTest, HasALabelledLineForEveryFieldOfTheStore) {
    for (const auto& field : store::contact_fields()) {
        ASSERT_NE(line(field.number), nullptr) << field.label;
        EXPECT_EQ(line(field.number)->accessibleName().toStdString(), field.label);
    }
}

TEST_F(ContactFormTest, TypingChangesTheRecordAndTellsSo) {
    int edits = 0;
    QObject::connect(&form, &ContactForm::edited, [&] { ++edits; });
    form.show_contact({"CONTACT00001", {{25, "Amber Works"}, {26, "Zoe Quinn"}}, 7});
    EXPECT_FALSE(form.is_changed());
    line(25)->selectAll();
    QTest::keyClicks(line(25), "AW");
    EXPECT_TRUE(form.is_changed());
    EXPECT_EQ(edits, 2);
    const auto typed = form.contact();
    EXPECT_EQ(typed.fields, (std::map<int, std::string>{{25, "AW"}, {26, "Zoe Quinn"}}));
    EXPECT_EQ(typed.id, "CONTACT00001");
    EXPECT_EQ(typed.revision, 7);
}

TEST_F(ContactFormTest, AFieldThatIsEmptiedLeavesTheRecord) {
    form.show_contact({"CONTACT00001", {{25, "Amber Works"}, {26, "Zoe Quinn"}}, 7});
    line(26)->selectAll();
    QTest::keyClick(line(26), Qt::Key_Delete);
    EXPECT_EQ(form.contact().fields, (std::map<int, std::string>{{25, "Amber Works"}}));
}

TEST_F(ContactFormTest, WhatIsTypedAndTakenBackIsNoChange) {
    form.show_contact({"CONTACT00001", {{25, "Amber"}}, 7});
    QTest::keyClicks(line(25), "!");
    QTest::keyClick(line(25), Qt::Key_Backspace);
    EXPECT_FALSE(form.is_changed());
}

TEST_F(ContactFormTest, ATextOfSeveralLinesStaysWhereNobodyTyped) {
    form.show_contact({"CONTACT00001", {{25, "Amber\nWorks"}, {26, "Zoe"}}, 7});
    QTest::keyClicks(line(26), "X");
    EXPECT_EQ(form.contact().fields.at(25), "Amber\nWorks");
}
