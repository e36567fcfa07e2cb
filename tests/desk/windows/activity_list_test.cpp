#include "desk/windows/activity_list.h"

#include "core/values/failure.h"
#include "desk/windows/record_table.h"
#include "desk/windows/rows.h"
#include "desk_fixture.h"
#include "widgets/date_field.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

using namespace windows;
using Scope = ActivityList::Scope;

namespace {

class ActivityListTest : public DeskTest {
protected:
    ActivityListTest() { database.open(path); }

    static std::vector<std::string> ids(const ActivityList& list) {
        std::vector<std::string> result;
        for (int row = 0; row < list.row_count(); ++row)
            result.push_back(list.activity(row).id);
        return result;
    }

    static void show(ActivityList& list) {
        list.resize(900, 300);
        list.show();
    }

    static void choose(ActivityList& list, const char* box, const QString& text) {
        auto* combo = child<QComboBox>(list, box);
        combo->setFocus();
        while (combo->currentText() != text && combo->currentIndex() + 1 < combo->count())
            QTest::keyClick(combo, Qt::Key_Down);
        EXPECT_EQ(combo->currentText(), text);
    }

    using Ids = std::vector<std::string>;
};

} // namespace

TEST_F(ActivityListTest, ShowsTheContactsOpenActivities) {
    ActivityList list(database, Scope::contact);
    EXPECT_EQ(ids(list), Ids{});
    list.show_contact(amber);
    EXPECT_EQ(ids(list), (Ids{call, meeting}));
    EXPECT_EQ(child<QLabel>(list, "count_label")->text(), "2 activities");
    list.show_contact(cedar);
    EXPECT_EQ(ids(list), Ids{series});
    EXPECT_EQ(child<QLabel>(list, "count_label")->text(), "1 activity");
}

TEST_F(ActivityListTest, ATickShowsTheClearedOnesToo) {
    ActivityList list(database, Scope::contact);
    list.show_contact(amber);
    show(list);
    auto* box = child<QCheckBox>(list, "cleared_box");
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    EXPECT_EQ(ids(list), (Ids{old_task, call, meeting}));
    EXPECT_TRUE(list.filter().with_cleared);
}

TEST_F(ActivityListTest, FiltersByUser) {
    ActivityList list(database, Scope::everybody);
    show(list);
    choose(list, "user_box", "Bert Cole");
    EXPECT_EQ(ids(list), Ids{meeting});
    EXPECT_EQ(list.filter().users, bert);
}

TEST_F(ActivityListTest, FiltersByPeriod) {
    ActivityList list(database, Scope::everybody);
    show(list);
    choose(list, "period_box", "Today");
    EXPECT_EQ(ids(list), (Ids{series, call}));
    EXPECT_FALSE(child<widgets::DateField>(list, "from_edit")->isVisible());
}

TEST_F(ActivityListTest, ARangeIsTypedIntoTwoDateFields) {
    ActivityList list(database, Scope::everybody);
    show(list);
    choose(list, "period_box", "Date range");
    auto* from = child<widgets::DateField>(list, "from_edit");
    EXPECT_TRUE(from->isVisible());
    EXPECT_EQ(from->date(), at(3, 6));
    from->setFocus();
    retype(from, "3/7/2024");
    QTest::keyClick(from, Qt::Key_Return);
    auto* to = child<widgets::DateField>(list, "to_edit");
    retype(to, "3/8/2024");
    QTest::keyClick(to, Qt::Key_Return);
    EXPECT_EQ(ids(list), (Ids{series, meeting}));
}

TEST_F(ActivityListTest, FiltersByTypeAndTellsSoOnTheButton) {
    ActivityList list(database, Scope::everybody);
    show(list);
    auto* button = child<QPushButton>(list, "types_button");
    QTimer::singleShot(0, [&] {
        auto* menu = child<QMenu>(list, "types_menu");
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions().front()).center());
    });
    click(button);
    EXPECT_EQ(ids(list), (Ids{series, meeting}));
    EXPECT_EQ(button->text(), "&Types (2 of 3)");
}

TEST_F(ActivityListTest, AFilterSetFromOutsideShowsInTheBar) {
    ActivityList list(database, Scope::contact);
    list.show_contact(amber);
    show(list);
    list.set_filter(model::filter_of({234, "6\\1/31/2024\\2/2/2024", anna}, database.locale()));
    EXPECT_EQ(ids(list), Ids{});
    list.set_filter(model::filter_of({242, "6\\1/31/2024\\2/2/2024", anna}, database.locale()));
    EXPECT_EQ(ids(list), Ids{old_task});
    EXPECT_EQ(child<QPushButton>(list, "types_button")->text(), "&Types (1 of 3)");
    EXPECT_EQ(child<QComboBox>(list, "period_box")->currentText(), "Date range");
    EXPECT_EQ(child<widgets::DateField>(list, "from_edit")->date(), at(1, 31));
    EXPECT_EQ(child<QComboBox>(list, "user_box")->currentText(), "Anna Berg");
    EXPECT_TRUE(child<QCheckBox>(list, "cleared_box")->isChecked());
}

