#include "desk/windows/contact_picker.h"

#include "desk/windows/record_table.h"
#include "desk_fixture.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>

using namespace windows;

namespace {

class ContactPickerTest : public DeskTest {
protected:
    ContactPickerTest() {
        database.open(path);
        picker = std::make_unique<ContactPicker>(database.directory(), nullptr);
        picker->show();
        table = child<RecordTable>(*picker, "contact_table");
        ok = child<QDialogButtonBox>(*picker, "buttons")->button(QDialogButtonBox::Ok);
    }
    std::unique_ptr<ContactPicker> picker;
    RecordTable* table;
    QPushButton* ok;
};

} // namespace

TEST_F(ContactPickerTest, OffersAllContactsUntilSomethingIsTyped) {
    EXPECT_EQ(table->row_count(), 4);
    type(child<QLineEdit>(*picker, "search_edit"), "REED");
    ASSERT_EQ(table->row_count(), 1);
    EXPECT_EQ(table->id_at(0), birch);
}

TEST_F(ContactPickerTest, OkWaitsForAChoice) {
    EXPECT_FALSE(ok->isEnabled());
    table->select(cedar);
    EXPECT_TRUE(ok->isEnabled());
    type(child<QLineEdit>(*picker, "search_edit"), "amber");
    EXPECT_FALSE(ok->isEnabled());
}

TEST_F(ContactPickerTest, GivesWhatWasChosen) {
    table->select(cedar);
    table->selectionModel()->select(table->model()->index(0, 0),
                                    QItemSelectionModel::Select | QItemSelectionModel::Rows);
    click(ok);
    EXPECT_EQ(picker->result(), QDialog::Accepted);
    EXPECT_EQ(picker->picked(), (std::vector{amber, cedar}));
}
