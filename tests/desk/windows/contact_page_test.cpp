#include "desk/windows/contact_page.h"

#include "core/values/failure.h"
#include "desk/windows/activity_list.h"
#include "desk_fixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>

using namespace windows;

namespace {

class ContactPageTest : public DeskTest {
protected:
    ContactPageTest() : lookup(database) {
        database.open(path);
        page = std::make_unique<ContactPage>(database, lookup);
        page->resize(900, 650);
        page->show();
    }

    QLineEdit* name_line() { return child<QLineEdit>(*page, "field_26"); }
    std::string stored_name(const std::string& id) { return elsewhere()->contact(id)->fields[26]; }
    QString label(const char* name) { return child<QLabel>(*page, name)->text(); }

    Lookup lookup;
    std::unique_ptr<ContactPage> page;
};

} // namespace

TEST_F(ContactPageTest, ShowsTheFirstContactOfTheLookup) {
    EXPECT_EQ(name_line()->text(), "Zoe Quinn");
    EXPECT_EQ(label("name_label"), "Zoe Quinn, Amber Works");
    EXPECT_EQ(label("position_label"), "1 of 4");
    EXPECT_EQ(page->activities().row_count(), 2);
    EXPECT_FALSE(child<QPushButton>(*page, "save_button")->isEnabled());
}

TEST_F(ContactPageTest, SaveStoresWhatWasTyped) {
    retype(name_line(), "Zoe Quinn-Adams");
    EXPECT_EQ(label("name_label"), "Zoe Quinn-Adams, Amber Works");
    click(child<QPushButton>(*page, "save_button"));
    EXPECT_EQ(stored_name(amber), "Zoe Quinn-Adams");
    EXPECT_FALSE(child<QPushButton>(*page, "save_button")->isEnabled());
    EXPECT_EQ(database.directory().contact_name(amber), "Zoe Quinn-Adams");
}

TEST_F(ContactPageTest, SavesSeveralTimesInARow) {
    retype(name_line(), "One");
    page->save();
    retype(name_line(), "Two");
    page->save();
    EXPECT_EQ(stored_name(amber), "Two");
}

TEST_F(ContactPageTest, UndoBringsTheStoredTextsBack) {
    retype(name_line(), "Nobody");
    click(child<QPushButton>(*page, "undo_button"));
    EXPECT_EQ(name_line()->text(), "Zoe Quinn");
    EXPECT_FALSE(child<QPushButton>(*page, "save_button")->isEnabled());
}

TEST_F(ContactPageTest, GoingToTheNextContactStoresWhatWasTyped) {
    retype(name_line(), "Zoe Adams");
    click(child<QToolButton>(*page, "next_button"));
    EXPECT_EQ(stored_name(amber), "Zoe Adams");
    EXPECT_EQ(name_line()->text(), "Yann Reed");
    click(child<QToolButton>(*page, "previous_button"));
    EXPECT_EQ(name_line()->text(), "Zoe Adams");
    EXPECT_FALSE(child<QToolButton>(*page, "previous_button")->isEnabled());
}

TEST_F(ContactPageTest, TheNextContactIsTheOneThatStoodBehindEvenWhenTheOrderChanges) {
    retype(child<QLineEdit>(*page, "field_25"), "Zinnia Works");
    click(child<QToolButton>(*page, "next_button"));
    EXPECT_EQ(lookup.contacts().back(), amber);
    EXPECT_EQ(lookup.current(), birch);
    EXPECT_EQ(name_line()->text(), "Yann Reed");
}

TEST_F(ContactPageTest, WhatCantBeStoredIsToldAndStaysOnThePage) {
    retype(name_line(), "Mine");
    auto other = elsewhere();
    auto theirs = *other->contact(amber);
    theirs.fields[26] = "Theirs";
    other->update(theirs);
    with_dialogs({[](QWidget& box) {
                     EXPECT_EQ(box.windowTitle(), "Contact Desk");
                     QTest::keyClick(&box, Qt::Key_Return);
                 }},
                 [&] { click(child<QToolButton>(*page, "next_button")); });
    EXPECT_EQ(name_line()->text(), "Mine");
    EXPECT_EQ(lookup.current(), amber);
    EXPECT_EQ(stored_name(amber), "Theirs");
}

