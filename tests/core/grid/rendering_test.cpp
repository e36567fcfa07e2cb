#include "core/grid/rendering.h"

#include "core/grid/slot_world.h"
#include "core/values/failure.h"

#include <gtest/gtest.h>

namespace {

using Column = std::vector<std::string>;

class RenderingTest : public testing::Test {
protected:
    void display(const std::string& id = "") { world.calendar.rendering.Display_Changes(id); }

    SlotWorld world;
    grid::Layout& layout = world.calendar.layout;
    table::GridModel& model = world.calendar.msgSched;
};

TEST_F(RenderingTest, DrawsTheChangedSlotsOnly) {
    world.open_with_rows(1, 3);
    world.put(0, 2, {.id = "A1", .user = "a", .text = "x"});
    display();
    model.Row(1);
    model.Col(2);
    model.Text("as drawn");
    world.put(1, 2, {.id = "A2", .user = "a", .text = "y"});
    display();
    EXPECT_EQ(world.column(2), (Column{"as drawn", "y", ""}));
}

//   slot 0   Ann long       Ann short
//   slot 1   ( Continued )
//   slot 2   Ann other
TEST_F(RenderingTest, WritesTheContinuationWhereNoOtherTextStands) {
    world.open_with_rows(1, 4);
    world.put(0, 2, {.id = "A1", .user = "a", .text = "long", .goes_beyond = 3, .fore_color = "255"});
    world.put(2, 2, {.id = "A2", .user = "a", .text = "other"});
    display();
    EXPECT_EQ(world.column(2), (Column{"long", "( Continued )", "other", "( Continued )"}));
    EXPECT_EQ(model.cell(2, 2).alignment, table::Alignment::left_centre);
    EXPECT_EQ(model.ForeColor(), 255);
    EXPECT_EQ(layout.Cells(2, 2).DependsOnActivity(), "A1");
    EXPECT_EQ(layout.Cells(2, 2).ActivityID(), "");
    EXPECT_EQ(layout.Cells(2, 2).Text(), "");
}

TEST_F(RenderingTest, ContinuesAtTheSamePositionOfTheNextTwoSlots) {
    world.open_with_rows(2, 3);
    world.put(0, 5, {.id = "A1", .user = "a", .text = "first"});
    world.put(0, 5, {.id = "A2", .user = "b", .text = "second", .goes_beyond = 2});
    display();
    EXPECT_EQ(world.column(5), (Column{"first", "second", "", "( Continued )", "", "( Continued )"}));
}

// The colour goes to the whole grid, not to the cell: cells with a colour of their own keep it.
TEST_F(RenderingTest, ColoursTheContinuationThroughTheGridsOwnColour) {
    world.open_with_rows(1, 2);
    model.Row(2);
    model.Col(2);
    model.CellForeColor(1234);
    world.put(0, 2, {.id = "A1", .user = "a", .text = "long", .goes_beyond = 1, .fore_color = "65280"});
    display();
    EXPECT_EQ(model.cell(2, 2).fore_colour, 1234);
    EXPECT_EQ(model.ForeColor(), 65280);
}

TEST_F(RenderingTest, WritesTheTextOfTheSettings) {
    world.open_with_rows(1, 2);
    world.calendar.rendering.SpanText = "(goes on)";
    world.put(0, 2, {.id = "A1", .user = "a", .text = "long", .goes_beyond = 1});
    display();
    EXPECT_EQ(world.column(2), (Column{"long", "(goes on)"}));
}

TEST_F(RenderingTest, EmptiesTheListOfContinuationsBeforeEachDrawing) {
    world.open_with_rows(1, 2);
    world.put(0, 2, {.id = "A1", .user = "a", .text = "long", .goes_beyond = 1});
    display();
    EXPECT_EQ(world.calendar.rendering.SpanList, "2,2,255|");
    display();
    EXPECT_EQ(world.calendar.rendering.SpanList, "");
}

// Sunday is column 1 here, Saturday column 7.
TEST_F(RenderingTest, LeavesTheSlotsOfDaysOffUndrawnAndChanged) {
    world.open_with_rows(1, 1);
    layout.DaysOff("17");
    for (const int col : {1, 2, 7})
        world.put(0, col, {.id = "A" + std::to_string(col), .user = "a", .text = "x"});
    display();
    EXPECT_EQ(world.column(1), (Column{""}));
    EXPECT_EQ(world.column(2), (Column{"x"}));
    EXPECT_EQ(world.column(7), (Column{""}));
    EXPECT_TRUE(layout.Slots(grid::SlotNumber(0), 1).Changed());
    EXPECT_FALSE(layout.Slots(grid::SlotNumber(0), 2).Changed());
}

TEST_F(RenderingTest, MakesTheCellOfTheSoughtActivityCurrent) {
    world.open_with_rows(1, 3);
    world.put(1, 4, {.id = "A1", .user = "a", .text = "x"});
    world.put(2, 5, {.id = "A2", .user = "a", .text = "y"});
    display("A1");
    EXPECT_EQ(model.Row(), 2);
    EXPECT_EQ(model.Col(), 4);
}

// A series stands in the slots of several days; the last one drawn is taken.
TEST_F(RenderingTest, TakesTheLastCellThatShowsTheSoughtActivity) {
    world.open_with_rows(1, 2);
    world.put(0, 6, {.id = "A1", .user = "a", .text = "x"});
    world.put(1, 3, {.id = "A1", .user = "a", .text = "x"});
    display("A1");
    EXPECT_EQ(model.Row(), 2);
    EXPECT_EQ(model.Col(), 3);
}

TEST_F(RenderingTest, MakesTheSelectedCellCurrentWhenNothingIsSought) {
    world.open_with_rows(1, 3);
    world.calendar.selection.SelectedCell = layout.Cells.reference(3, 2);
    world.put(0, 6, {.id = "A1", .user = "a", .text = "x"});
    display();
    EXPECT_EQ(model.Row(), 3);
    EXPECT_EQ(model.Col(), 2);
}

TEST_F(RenderingTest, SaysNothingWhenNoCellIsSelectedYetOrTheGridGotSmaller) {
    world.open_with_rows(1, 3);
    display();
    world.calendar.selection.SelectedCell = layout.free_standing_cell();
    world.calendar.selection.selected().Initialize(50, 2);
    display();
    EXPECT_TRUE(world.box.shown.empty());
}

TEST_F(RenderingTest, Clear_DependentsEmptiesDependsOnActivityOfTheContinuations) {
    world.open_with_rows(1, 3);
    world.put(0, 2, {.id = "A1", .user = "a", .text = "long", .goes_beyond = 2});
    world.put(2, 2, {.id = "A2", .user = "a", .text = "other"});
    world.put(0, 3, {.id = "A3", .user = "a", .text = "also long", .goes_beyond = 1});
    display();
    ASSERT_EQ(world.column(2), (Column{"long", "( Continued )", "other"}));
    layout.Slots(grid::SlotNumber(0), 2).DeleteCell("A1");
    display("A1");
    EXPECT_EQ(world.column(2), (Column{"", "", "other"}));
    for (const int row : {2, 3}) {
        EXPECT_EQ(layout.Cells(row, 2).DependsOnActivity(), "");
        EXPECT_EQ(layout.Cells(row, 2).DependsOnActivityX(), 0);
        EXPECT_EQ(layout.Cells(row, 2).DependsOnActivityY(), 0);
    }
    EXPECT_EQ(world.column(3), (Column{"also long", "( Continued )", ""}));
    EXPECT_EQ(layout.Cells(2, 3).DependsOnActivity(), "A3");
}

TEST_F(RenderingTest, GoesOnWithTheNextSlotAfterOneFailed) {
    world.open_with_rows(1, 2);
    world.put(1, 2, {.id = "A1", .user = "a", .text = "x"});
    world.put(1, 2, {.id = "A2", .user = "b", .text = "y"});
    world.put(1, 4, {.id = "A3", .user = "a", .text = "z"});
    display();
    EXPECT_EQ(world.box.shown.size(), 1U);
    EXPECT_EQ(world.column(4), (Column{"", "z"}));
}

// A colour may be any text of the settings, the list's own marks among it.
TEST_F(RenderingTest, ContinuesAnActivityWhoseColourIsNoNumberAndKeepsTheGridsColour) {
    world.open_with_rows(1, 3);
    model.ForeColor(4321);
    world.put(0, 2, {.id = "A1", .user = "a", .text = "long", .goes_beyond = 2, .fore_color = "red|2,green"});
    world.put(0, 3, {.id = "A2", .user = "a", .text = "also long", .goes_beyond = 1, .fore_color = "99999999999"});
    display();
    EXPECT_EQ(world.column(2), (Column{"long", "( Continued )", "( Continued )"}));
    EXPECT_EQ(world.column(3), (Column{"also long", "( Continued )", ""}));
    EXPECT_EQ(model.ForeColor(), 4321);
    EXPECT_TRUE(world.box.shown.empty());
}

TEST_F(RenderingTest, LetsAFailureOfTheContinuationsThrough) {
    world.open_with_rows(1, 2);
    EXPECT_THROW(world.calendar.rendering.Span_Activities("99,2,255|"), values::Failure);
}

} // namespace
