#include "core/table/grid_model.h"

#include "support/failure_number.h"

#include <gtest/gtest.h>

namespace {

using table::Alignment;
using table::GridChange;
using table::GridModel;

GridModel model_of(int rows, int cols) {
    GridModel model;
    model.Rows(rows);
    model.Cols(cols);
    return model;
}

// Writes "row,col" into every cell.
void number_cells(GridModel& model) {
    for (int row = 0; row < model.Rows(); ++row)
        for (int col = 0; col < model.Cols(); ++col) {
            model.Row(row);
            model.Col(col);
            model.Text(std::to_string(row) + "," + std::to_string(col));
        }
}

class Recorder : public table::GridObserver {
public:
    void grid_changed(GridChange change) override { changes.push_back(change); }
    std::vector<GridChange> changes;
};

TEST(GridModel, WritesWhatTheCurrentCellShowsAndNothingElse) {
    GridModel model = model_of(3, 3);
    model.Row(1);
    model.Col(2);
    model.Text("Ann");
    model.CellBackColor(0xFFC0C0);
    model.CellForeColor(0x40C0);
    model.CellAlignment(Alignment::centre);
    model.CellFontBold(true);
    model.CellFontStrikeThrough(true);
    model.CellPicture("/program/call.gif");
    model.CellPictureAlignment(Alignment::left_centre);

    const table::GridCell& cell = model.cell(1, 2);
    EXPECT_EQ(cell.text, "Ann");
    EXPECT_EQ(cell.back_colour, 0xFFC0C0);
    EXPECT_EQ(cell.fore_colour, 0x40C0);
    EXPECT_EQ(cell.alignment, Alignment::centre);
    EXPECT_TRUE(cell.bold);
    EXPECT_TRUE(cell.strike_through);
    EXPECT_EQ(model.picture_path(cell), "/program/call.gif");
    EXPECT_EQ(cell.picture_alignment, Alignment::left_centre);
    EXPECT_EQ(model.CellPicture(), "/program/call.gif");

    EXPECT_EQ(model.TextMatrix(2, 1), "");
    EXPECT_EQ(model.cell(2, 1).back_colour, table::default_colour);
    EXPECT_EQ(model.picture_path(model.cell(2, 1)), "");
}

TEST(GridModel, TakesAPictureAwayWithAnEmptyPath) {
    GridModel model = model_of(2, 2);
    model.CellPicture("/program/call.gif");
    model.CellPicture("");
    EXPECT_EQ(model.CellPicture(), "");
}

TEST(GridModel, KeepsCurrentCellAndSelectionEndsApart) {
    GridModel model = model_of(5, 5);
    model.Row(1);
    model.Col(2);
    model.RowSel(4);
    model.ColSel(3);
    EXPECT_EQ(model.Row(), 1);
    EXPECT_EQ(model.Col(), 2);
    EXPECT_EQ(model.RowSel(), 4);
    EXPECT_EQ(model.ColSel(), 3);
    model.Col(1);
    EXPECT_EQ(model.RowSel(), 1);
    EXPECT_EQ(model.ColSel(), 1);
}

TEST(GridModel, RefusesACurrentCellOutsideWith380AndStaysWhereItIs) {
    GridModel model = model_of(3, 4);
    model.Row(2);
    model.Col(3);
    for (const int row : {-1, 3})
        EXPECT_EQ(support::failure_number([&] { model.Row(row); }), 380);
    for (const int col : {-1, 4})
        EXPECT_EQ(support::failure_number([&] { model.Col(col); }), 380);
    EXPECT_EQ(support::failure_number([&] { model.RowSel(3); }), 380);
    EXPECT_EQ(support::failure_number([&] { model.ColSel(4); }), 380);
    EXPECT_EQ(model.Row(), 2);
    EXPECT_EQ(model.Col(), 3);
}

TEST(GridModel, RefusesAnIndexOutsideWith381) {
    GridModel model = model_of(3, 4);
    EXPECT_EQ(support::failure_number([&] { model.TextMatrix(3, 0); }), 381);
    EXPECT_EQ(support::failure_number([&] { model.TextMatrix(0, -1); }), 381);
    EXPECT_EQ(support::failure_number([&] { model.RowHeight(3); }), 381);
    EXPECT_EQ(support::failure_number([&] { model.RowHeight(-1, 10); }), 381);
    EXPECT_EQ(support::failure_number([&] { model.ColWidth(4); }), 381);
    EXPECT_EQ(support::failure_number([&] { model.ColWidth(4, 10); }), 381);
    EXPECT_EQ(support::failure_number([&] { model.RowPos(3); }), 381);
    EXPECT_EQ(support::failure_number([&] { model.ColPos(4); }), 381);
    EXPECT_EQ(support::failure_number([&] { model.clear_contents({.rows = {1, 3}, .cols = {1, 2}}); }), 381);
}

TEST(GridModel, RefusesSizesAndShapesThatCannotBe) {
    GridModel model = model_of(3, 4);
    EXPECT_EQ(support::failure_number([&] { model.RowHeight(1, -1); }), 380);
    EXPECT_EQ(support::failure_number([&] { model.ColWidth(1, -1); }), 380);
    EXPECT_EQ(support::failure_number([&] { model.Rows(0); }), 380);
    EXPECT_EQ(support::failure_number([&] { model.Cols(0); }), 380);
    EXPECT_EQ(support::failure_number([&] { model.FixedCols(5); }), 380);
    EXPECT_EQ(support::failure_number([&] { model.TopRow(0); }), 380);
    EXPECT_EQ(support::failure_number([&] { model.TopRow(3); }), 380);
    EXPECT_EQ(support::failure_number([&] { model.LeftCol(4); }), 380);
}

//   0,0 0,1 0,2          0,0 0,1 0,2  +          0,0 0,1
//   1,0 1,1 1,2   wider  1,0 1,1 1,2  +  smaller 1,0 1,1
//   2,0 2,1 2,2
TEST(GridModel, KeepsWhatTheRemainingCellsShowWhenTheShapeChanges) {
    GridModel model = model_of(3, 3);
    number_cells(model);
    model.Cols(4);
    EXPECT_EQ(model.TextMatrix(2, 2), "2,2");
    EXPECT_EQ(model.TextMatrix(2, 3), "");
    model.Rows(2);
    model.Cols(2);
    EXPECT_EQ(model.TextMatrix(0, 1), "0,1");
    EXPECT_EQ(model.TextMatrix(1, 1), "1,1");
    model.Cols(3);
    EXPECT_EQ(model.TextMatrix(1, 2), "");
}

TEST(GridModel, MovesTheCurrentCellInsideWhenTheShapeShrinks) {
    GridModel model = model_of(5, 5);
    model.Row(4);
    model.Col(3);
    model.Rows(2);
    EXPECT_EQ(model.Row(), 1);
    EXPECT_EQ(model.RowSel(), 1);
    EXPECT_EQ(model.Col(), 3);
    model.Cols(2);
    EXPECT_EQ(model.Col(), 1);
}

TEST(GridModel, ClearsAllThatCellsShowButKeepsSizes) {
    GridModel model = model_of(3, 3);
    number_cells(model);
    model.CellBackColor(5);
    model.CellFontBold(true);
    model.CellPicture("p");
    model.RowHeight(2, 820);
    model.Clear();
    EXPECT_EQ(model.Text(), "");
    EXPECT_EQ(model.CellBackColor(), table::default_colour);
    EXPECT_FALSE(model.CellFontBold());
    EXPECT_EQ(model.CellPicture(), "");
    EXPECT_EQ(model.TextMatrix(0, 0), "");
    EXPECT_EQ(model.RowHeight(2), 820);
    EXPECT_EQ(model.Rows(), 3);
}

TEST(GridModel, ClearsTextsAndPicturesOfARangeAndEndsOnItsLastCell) {
    GridModel model = model_of(4, 4);
    number_cells(model);
    model.Row(1);
    model.Col(1);
    model.CellPicture("p");
    model.CellBackColor(7);
    model.clear_contents({.rows = {1, 2}, .cols = {1, 3}});
    EXPECT_EQ(model.Row(), 2);
    EXPECT_EQ(model.Col(), 3);
    EXPECT_EQ(model.TextMatrix(1, 1), "");
    EXPECT_EQ(model.TextMatrix(2, 3), "");
    EXPECT_EQ(model.picture_path(model.cell(1, 1)), "");
    EXPECT_EQ(model.cell(1, 1).back_colour, 7);
    EXPECT_EQ(model.TextMatrix(0, 1), "0,1");
    EXPECT_EQ(model.TextMatrix(3, 3), "3,3");
    EXPECT_EQ(model.TextMatrix(2, 0), "2,0");
}

TEST(GridModel, ClearsNothingInAnEmptyRange) {
    GridModel model = model_of(2, 2);
    number_cells(model);
    model.clear_contents({.rows = {1, 0}, .cols = {1, 1}});
    EXPECT_EQ(model.TextMatrix(1, 1), "1,1");
}

// Row 0 fixed; with row 3 on top, rows 1 and 2 lie under it.
TEST(GridModel, CountsTheScrollPositionIntoRowPosAndColPos) {
    GridModel model = model_of(6, 4);
    model.RowHeight(0, 300);
    for (int row = 1; row < 6; ++row)
        model.RowHeight(row, 800);
    model.ColWidth(0, 1000);
    model.ColWidth(1, 0);
    EXPECT_EQ(model.RowPos(3), 300 + 2 * 800);
    EXPECT_EQ(model.ColPos(2), 1000);
    model.TopRow(3);
    EXPECT_EQ(model.RowPos(0), 0);
    EXPECT_EQ(model.RowPos(3), 300);
    EXPECT_EQ(model.RowPos(1), 300 - 2 * 800);
}

TEST(GridModel, TellsItsObserversWhatKindOfChangeItWas) {
    GridModel model = model_of(3, 3);
    Recorder recorder;
    model.add_observer(recorder);
    model.Text("x");
    model.Row(1);
    model.ColWidth(1, 5);
    model.ForeColor(3);
    model.Redraw(false);
    EXPECT_EQ(recorder.changes, (std::vector<GridChange>{GridChange::cells, GridChange::current, GridChange::shape,
                                                         GridChange::cells, GridChange::redraw}));
    EXPECT_FALSE(model.Redraw());
    model.remove_observer(recorder);
    model.Text("y");
    EXPECT_EQ(recorder.changes.size(), 5U);
}

TEST(GridModel, KeepsSilentWhenNothingDiffers) {
    GridModel model = model_of(3, 3);
    model.Text("x");
    model.CellBackColor(9);
    Recorder recorder;
    model.add_observer(recorder);
    model.Text("x");
    model.CellBackColor(9);
    model.CellPicture("");
    model.Row(0);
    model.Rows(3);
    EXPECT_TRUE(recorder.changes.empty());
}

} // namespace
