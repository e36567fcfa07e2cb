#include "support/grid_world.h"

#include <gtest/gtest.h>

namespace {

using values::DateTime;

class LayoutShape : public testing::Test {
protected:
    void open(bool one_row_per_user, int days = 7) {
        world.open(DateTime::of(2024, 1, 10), days, one_row_per_user);
    }

    support::GridWorld world;
    grid::Layout& layout = world.calendar.layout;
    table::GridModel& model = world.calendar.msgSched;
};

TEST_F(LayoutShape, GivesEachUserARowInEachOfNineSlotsByDefault) {
    world.have_users({"Ann", "Bob", "Cem"});
    open(true);
    EXPECT_EQ(model.FixedCols(), 2);
    EXPECT_EQ(model.Cols(), 9);
    EXPECT_EQ(layout.CellsPerSlot(), 3);
    EXPECT_EQ(layout.SlotsCount(), 9);
    EXPECT_EQ(model.Rows(), 28);
    EXPECT_EQ(layout.Cells.rows(), 28);
    EXPECT_EQ(layout.Cells.cols(), 9);
    EXPECT_EQ(layout.Slots.count(), 9);
    EXPECT_EQ(layout.Slots.first_col(), 2);
    EXPECT_EQ(layout.Slots.last_col(), 8);
    EXPECT_TRUE(world.box.shown.empty());
}

TEST_F(LayoutShape, HasFourRowsPerSlotByDefaultWhereRowsHaveNoUsers) {
    world.have_users({"Ann"});
    open(false);
    EXPECT_EQ(model.FixedCols(), 1);
    EXPECT_EQ(model.Cols(), 8);
    EXPECT_EQ(layout.CellsPerSlot(), 4);
    EXPECT_EQ(model.Rows(), 37);
}

TEST_F(LayoutShape, HasOneDayColumnInTheDailyView) {
    world.have_users({"Ann"});
    open(true, 1);
    EXPECT_EQ(model.Cols(), 3);
    EXPECT_EQ(layout.Slots.last_col(), 2);
}

TEST_F(LayoutShape, FollowsTheSettings) {
    world.set("Settings", "CellsPerSlot", "2");
    world.set("Slots", "SlotsCount", "5");
    world.have_users({"Ann"});
    open(false);
    EXPECT_EQ(model.Rows(), 11);
}

TEST_F(LayoutShape, ShowsTheFailureBoxForMoreRowsThan16BitsCount) {
    world.set("Settings", "CellsPerSlot", "2000");
    world.set("Slots", "SlotsCount", "20");
    world.have_users({"Ann"});
    open(false);
    ASSERT_FALSE(world.box.shown.empty());
    EXPECT_NE(world.box.shown[0].text.find("Error 6: "), std::string::npos);
    EXPECT_NE(world.box.shown[0].text.find("in frmMain: Sub Initialize_Calendar"), std::string::npos);
}

TEST_F(LayoutShape, HasAtLeastOneRowPerSlotWhereTheFilterNamesNobodyThatExists) {
    world.set("Filter", "Users", "GONE--------");
    world.have_users({"Ann"});
    open(true);
    EXPECT_EQ(layout.CellsPerSlot(), 1);
    EXPECT_EQ(model.Rows(), 10);
    EXPECT_TRUE(world.box.shown.empty());
}

TEST_F(LayoutShape, HasOnlyTheTitleRowWithoutUsers) {
    open(true);
    EXPECT_EQ(model.Rows(), 1);
}

TEST_F(LayoutShape, MakesAllRecordsAnew) {
    world.have_users({"Ann"});
    open(true);
    layout.Slots(grid::SlotNumber(0), 2)
        .SetCell({.ActivityID = "A1",
                  .ContactID = "",
                  .Recurring = "0",
                  .Cleared = "0",
                  .BackColor = "",
                  .ForeColor = "0",
                  .Type = "1",
                  .Text = "x",
                  .Detail = "Ann||x",
                  .HasDetails = "0"});
    layout.Cells(1, 2).ActivityID("A1");
    layout.Initialize_Calendar(layout.StartDate(), layout.EndDate());
    EXPECT_FALSE(layout.Slots(grid::SlotNumber(0), 2).record(0).InUse);
    EXPECT_FALSE(layout.Slots(grid::SlotNumber(0), 2).Changed());
    EXPECT_EQ(layout.Cells(1, 2).ActivityID(), "");
    EXPECT_FALSE(layout.Cells(1, 2).Initialized());
}

TEST_F(LayoutShape, ReadsTheColoursWithTheirDefaults) {
    world.set("Settings", "Color1", "12648447");
    world.have_users({"Ann"});
    open(true);
    EXPECT_EQ(layout.Color0(), "&H00FFFFFF");
    EXPECT_EQ(layout.Color1(), "12648447");
    EXPECT_EQ(layout.Color3(), "&HFFC0C0");
    EXPECT_EQ(layout.Color4(), "&H40C0");
}

TEST_F(LayoutShape, GivesFixedColumns1000And1300WhereNothingIsStored) {
    world.have_users({"Ann"});
    open(true);
    EXPECT_EQ(model.ColWidth(0), 1000);
    EXPECT_EQ(model.ColWidth(1), 1300);
    EXPECT_EQ(model.ColWidth(2), 1800);
    EXPECT_EQ(model.ColWidth(8), 1800);
    EXPECT_EQ(model.RowHeight(1), 820);
    EXPECT_EQ(model.RowHeight(9), 820);
    EXPECT_EQ(model.RowHeight(0), table::GridModel::standard_row_height);
}

TEST_F(LayoutShape, TakesStoredWidthsAndTheStandardSizes) {
    world.user_store.write("Settings", "FixedColWidth1", "2222");
    layout.StdColWidth(1500);
    layout.StdRowHeight(400);
    world.have_users({"Ann"});
    open(true);
    EXPECT_EQ(model.ColWidth(0), 1000);
    EXPECT_EQ(model.ColWidth(1), 2222);
    EXPECT_EQ(model.ColWidth(5), 1500);
    EXPECT_EQ(model.RowHeight(3), 400);
}

TEST_F(LayoutShape, KeepsSizesDuringAJump) {
    world.have_users({"Ann"});
    open(true);
    model.ColWidth(4, 2500);
    model.RowHeight(2, 1200);
    layout.KeepCellDims = true;
    world.calendar.Setup_Calendar(DateTime::of(2024, 2, 4), DateTime::of(2024, 2, 10));
    EXPECT_EQ(model.ColWidth(4), 2500);
    EXPECT_EQ(model.RowHeight(2), 1200);
    EXPECT_EQ(layout.StartDate(), DateTime::of(2024, 2, 4));
    layout.KeepCellDims = false;
    world.calendar.Setup_Calendar(DateTime::of(2024, 2, 4), DateTime::of(2024, 2, 10));
    EXPECT_EQ(model.ColWidth(4), 1800);
    EXPECT_EQ(model.RowHeight(2), 820);
}

//   column   2  3  4  5  6  7  8
//   day     Su Mo Tu We Th Fr Sa
TEST_F(LayoutShape, BeginsAWeekOnADayOffInAColumnOfWidthZero) {
    world.set("Settings", "1stday", "3");
    world.have_users({"Ann"});
    layout.DaysOff("3");
    open(true);
    EXPECT_EQ(layout.StartDate(), DateTime::of(2024, 1, 9));
    EXPECT_EQ(model.ColWidth(2), 0);
    EXPECT_EQ(model.ColWidth(3), 1800);
}

TEST_F(LayoutShape, HidesDaysOffAndShowsThemAgain) {
    world.have_users({"Ann"});
    layout.DaysOff("17");
    open(true);
    EXPECT_EQ(model.ColWidth(2), 0);
    EXPECT_EQ(model.ColWidth(8), 0);
    EXPECT_EQ(model.ColWidth(3), 1800);
    model.ColWidth(3, 2500);
    layout.DaysOff("7");
    layout.Hide_DaysOff();
    EXPECT_EQ(model.ColWidth(2), 1800);
    EXPECT_EQ(model.ColWidth(3), 2500);
    EXPECT_EQ(model.ColWidth(8), 0);
}

} // namespace
