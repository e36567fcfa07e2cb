#include "ui/grid_widget/accessible_grid.h"

#include "ui/grid_widget/sample_grid.h"

#include <QAccessible>
#include <QAccessibleTableInterface>
#include <QLineEdit>
#include <gtest/gtest.h>

namespace {

struct Told {
    QAccessible::Event type;
    int row = -1, col = -1; // of the cell
    bool reset = false;
    bool operator==(const Told&) const = default;
};
// The grid as a screen reader sees it.
struct ReadGrid : ShownGrid {
    QAccessibleInterface* node() const { return QAccessible::queryAccessibleInterface(widget.get()); }
    QAccessibleTableInterface* table() const { return node()->tableInterface(); }

    std::vector<Told> tell(const ui::GridNews& news) const {
        std::vector<Told> all;
        ui::tell_screen_readers(*widget, news, [&all](QAccessibleEvent* event) {
            Told told{event->type()};
            QAccessibleInterface* about = event->accessibleInterface();
            if (const auto* cell = about->tableCellInterface()) {
                told.row = cell->rowIndex();
                told.col = cell->columnIndex();
            } else if (auto* change = dynamic_cast<QAccessibleTableModelChangeEvent*>(event)) {
                told.reset = change->modelChangeType() == QAccessibleTableModelChangeEvent::ModelReset;
                about->tableInterface()->modelChange(change);
            }
            all.push_back(told);
        });
        return all;
    }
};

TEST(AccessibleGrid, IsATableOfAllRowsAndColumns) {
    const ReadGrid grid;
    ASSERT_NE(grid.node(), nullptr);
    EXPECT_EQ(grid.node()->role(), QAccessible::Table);
    ASSERT_NE(grid.table(), nullptr);
    EXPECT_EQ(grid.table()->rowCount(), 40);
    EXPECT_EQ(grid.table()->columnCount(), 8);
    EXPECT_EQ(grid.node()->childCount(), 320);
}

TEST(AccessibleGrid, GivesTheSameCellByIndexAndByRowAndColumn) {
    const ReadGrid grid;
    QAccessibleInterface* cell = grid.table()->cellAt(3, 4);
    EXPECT_EQ(grid.node()->child(3 * 8 + 4), cell);
    EXPECT_EQ(grid.node()->indexOfChild(cell), 3 * 8 + 4);
    EXPECT_EQ(cell->parent(), grid.node());
}

TEST(AccessibleGrid, HasNoCellOutside) {
    const ReadGrid grid;
    EXPECT_EQ(grid.table()->cellAt(40, 0), nullptr);
    EXPECT_EQ(grid.table()->cellAt(0, 8), nullptr);
    EXPECT_EQ(grid.table()->cellAt(-1, 0), nullptr);
    EXPECT_EQ(grid.node()->child(320), nullptr);
    EXPECT_EQ(grid.node()->child(-1), nullptr);
    EXPECT_EQ(grid.node()->indexOfChild(grid.node()), -1);
}

TEST(AccessibleGrid, FindsTheCellUnderAPlace) {
    const ReadGrid grid;
    const QPoint place = grid.view()->mapToGlobal(grid.middle_of(3, 4));
    EXPECT_EQ(grid.node()->childAt(place.x(), place.y()), grid.table()->cellAt(3, 4));
    EXPECT_EQ(grid.node()->childAt(place.x() + 5000, place.y()), nullptr);
}

TEST(AccessibleGrid, DescribesColumnsByTheTitleRow) {
    ReadGrid grid;
    write(grid.model, 0, 3, "Wednesday Jan. 5");
    EXPECT_EQ(grid.table()->columnDescription(3), "Wednesday Jan. 5");
}

TEST(AccessibleGrid, DescribesRowsByTimeAndUser) {
    ReadGrid grid;
    write(grid.model, 5, 0, "09:00 AM");
    write(grid.model, 7, 1, "Chris Huffman");
    EXPECT_EQ(grid.table()->rowDescription(7), "09:00 AM Chris Huffman");
    EXPECT_EQ(grid.table()->rowDescription(0), "");
}

TEST(AccessibleGrid, TellsWhatIsSelected) {
    ReadGrid grid;
    grid.model.RowSel(3);
    grid.model.ColSel(4);
    EXPECT_EQ(grid.table()->selectedCellCount(), 9);
    EXPECT_EQ(grid.table()->selectedCells().size(), 9);
    EXPECT_TRUE(grid.table()->selectedCells().contains(grid.table()->cellAt(2, 3)));
    EXPECT_EQ(grid.table()->selectedRowCount(), 0);
    EXPECT_FALSE(grid.table()->isColumnSelected(3));
}

TEST(AccessibleGrid, TakesARowWithoutItsTitlesForSelected) {
    ReadGrid grid;
    grid.model.RowSel(2);
    grid.model.ColSel(7);
    EXPECT_EQ(grid.table()->selectedRows(), (QList<int>{1, 2}));
    EXPECT_TRUE(grid.table()->isRowSelected(2));
    EXPECT_EQ(grid.table()->selectedColumnCount(), 0);
}

TEST(AccessibleGrid, TakesAColumnWithItsTitleForSelected) {
    ReadGrid grid;
    grid.model.Row(0);
    grid.model.RowSel(39);
    EXPECT_EQ(grid.table()->selectedColumns(), QList<int>{2});
    EXPECT_TRUE(grid.table()->isColumnSelected(2));
}

TEST(AccessibleGrid, HasTheCurrentCellForItsFocus) {
    const ReadGrid grid;
    EXPECT_EQ(grid.node()->focusChild(), grid.table()->cellAt(1, 2));
}

TEST(AccessibleGrid, TellsOfTheCurrentCell) {
    ReadGrid grid;
    grid.model.Row(4);
    EXPECT_EQ(grid.tell({.focus = true, .selection_before = table::CellRange{.rows = {1, 1}, .cols = {2, 2}}}),
              (std::vector<Told>{{QAccessible::Selection, 4, 2}, {QAccessible::Focus, 4, 2}}));
}

TEST(AccessibleGrid, TellsOfEachCellThatJoinsOrLeavesASelection) {
    ReadGrid grid;
    grid.model.RowSel(2);
    grid.model.ColSel(3);
    EXPECT_EQ(grid.tell({.selection_before = table::CellRange{.rows = {1, 3}, .cols = {2, 2}}}),
              (std::vector<Told>{{QAccessible::SelectionRemove, 3, 2},
                                 {QAccessible::SelectionAdd, 1, 3},
                                 {QAccessible::SelectionAdd, 2, 3}}));
}

TEST(AccessibleGrid, TellsOfASelectionThatChangesALotAsAWhole) {
    ReadGrid grid;
    grid.model.RowSel(21);
    EXPECT_EQ(grid.tell({.selection_before = table::CellRange{.rows = {1, 1}, .cols = {2, 2}}}).size(), 20u);
    grid.model.RowSel(22);
    EXPECT_EQ(grid.tell({.selection_before = table::CellRange{.rows = {1, 1}, .cols = {2, 2}}}),
              (std::vector<Told>{{QAccessible::SelectionWithin}}));
}

TEST(AccessibleGrid, TellsNothingOfSelectedCellsThatAreGone) {
    ReadGrid grid;
    grid.model.Rows(3);
    grid.model.RowSel(2);
    EXPECT_EQ(grid.tell({.selection_before = table::CellRange{.rows = {1, 5}, .cols = {2, 2}}}),
              (std::vector<Told>{}));
}

TEST(AccessibleGrid, ClaimsNoFocusThatItHasNot) {
    ReadGrid grid;
    grid.widget->clearFocus();
    EXPECT_EQ(grid.tell({.focus = true, .selection_before = table::CellRange{.rows = {4, 4}, .cols = {4, 4}}}),
              (std::vector<Told>{{QAccessible::Selection, 1, 2}}));
    EXPECT_EQ(grid.node()->focusChild(), nullptr);
}

TEST(AccessibleGrid, TellsOfChangedTexts) {
    const ReadGrid grid;
    EXPECT_EQ(grid.tell({.cells = true}), (std::vector<Told>{{.type = QAccessible::TableModelChanged}}));
}

TEST(AccessibleGrid, StartsAfreshWithAnotherNumberOfRows) {
    ReadGrid grid;
    const QAccessible::Id last = QAccessible::uniqueId(grid.table()->cellAt(39, 2));
    grid.model.Rows(20);
    EXPECT_EQ(grid.tell({.cells = true, .size = true}),
              (std::vector<Told>{{.type = QAccessible::TableModelChanged, .reset = true}}));
    EXPECT_EQ(QAccessible::accessibleInterface(last), nullptr);
    EXPECT_EQ(grid.table()->cellAt(39, 2), nullptr);
    EXPECT_EQ(grid.table()->rowCount(), 20);
}

TEST(AccessibleGrid, TellsNothingWhenNothingHasChanged) {
    const ReadGrid grid;
    EXPECT_TRUE(grid.tell({}).empty());
}

// Hands to a list what it would tell a screen reader.
class TellingWidget : public ui::GridWidget {
public:
    TellingWidget(table::GridModel& model, std::vector<Told>& heard) : GridWidget(model), heard_(heard) {}

private:
    void tell(const ui::GridNews& news) override {
        ui::tell_screen_readers(*this, news, [this](QAccessibleEvent* event) {
            Told told{event->type()};
            if (const auto* cell = event->accessibleInterface()->tableCellInterface()) {
                told.row = cell->rowIndex();
                told.col = cell->columnIndex();
            }
            if (told.type != QAccessible::TableModelChanged)
                heard_.push_back(told);
        });
    }