TEST_F(ContactPageTest, AChangeFromOutsideShowsUnlessSomethingIsBeingTyped) {
    auto other = elsewhere();
    auto theirs = *other->contact(amber);
    theirs.fields[26] = "Theirs";
    other->update(theirs);
    database.refresh();
    EXPECT_EQ(name_line()->text(), "Theirs");
    retype(name_line(), "Mine");
    contact(*other, "Elm House", "Vera Upton");
    database.refresh();
    EXPECT_EQ(name_line()->text(), "Mine");
    EXPECT_EQ(label("position_label"), "1 of 5");
}

TEST_F(ContactPageTest, ANewContactIsAddedByTheFirstSave) {
    page->begin_new();
    EXPECT_EQ(name_line()->text(), "");
    EXPECT_EQ(label("name_label"), "New contact");
    retype(child<QLineEdit>(*page, "field_25"), "Elm House");
    retype(name_line(), "Vera Upton");
    click(child<QPushButton>(*page, "save_button"));
    const auto id = lookup.current();
    EXPECT_EQ(stored_name(id), "Vera Upton");
    EXPECT_EQ(label("position_label"), "5 of 5");
    EXPECT_EQ(elsewhere()->contacts().size(), 5u);
}

TEST_F(ContactPageTest, ANewContactThatStaysEmptyIsntAdded) {
    page->begin_new();
    page->save();
    EXPECT_EQ(name_line()->text(), "Zoe Quinn");
    EXPECT_EQ(elsewhere()->contacts().size(), 4u);
}

TEST_F(ContactPageTest, GoingToTheContactOfBeforeEndsTheNewOne) {
    page->begin_new();
    EXPECT_EQ(page->activities().row_count(), 0);
    lookup.go_to(amber);
    EXPECT_EQ(name_line()->text(), "Zoe Quinn");
    EXPECT_EQ(page->activities().row_count(), 2);
}

TEST_F(ContactPageTest, ContactsOutsideTheLookupSaySo) {
    lookup.show({birch});
    lookup.go_to(cedar);
    EXPECT_EQ(name_line()->text(), "Xenia Stone");
    EXPECT_EQ(label("position_label"), "outside the lookup");
    EXPECT_FALSE(child<QToolButton>(*page, "previous_button")->isEnabled());
    EXPECT_TRUE(child<QToolButton>(*page, "next_button")->isEnabled());
}

TEST_F(ContactPageTest, ItsTabsGoByTheirNames) {
    EXPECT_EQ(page->active_tab(), "Activities");
    page->set_active_tab("Notes");
    EXPECT_EQ(page->active_tab(), "Notes");
    page->set_active_tab("Groups");
    EXPECT_EQ(child<QTabWidget>(*page, "tabs")->currentIndex(), 2);
    EXPECT_THROW(page->set_active_tab("History"), values::Failure);
    EXPECT_EQ(page->active_tab(), "Groups");
}

TEST_F(ContactPageTest, ANoteThatIsBeingWrittenGoesToItsOwnContact) {
    page->set_active_tab("Notes");
    type(child<QPlainTextEdit>(*page, "draft_edit"), "Call back");
    lookup.go_to(birch);
    ASSERT_EQ(elsewhere()->notes(amber).size(), 1u);
    EXPECT_EQ(elsewhere()->notes(amber)[0].text, "Call back");
    EXPECT_TRUE(elsewhere()->notes(birch).empty());
    EXPECT_EQ(child<QPlainTextEdit>(*page, "draft_edit")->toPlainText(), "");
}

TEST_F(ContactPageTest, IsEmptyAndLockedWithoutADatabase) {
    database.close();
    EXPECT_EQ(label("name_label"), "No contact");
    EXPECT_EQ(name_line()->text(), "");
    EXPECT_FALSE(name_line()->isEnabled());
    EXPECT_EQ(page->activities().row_count(), 0);
}
