#include "ui/grid_widget/cursor_keys.h"

#include "ui/grid_widget/sample_grid.h"

#include <gtest/gtest.h>

namespace {

constexpr int page = 5;

void press(table::GridModel& model, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    EXPECT_TRUE(ui::move_cursor(model, key, modifiers, page));
}

void expect_at(const table::GridModel& model, int row, int col) {
    EXPECT_EQ(model.Row(), row);
    EXPECT_EQ(model.Col(), col);
}

TEST(MoveCursor, MovesByArrows) {
    table::GridModel model = sample_model();
    press(model, Qt::Key_Down);
    press(model, Qt::Key_Right);
    expect_at(model, 2, 3);
    press(model, Qt::Key_Up);
    press(model, Qt::Key_Left);
    expect_at(model, 1, 2);
}

TEST(MoveCursor, StaysOutOfTheTitles) {
    table::GridModel model = sample_model();
    press(model, Qt::Key_Up);
    press(model, Qt::Key_Left);
    expect_at(model, 1, 2);
}

TEST(MoveCursor, StaysInsideTheGrid) {
    table::GridModel model = sample_model();
    model.Row(39);
    model.Col(7);
    press(model, Qt::Key_Down);
    press(model, Qt::Key_Right);
    expect_at(model, 39, 7);
}

TEST(MoveCursor, PassesOverHiddenLines) {
    table::GridModel model = sample_model();
    model.ColWidth(3, 0);
    model.ColWidth(4, 0);
    press(model, Qt::Key_Right);
    expect_at(model, 1, 5);
    press(model, Qt::Key_Left);
    expect_at(model, 1, 2);
}

TEST(MoveCursor, StaysWhereOnlyHiddenLinesFollow) {
    table::GridModel model = sample_model();
    model.Col(6);
    model.ColWidth(7, 0);
    press(model, Qt::Key_Right);
    expect_at(model, 1, 6);
}

TEST(MoveCursor, EntersTheCellsFromATitle) {
    table::GridModel model = sample_model();
    model.Row(0);
    press(model, Qt::Key_Down);
    expect_at(model, 1, 2);
}

TEST(MoveCursor, MovesByPages) {
    table::GridModel model = sample_model();
    press(model, Qt::Key_PageDown);
    expect_at(model, 6, 2);
    press(model, Qt::Key_PageUp);
    expect_at(model, 1, 2);
    model.Row(38);
    press(model, Qt::Key_PageDown);
    expect_at(model, 39, 2);
}

TEST(MoveCursor, GoesToTheEndsOfARow) {
    table::GridModel model = sample_model();
    model.ColWidth(2, 0);
    model.Row(5);
    press(model, Qt::Key_End);
    expect_at(model, 5, 7);
    press(model, Qt::Key_Home);
    expect_at(model, 5, 3);
}

TEST(MoveCursor, GoesToTheCornersWithCtrl) {
    table::GridModel model = sample_model();
    press(model, Qt::Key_End, Qt::ControlModifier);
    expect_at(model, 39, 7);
    press(model, Qt::Key_Home, Qt::ControlModifier);
    expect_at(model, 1, 2);
}

TEST(MoveCursor, ExtendsTheSelectionWithShift) {
    table::GridModel model = sample_model();
    press(model, Qt::Key_Down, Qt::ShiftModifier);
    press(model, Qt::Key_Right, Qt::ShiftModifier);
    press(model, Qt::Key_Right, Qt::ShiftModifier);
    expect_at(model, 1, 2);
    EXPECT_EQ(model.RowSel(), 2);
    EXPECT_EQ(model.ColSel(), 4);
}

TEST(MoveCursor, DropsTheSelectionWithoutShift) {
    table::GridModel model = sample_model();
    press(model, Qt::Key_PageDown, Qt::ShiftModifier);
    press(model, Qt::Key_Down);
    expect_at(model, 2, 2);
    EXPECT_EQ(model.RowSel(), 2);
    EXPECT_EQ(model.ColSel(), 2);
}

TEST(MoveCursor, LeavesOtherKeysAlone) {
    table::GridModel model = sample_model();
    EXPECT_FALSE(ui::move_cursor(model, Qt::Key_A, Qt::NoModifier, page));
    expect_at(model, 1, 2);
}

TEST(MoveCursor, DoesNothingInAGridOfTitlesOnly) {
    table::GridModel model;
    for (const int key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_PageDown})
        press(model, key);
    expect_at(model, 0, 0);
}

} // namespace
