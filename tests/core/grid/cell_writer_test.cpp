#include "core/grid/cell_writer.h"

#include "support/grid_world.h"

#include <gtest/gtest.h>

namespace {

using table::Alignment;

class CellWriterTest : public testing::Test {
protected:
    CellWriterTest() {
        world.have_users({"Ann"});
        world.open(values::DateTime::of(2024, 1, 10));
    }
    const table::GridCell& shown(int row, int col) const { return model.cell(row, col); }

    support::GridWorld world;
    table::GridModel& model = world.calendar.msgSched;
    grid::CellWriter& writer = world.calendar.writer;
    grid::Cells& cells = world.calendar.layout.Cells;
};

TEST_F(CellWriterTest, WritesTextColourAndStrikeThroughAndMakesTheCellCurrent) {
    writer.Write_Cell(model, 3, 4, {.text = "Lunch", .fore_color = 255, .strike_through = true});
    EXPECT_EQ(model.Row(), 3);
    EXPECT_EQ(model.Col(), 4);
    EXPECT_EQ(shown(3, 4).text, "Lunch");
    EXPECT_EQ(shown(3, 4).fore_colour, 255);
    EXPECT_TRUE(shown(3, 4).strike_through);
    writer.Write_Cell(model, 3, 4, {.text = "Call"});
    EXPECT_EQ(shown(3, 4).fore_colour, 0);
    EXPECT_FALSE(shown(3, 4).strike_through);
}

TEST_F(CellWriterTest, LeavesTheTextAloneWhenThereIsNone) {
    writer.Write_Cell(model, 3, 4, {.text = "Lunch", .fore_color = 255});
    writer.Write_Cell(model, 3, 4, {.back_color = 77, .fore_color = 99});
    EXPECT_EQ(shown(3, 4).text, "Lunch");
    EXPECT_EQ(shown(3, 4).fore_colour, 255);
    EXPECT_EQ(shown(3, 4).back_colour, 77);
}

TEST_F(CellWriterTest, SetsAlignmentBoldAndBackgroundOnlyWhenTold) {
    writer.Write_Cell(model, 3, 4, {.bold = true, .back_color = 77, .alignment = Alignment::centre});
    EXPECT_EQ(shown(3, 4).alignment, Alignment::centre);
    EXPECT_TRUE(shown(3, 4).bold);
    writer.Write_Cell(model, 3, 4, {.text = "x"});
    EXPECT_EQ(shown(3, 4).alignment, Alignment::centre);
    EXPECT_TRUE(shown(3, 4).bold);
    EXPECT_EQ(shown(3, 4).back_colour, 77);
    writer.Write_Cell(model, 3, 4, {.bold = false});
    EXPECT_FALSE(shown(3, 4).bold);
}

TEST_F(CellWriterTest, RecordsTheCellOfAnActivityAndReplacesAnOldEntry) {
    writer.Write_Cell(model, 3, 4, {.activity_id = "A1", .text = "x"});
    EXPECT_EQ(writer.ActivityCells.at("A1"), "3|4");
    writer.Write_Cell(model, 5, 2, {.activity_id = "A1", .text = "x"});
    EXPECT_EQ(writer.ActivityCells.at("A1"), "5|2");
    EXPECT_EQ(writer.ActivityCells.size(), 1U);
}

TEST_F(CellWriterTest, ShowsThePictureOfAnActivityWhereIconsAreOn) {
    writer.ShowIcons = true;
    writer.Write_Cell(model, 3, 4, {.text = "Lunch", .type = 2, .recurring = true});
    EXPECT_EQ(shown(3, 4).text, "       Lunch");
    EXPECT_EQ(model.CellPicture(), "/program/rmeeting.gif");
    EXPECT_EQ(cells(3, 4).IconIndex(), 5);
    writer.Write_Cell(model, 3, 4, {.text = ""});
    EXPECT_EQ(model.CellPicture(), "");
    EXPECT_EQ(shown(3, 4).text, "");
}

TEST_F(CellWriterTest, ShowsNoPictureWhereIconsAreOff) {
    writer.Write_Cell(model, 3, 4, {.text = "Lunch", .type = 2});
    EXPECT_EQ(shown(3, 4).text, "Lunch");
    EXPECT_EQ(model.CellPicture(), "");
}

TEST_F(CellWriterTest, ShowsTheFailureBoxForACellOutsideTheGrid) {
    writer.Write_Cell(model, 100, 4, {.text = "x"});
    writer.Add_toGridID(100, 4, {});
    ASSERT_EQ(world.box.shown.size(), 2U);
    EXPECT_NE(world.box.shown[0].text.find("Error 380: "), std::string::npos);
    EXPECT_NE(world.box.shown[1].text.find("Error 9: "), std::string::npos);
}

TEST_F(CellWriterTest, NamesTwelvePicturesByTypeDetailsAndRecurrence) {
    EXPECT_EQ(writer.GetPicture(1, false, false), "/program/call.gif");
    EXPECT_EQ(writer.GetPicture(1, false, true), "/program/wdcall.gif");
    EXPECT_EQ(writer.GetPicture(1, true, false), "/program/rcall.gif");
    EXPECT_EQ(writer.GetPicture(1, true, true), "/program/rwdcall.gif");
    EXPECT_EQ(writer.GetPicture(2, false, false), "/program/meeting.gif");
    EXPECT_EQ(writer.GetPicture(2, true, true), "/program/rwdmeeting.gif");
    EXPECT_EQ(writer.GetPicture(3, false, false), "/program/todo.gif");
    EXPECT_EQ(writer.GetPicture(3, false, true), "/program/wdtodo.gif");
    EXPECT_EQ(writer.plus_picture(), "/program/plus.gif");
}

TEST_F(CellWriterTest, InitialisesARecordWhenSomethingIsStoredInIt) {
    cells.rebuild(world.calendar.layout, 10, 9);
    EXPECT_FALSE(cells(2, 3).Initialized());
    writer.Add_toGridID(2, 3, {.back_color = 2});
    EXPECT_TRUE(cells(2, 3).Initialized());
    EXPECT_EQ(cells(2, 3).Row(), 2);
    EXPECT_EQ(cells(2, 3).BackColor(), 2);
}

TEST_F(CellWriterTest, StoresWhatIsPresentAndLeavesTheRest) {
    writer.Add_toGridID(2, 3,
                        {.activity_id = "A1",
                         .contact_id = "C1",
                         .recurring = true,
                         .cleared = true,
                         .back_color = 2,
                         .fore_color = 255,
                         .icon_index = 4,
                         .sort_text = "Ann||x",
                         .text = "x",
                         .has_details = true});
    writer.Add_toGridID(2, 3, {});
    const grid::clsMsgSchedCell& cell = cells(2, 3);
    EXPECT_EQ(cell.ActivityID(), "A1");
    EXPECT_EQ(cell.ContactID(), "C1");
    EXPECT_TRUE(cell.Recurring());
    EXPECT_TRUE(cell.Cleared());
    EXPECT_EQ(cell.BackColor(), 2);
    EXPECT_EQ(cell.ForeColor(), 255);
    EXPECT_EQ(cell.IconIndex(), 4);
    EXPECT_EQ(cell.SortText(), "Ann||x");
    EXPECT_EQ(cell.Text(), "x");
    EXPECT_TRUE(cell.HasDetails());
    writer.Add_toGridID(2, 3, {.recurring = false, .cleared = false, .has_details = false});
    EXPECT_FALSE(cell.Recurring());
    EXPECT_FALSE(cell.Cleared());
    EXPECT_FALSE(cell.HasDetails());
}

} // namespace