TEST_F(ActivityListTest, KeepsAFilterForSeveralUsersWhileOtherPartsOfItChange) {
    ActivityList list(database, Scope::everybody);
    show(list);
    list.set_filter(model::filter_of({252, "1", anna + bert}, database.locale()));
    EXPECT_EQ(child<QComboBox>(list, "user_box")->currentIndex(), -1);
    choose(list, "period_box", "Today");
    EXPECT_EQ(list.filter().users, anna + bert);
}

TEST_F(ActivityListTest, SelectsTheRowThatIsAskedFor) {
    ActivityList list(database, Scope::contact);
    list.show_contact(amber);
    list.select(1, true);
    EXPECT_EQ(list.current_id(), meeting);
    list.select(0, false);
    EXPECT_EQ(list.current_id(), meeting);
    list.select(1, false);
    EXPECT_EQ(list.current_id(), "");
}

TEST_F(ActivityListTest, ARowThatThereIsNotFails) {
    ActivityList list(database, Scope::contact);
    list.show_contact(amber);
    EXPECT_THROW(list.activity(2), values::Failure);
    EXPECT_THROW(list.activity(-1), values::Failure);
    EXPECT_THROW(list.select(2, true), values::Failure);
}

TEST_F(ActivityListTest, RowsCountAsTheyAreSortedOnTheScreen) {
    ActivityList list(database, Scope::contact);
    list.show_contact(amber);
    child<RecordTable>(list, "activity_table")->sortByColumn(date_column, Qt::DescendingOrder);
    EXPECT_EQ(ids(list), (Ids{meeting, call}));
}

TEST_F(ActivityListTest, FollowsTheDatabaseAndKeepsItsSelection) {
    ActivityList list(database, Scope::contact);
    list.show_contact(amber);
    list.select(1, true);
    auto other = elsewhere();
    const auto added = activity(*other, store::ActivityType::call, at(3, 7), "Remind", anna, {amber});
    database.refresh();
    EXPECT_EQ(ids(list), (Ids{call, added, meeting}));
    EXPECT_EQ(list.current_id(), meeting);
}

TEST_F(ActivityListTest, EverybodysActivitiesAreReadWhenTheyAreSeen) {
    ActivityList list(database, Scope::everybody);
    show(list);
    list.hide();
    activity(*elsewhere(), store::ActivityType::call, at(3, 7), "Remind", anna, {amber});
    database.refresh();
    list.show();
    EXPECT_EQ(list.row_count(), 4);
}

TEST_F(ActivityListTest, IsEmptyWhenTheDatabaseCloses) {
    ActivityList list(database, Scope::everybody);
    show(list);
    database.close();
    EXPECT_EQ(list.row_count(), 0);
    EXPECT_EQ(child<QComboBox>(list, "user_box")->count(), 1);
}

// Beside the others, one every five minutes from tomorrow on.
class ManyActivities : public ActivityListTest {
protected:
    static constexpr int many = 3000;

    ManyActivities() {
        const auto team = elsewhere();
        team->together([&] {
            for (int i = 0; i < many; ++i)
                team->add(sample_activity(store::ActivityType::call, at(3, 20).plus_minutes(5 * i),
                                          std::to_string(many - i), anna, {amber}));
        });
        database.refresh();
        show(list);
    }
    RecordTable& table() { return *child<RecordTable>(list, "activity_table"); }

    ActivityList list{database, Scope::everybody};
};

TEST_F(ManyActivities, HaveTheirRowsAskedForAsTheyComeIntoSight) {
    EXPECT_EQ(child<QLabel>(list, "count_label")->text(), "3003 activities");
    const int at_first = list.row_count();
    EXPECT_LT(at_first, 1500);
    EXPECT_EQ(list.activity(3).regarding, "3000");
    table().scrollToBottom();
    EXPECT_TRUE(QTest::qWaitFor([&] { return list.row_count() > at_first; }, 5000));
    EXPECT_EQ(list.activity(at_first).regarding, std::to_string(many - at_first + 3));
}

TEST_F(ManyActivities, KeepTheRowsThatWereAskedForWhenTheyAreReadAgain) {
    table().scrollToBottom();
    EXPECT_TRUE(QTest::qWaitFor([&] { return list.row_count() > 600; }, 5000));
    const int asked_for = list.row_count();
    activity(*elsewhere(), store::ActivityType::call, at(3, 7), "Remind", anna, {amber});
    database.refresh();
    EXPECT_GE(list.row_count(), asked_for);
    EXPECT_EQ(child<QLabel>(list, "count_label")->text(), "3004 activities");
}

TEST_F(ManyActivities, AreAllAskedForWhenAnotherOrderIsWanted) {
    table().sortByColumn(date_column, Qt::DescendingOrder);
    EXPECT_EQ(list.row_count(), 3003);
    EXPECT_EQ(list.activity(0).regarding, "1");
}

TEST_F(ManyActivities, AreNotAskedForOnceTheDatabaseIsClosed) {
    database.close();
    EXPECT_EQ(list.row_count(), 0);
    table().scrollToBottom();
    QTest::qWait(50);
    EXPECT_EQ(list.row_count(), 0);
}
