#include "desk/windows/groups_view.h"

#include "desk/windows/record_table.h"
#include "desk_fixture.h"

#include <QInputDialog>
#include <QLineEdit>
#include <QPushButton>

using namespace windows;

namespace {

class GroupsViewTest : public DeskTest {
protected:
    GroupsViewTest() : lookup(database) {
        database.open(path);
        view = std::make_unique<GroupsView>(database, lookup);
        view->resize(900, 400);
        view->show();
    }
    RecordTable* groups() { return child<RecordTable>(*view, "group_table"); }
    RecordTable* members() { return child<RecordTable>(*view, "member_table"); }
    QPushButton* button(const char* name) { return child<QPushButton>(*view, name); }
    static void answer_name(QWidget& dialog, const char* name) {
        auto* line = child<QLineEdit>(dialog, "");
        line->selectAll();
        QTest::keyClicks(line, name);
        QTest::keyClick(line, Qt::Key_Return);
    }

    Lookup lookup;
    std::unique_ptr<GroupsView> view;
};

} // namespace

TEST_F(GroupsViewTest, ShowsTheFirstGroupWithItsContacts) {
    EXPECT_EQ(groups()->current_id(), friends);
    ASSERT_EQ(members()->row_count(), 2);
    EXPECT_EQ(members()->id_at(0), birch);
    EXPECT_EQ(members()->id_at(1), cedar);
}

TEST_F(GroupsViewTest, AnotherGroupShowsItsOwn) {
    groups()->select(suppliers);
    EXPECT_EQ(members()->row_count(), 0);
    EXPECT_FALSE(button("remove_member_button")->isEnabled());
}

TEST_F(GroupsViewTest, MakesAGroupOfTheNameThatIsTyped) {
    with_dialogs({[](QWidget& dialog) { answer_name(dialog, "Partners"); }},
                 [&] { click(button("new_group_button")); });
    EXPECT_EQ(elsewhere()->groups().size(), 3u);
    EXPECT_EQ(database.directory().group_name(groups()->current_id()), "Partners");
}

TEST_F(GroupsViewTest, RenamesTheGroup) {
    with_dialogs({[](QWidget& dialog) { answer_name(dialog, "Old friends"); }},
                 [&] { click(button("rename_group_button")); });
    EXPECT_EQ(elsewhere()->group(friends)->name, "Old friends");
    EXPECT_EQ(elsewhere()->group(friends)->contacts.size(), 2u);
}

TEST_F(GroupsViewTest, ANameThatStaysWritesNothing) {
    const auto before = database.store().revision();
    with_dialogs({[](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); }},
                 [&] { click(button("rename_group_button")); });
    EXPECT_EQ(elsewhere()->revision(), before);
}

TEST_F(GroupsViewTest, AddsThePickedContacts) {
    with_dialogs({[](QWidget& dialog) {
                     type(child<QLineEdit>(dialog, "search_edit"), "amber");
                     auto* table = child<RecordTable>(dialog, "contact_table");
                     ASSERT_EQ(table->row_count(), 1);
                     table->select(table->id_at(0));
                     QTest::keyClick(table, Qt::Key_Return);
                 }},
                 [&] { click(button("add_members_button")); });
    EXPECT_EQ(members()->row_count(), 3);
    EXPECT_EQ(elsewhere()->group(friends)->contacts.size(), 3u);
}

TEST_F(GroupsViewTest, RemovesTheChosenContact) {
    members()->select(cedar);
    click(button("remove_member_button"));
    EXPECT_EQ(elsewhere()->group(friends)->contacts, std::vector{birch});
    EXPECT_EQ(members()->row_count(), 1);
}

TEST_F(GroupsViewTest, LooksItsContactsUp) {
    bool is_told = false;
    QObject::connect(view.get(), &GroupsView::looked_up, [&] { is_told = true; });
    click(button("lookup_members_button"));
    EXPECT_EQ(lookup.contacts(), (std::vector{birch, cedar}));
    EXPECT_TRUE(is_told);
}
