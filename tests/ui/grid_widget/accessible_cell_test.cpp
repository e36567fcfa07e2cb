#include "ui/grid_widget/accessible_cell.h"

#include "ui/grid_widget/sample_grid.h"

#include <gtest/gtest.h>

namespace {

struct ReadGrid : ShownGrid {
    QAccessibleInterface* cell(int row, int col) const {
        return QAccessible::queryAccessibleInterface(widget.get())->tableInterface()->cellAt(row, col);
    }
    QAccessibleTableCellInterface* place(int row, int col) const { return cell(row, col)->tableCellInterface(); }
};

TEST(AccessibleCell, HasItsTextForAName) {
    ReadGrid grid;
    write(grid.model, 3, 4, "       Jane Chan\rPhone");
    EXPECT_EQ(grid.cell(3, 4)->text(QAccessible::Name), "Jane Chan\nPhone");
    EXPECT_EQ(grid.cell(3, 5)->text(QAccessible::Name), "");
}

TEST(AccessibleCell, KnowsItsRowAndColumn) {
    const ReadGrid grid;
    EXPECT_EQ(grid.place(3, 4)->rowIndex(), 3);
    EXPECT_EQ(grid.place(3, 4)->columnIndex(), 4);
    EXPECT_EQ(grid.place(3, 4)->rowExtent(), 1);
    EXPECT_EQ(grid.place(3, 4)->columnExtent(), 1);
    EXPECT_EQ(grid.place(3, 4)->table(), QAccessible::queryAccessibleInterface(grid.widget.get()));
}

TEST(AccessibleCell, IsAHeaderAmongTheTitles) {
    const ReadGrid grid;
    EXPECT_EQ(grid.cell(0, 3)->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(grid.cell(3, 1)->role(), QAccessible::RowHeader);
    EXPECT_EQ(grid.cell(3, 3)->role(), QAccessible::Cell);
}

TEST(AccessibleCell, KnowsItsHeaders) {
    ReadGrid grid;
    write(grid.model, 5, 0, "09:00 AM");
    EXPECT_EQ(grid.place(7, 3)->columnHeaderCells(), QList<QAccessibleInterface*>{grid.cell(0, 3)});
    EXPECT_EQ(grid.place(7, 3)->rowHeaderCells(),
              (QList<QAccessibleInterface*>{grid.cell(5, 0), grid.cell(7, 1)}));
    EXPECT_TRUE(grid.place(0, 3)->columnHeaderCells().isEmpty());
    EXPECT_TRUE(grid.place(0, 3)->rowHeaderCells().isEmpty());
}

TEST(AccessibleCell, LiesWhereItIsDrawn) {
    const ReadGrid grid;
    const QRect drawn = grid.widget->cell_rect(3, 4);
    EXPECT_EQ(grid.cell(3, 4)->rect(), QRect(grid.view()->mapToGlobal(drawn.topLeft()), drawn.size()));
    EXPECT_TRUE(grid.cell(30, 4)->rect().isEmpty());
}

TEST(AccessibleCell, TellsWhetherItShows) {
    ReadGrid grid;
    grid.model.ColWidth(4, 0);
    EXPECT_TRUE(grid.cell(3, 4)->state().invisible);
    EXPECT_TRUE(grid.cell(30, 3)->state().offscreen);
    EXPECT_FALSE(grid.cell(3, 3)->state().offscreen);
    EXPECT_FALSE(grid.cell(3, 3)->state().invisible);
}

TEST(AccessibleCell, TellsWhetherItIsSelectedAndCurrent) {
    ReadGrid grid;
    grid.model.RowSel(3);
    EXPECT_TRUE(grid.place(2, 2)->isSelected());
    EXPECT_TRUE(grid.cell(2, 2)->state().selected);
    EXPECT_FALSE(grid.cell(2, 2)->state().focused);
    EXPECT_TRUE(grid.cell(1, 2)->state().focused);
    EXPECT_FALSE(grid.place(2, 3)->isSelected());
}

TEST(AccessibleCell, IsNoLongerValidWithoutItsRow) {
    ReadGrid grid;
    QAccessibleInterface* cell = grid.cell(30, 2);
    grid.model.Rows(10);
    EXPECT_FALSE(cell->isValid());
    EXPECT_TRUE(cell->state().invalid);
    EXPECT_EQ(cell->text(QAccessible::Name), "");
    EXPECT_TRUE(cell->rect().isEmpty());
}

} // namespace
