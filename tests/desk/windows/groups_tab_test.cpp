#include "desk/windows/groups_tab.h"

#include "desk_fixture.h"

using windows::GroupsTab;

namespace {

class GroupsTabTest : public DeskTest {
protected:
    GroupsTabTest() : tab(database) {
        database.open(path);
        tab.resize(300, 200);
        tab.show();
        tab.show_contact(birch);
        list = child<QListWidget>(tab, "group_ticks");
    }
    void click_tick(int row) {
        const QRect line = list->visualItemRect(list->item(row));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, QPoint(line.left() + 10, line.center().y()));
        QTest::qWait(1);
    }
    bool is_ticked(int row) { return list->item(row)->checkState() == Qt::Checked; }

    GroupsTab tab;
    QListWidget* list;
};

} // namespace

TEST_F(GroupsTabTest, TicksTheGroupsOfTheContact) {
    ASSERT_EQ(list->count(), 2);
    EXPECT_EQ(list->item(0)->text(), "Friends");
    EXPECT_TRUE(is_ticked(0));
    EXPECT_FALSE(is_ticked(1));
    tab.show_contact(dahlia);
    EXPECT_FALSE(is_ticked(0));
}

TEST_F(GroupsTabTest, ATickPutsTheContactIntoTheGroupAtOnce) {
    click_tick(1);
    EXPECT_EQ(elsewhere()->group(suppliers)->contacts, std::vector{birch});
    EXPECT_TRUE(is_ticked(1));
    click_tick(1);
    EXPECT_TRUE(elsewhere()->group(suppliers)->contacts.empty());
    EXPECT_FALSE(is_ticked(1));
}

TEST_F(GroupsTabTest, WithoutAContactNothingCanBeTicked) {
    tab.show_contact({});
    click_tick(1);
    EXPECT_TRUE(elsewhere()->group(suppliers)->contacts.empty());
}
