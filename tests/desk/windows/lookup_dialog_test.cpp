#include "desk/windows/lookup_dialog.h"

#include "desk_fixture.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>

using namespace windows;

namespace {

class LookupDialogTest : public DeskTest {
protected:
    LookupDialogTest() : lookup(database) {
        database.open(path);
        dialog = std::make_unique<LookupDialog>(lookup, nullptr);
        dialog->show();
        line = child<QLineEdit>(*dialog, "text_edit");
    }
    Lookup lookup;
    std::unique_ptr<LookupDialog> dialog;
    QLineEdit* line;
};

} // namespace

TEST_F(LookupDialogTest, MakesTheContactsWithTheTextTheLookup) {
    type(line, " reed ");
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_EQ(lookup.contacts(), std::vector{birch});
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(LookupDialogTest, LooksInOneFieldAloneWhenItIsChosen) {
    QTest::keyClick(child<QComboBox>(*dialog, "where_box"), Qt::Key_End);
    type(line, "r");
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_EQ(lookup.contacts().size(), 4u);
    dialog->show();
    QTest::keyClick(child<QComboBox>(*dialog, "where_box"), Qt::Key_Up);
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_EQ(lookup.contacts(), (std::vector{birch, dahlia}));
}

TEST_F(LookupDialogTest, SaysSoWhenNobodyHasTheTextAndStaysOpen) {
    type(line, "Zebra");
    with_dialogs({[](QWidget& box) {
                     EXPECT_EQ(child<QLabel>(box, "qt_msgbox_label")->text(),
                               "No contact has \"Zebra\" in its name.");
                     QTest::keyClick(&box, Qt::Key_Return);
                 }},
                 [&] { QTest::keyClick(line, Qt::Key_Return); });
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(lookup.contacts().size(), 4u);
}

TEST_F(LookupDialogTest, WaitsForAText) {
    auto* ok = child<QDialogButtonBox>(*dialog, "buttons")->button(QDialogButtonBox::Ok);
    EXPECT_FALSE(ok->isEnabled());
    type(line, "  ");
    EXPECT_FALSE(ok->isEnabled());
    type(line, "a");
    EXPECT_TRUE(ok->isEnabled());
}
