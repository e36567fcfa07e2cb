#include "desk/windows/contact_list.h"

#include "core/values/failure.h"
#include "desk/windows/record_table.h"
#include "desk_fixture.h"

using namespace windows;

namespace {

class ContactListTest : public DeskTest {
protected:
    ContactListTest() : lookup(database) {
        database.open(path);
        list = std::make_unique<ContactList>(database, lookup);
        list->resize(800, 300);
        list->show();
        table = child<RecordTable>(*list, "contact_table");
    }
    void click_row(int row) {
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                          table->visualRect(table->model()->index(row, 0)).center());
    }

    Lookup lookup;
    std::unique_ptr<ContactList> list;
    RecordTable* table;
};

} // namespace

TEST_F(ContactListTest, ShowsTheLookupAndStandsOnItsContact) {
    EXPECT_EQ(table->row_count(), 4);
    EXPECT_EQ(table->current_id(), amber);
    lookup.show({cedar, birch});
    EXPECT_EQ(table->row_count(), 2);
    EXPECT_EQ(table->current_id(), birch);
}

TEST_F(ContactListTest, AClickGoesToTheContact) {
    click_row(2);
    EXPECT_EQ(lookup.current(), cedar);
}

TEST_F(ContactListTest, FollowsTheContactThatIsShownElsewhere) {
    lookup.go_to(dahlia);
    EXPECT_EQ(table->current_id(), dahlia);
}

TEST_F(ContactListTest, StaysWhereThePageCantLeave) {
    lookup.before_leaving = [] { throw values::Failure(values::FailureNumber::automation, "Not now."); };
    with_dialogs({[](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); }}, [&] { click_row(2); });
    EXPECT_EQ(lookup.current(), amber);
    EXPECT_EQ(table->current_id(), amber);
}

TEST_F(ContactListTest, EnterOpensTheContact) {
    std::string opened;
    QObject::connect(list.get(), &ContactList::opened, [&](const std::string& contact) { opened = contact; });
    table->select(birch);
    QTest::keyClick(table, Qt::Key_Return);
    EXPECT_EQ(opened, birch);
}
