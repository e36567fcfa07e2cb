#include "desk/windows/contact_chooser.h"

#include "desk/windows/record_table.h"
#include "desk_fixture.h"

#include <QPushButton>

using namespace windows;

namespace {

class ContactChooserTest : public DeskTest {
protected:
    ContactChooserTest() {
        database.open(path);
        chooser.show_contacts({birch}, database.directory());
        chooser.show();
    }
    void add(const std::string& id) {
        with_dialogs({[&](QWidget& dialog) {
                         auto* table = child<RecordTable>(dialog, "contact_table");
                         table->select(id);
                         QTest::keyClick(table, Qt::Key_Return);
                     }},
                     [&] { click(child<QPushButton>(chooser, "add_contacts_button")); });
    }
    ContactChooser chooser;
};

} // namespace

TEST_F(ContactChooserTest, NamesItsContacts) {
    EXPECT_EQ(child<QListWidget>(chooser, "contacts_list")->item(0)->text(), "Yann Reed");
}

TEST_F(ContactChooserTest, AddsBehindThoseThatAreThereAndNobodyTwice) {
    add(amber);
    add(birch);
    EXPECT_EQ(chooser.contacts(), (std::vector{birch, amber}));
}

TEST_F(ContactChooserTest, RemovesTheOneThatIsChosen) {
    add(amber);
    auto* remove = child<QPushButton>(chooser, "remove_contact_button");
    EXPECT_FALSE(remove->isEnabled());
    child<QListWidget>(chooser, "contacts_list")->setCurrentRow(0);
    click(remove);
    EXPECT_EQ(chooser.contacts(), std::vector{amber});
}