    std::vector<Told>& heard_;
};

// What is told of the current cell and the selection, in order.
class Spoken : public testing::Test {
protected:
    Spoken() {
        grid.widget = std::make_unique<TellingWidget>(grid.model, heard);
        grid.show();
        hear();
    }
    std::vector<Told> hear() {
        ShownGrid::settle();
        return std::exchange(heard, {});
    }

    std::vector<Told> heard;
    ReadGrid grid;
};

TEST_F(Spoken, AnArrowKeySpeaksTheCellThatItLeadsTo) {
    grid.press_key(Qt::Key_Down);
    EXPECT_EQ(hear(), (std::vector<Told>{{QAccessible::Selection, 2, 2}, {QAccessible::Focus, 2, 2}}));
    EXPECT_TRUE(grid.table()->cellAt(2, 2)->state().focused);
    EXPECT_TRUE(grid.table()->cellAt(2, 2)->state().selected);
    EXPECT_FALSE(grid.table()->cellAt(1, 2)->state().focused);
    EXPECT_FALSE(grid.table()->cellAt(1, 2)->state().selected);
}

TEST_F(Spoken, ShiftAndAnArrowKeySpeakTheSelectionAndLeaveTheCurrentCell) {
    grid.press_key(Qt::Key_Down, Qt::ShiftModifier);
    grid.press_key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(hear(), (std::vector<Told>{{QAccessible::SelectionAdd, 1, 3},
                                         {QAccessible::SelectionAdd, 2, 2},
                                         {QAccessible::SelectionAdd, 2, 3}}));
    EXPECT_TRUE(grid.table()->cellAt(2, 3)->state().selected);
    EXPECT_FALSE(grid.table()->cellAt(2, 3)->state().focused);
    EXPECT_TRUE(grid.table()->cellAt(1, 2)->state().focused);
    EXPECT_EQ(grid.table()->selectedCellCount(), 4);
}

TEST_F(Spoken, AClickSpeaksTheCellUnderIt) {
    QTest::mouseClick(grid.view(), Qt::LeftButton, {}, grid.middle_of(3, 4));
    EXPECT_EQ(hear(), (std::vector<Told>{{QAccessible::Selection, 3, 4}, {QAccessible::Focus, 3, 4}}));
}

TEST_F(Spoken, ACurrentCellThatMovesAboutAndComesBackSaysNothing) {
    for (int row = 1; row < 10; ++row)
        write(grid.model, row, 3, "changed");
    EXPECT_TRUE(hear().empty());
}

TEST_F(Spoken, AGridOfAnotherSizeSpeaksItsCurrentCellAgain) {
    grid.model.Rows(20);
    EXPECT_EQ(hear(), (std::vector<Told>{{QAccessible::Focus, 1, 2}}));
}

TEST_F(Spoken, TheFocusThatComesToTheGridSpeaksItsCurrentCell) {
    QLineEdit other;
    other.show();
    other.activateWindow();
    other.setFocus();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !grid.widget->hasFocus(); }));
    hear();
    grid.model.Row(5);
    EXPECT_EQ(hear(), (std::vector<Told>{{QAccessible::Selection, 5, 2}})) << "without the focus";
    grid.widget->activateWindow();
    grid.widget->setFocus();
    EXPECT_TRUE(QTest::qWaitFor([this] { return grid.widget->hasFocus(); }));
    EXPECT_EQ(hear(), (std::vector<Told>{{QAccessible::Focus, 5, 2}}));
}

} // namespace
