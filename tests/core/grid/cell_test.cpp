#include "core/grid/cell.h"

#include "support/failure_number.h"
#include "support/grid_world.h"

#include <gtest/gtest.h>

namespace {

using values::DateTime;

// A week from Sunday, 7 January 2024, with two users: slots of two rows, columns 2 to 8.
class CellTest : public testing::Test {
protected:
    CellTest() {
        world.have_users({"Ann", "Bob"});
        world.open(DateTime::of(2024, 1, 10));
    }
    support::GridWorld world;
    grid::Layout& layout = world.calendar.layout;
};

TEST_F(CellTest, KnowsItsSlotDayAndTime) {
    grid::clsMsgSchedCell cell(layout);
    cell.Initialize(4, 3);
    EXPECT_TRUE(cell.Initialized());
    EXPECT_EQ(cell.Row(), 4);
    EXPECT_EQ(cell.Col(), 3);
    EXPECT_EQ(cell.Slot(), 1);
    EXPECT_EQ(cell.Time(), DateTime::time_of_day(9, 0));
    EXPECT_EQ(cell.DateTime(), DateTime::time_of_day(9, 0));
    EXPECT_EQ(cell.Day(), DateTime::of(2024, 1, 8));
    EXPECT_EQ(cell.DateDay(), DateTime::of(2024, 1, 8));
    EXPECT_EQ(cell.Duration(), "60");
    EXPECT_EQ(cell.DurationMinutes(), 60);
}

TEST_F(CellTest, KeepsItsTextAndActivityWhenInitialisedWithEmptyOnes) {
    grid::clsMsgSchedCell cell(layout);
    cell.Initialize(1, 2, "Meeting", "ACTIVITY0001");
    cell.Initialize(3, 4);
    EXPECT_EQ(cell.Row(), 3);
    EXPECT_EQ(cell.Text(), "Meeting");
    EXPECT_EQ(cell.ActivityID(), "ACTIVITY0001");
    cell.Initialize(3, 4, "Call", "ACTIVITY0002");
    EXPECT_EQ(cell.Text(), "Call");
    EXPECT_EQ(cell.ActivityID(), "ACTIVITY0002");
}

TEST_F(CellTest, ShowsCallersTheTextWithoutTheRoomForThePicture) {
    grid::clsMsgSchedCell cell(layout);
    cell.Text("       Lunch with Cem ");
    EXPECT_EQ(cell.Text(), "Lunch with Cem");
    EXPECT_TRUE(cell.IsOccupied());
    cell.Delete();
    EXPECT_FALSE(cell.IsOccupied());
}

TEST_F(CellTest, CountsBlanksAloneAsOccupied) {
    grid::clsMsgSchedCell cell(layout);
    cell.Text("       ");
    EXPECT_EQ(cell.Text(), "");
    EXPECT_TRUE(cell.IsOccupied());
}

TEST_F(CellTest, BelongsToTheUserOfItsRow) {
    EXPECT_EQ(layout.Cells(1, 5).User(), "Ann");
    EXPECT_EQ(layout.Cells(2, 5).User(), "Bob");
    EXPECT_EQ(layout.Cells(3, 5).User(), "Ann");
}

TEST_F(CellTest, HasAnEmptyUserWhereOneRowPerUserIsOff) {
    layout.OneRowPerUser(false);
    EXPECT_EQ(layout.Cells(1, 5).User(), "");
}

TEST_F(CellTest, TimeFollowsAChangeOfItsSlotsStartAtOnceButDurationMinutesStays) {
    const grid::clsMsgSchedCell& cell = layout.Cells(3, 2);
    EXPECT_EQ(cell.Time(), DateTime::time_of_day(9, 0));
    world.set("Slots", "Slot1", "09:20 AM");
    world.set("Slots", "DurationSlot1", "40");
    EXPECT_EQ(cell.Time(), DateTime::time_of_day(9, 20));
    EXPECT_EQ(cell.Duration(), "40");
    EXPECT_EQ(cell.DurationMinutes(), 60);
}

TEST_F(CellTest, FollowsTheFirstDayShown) {
    const grid::clsMsgSchedCell& cell = layout.Cells(1, 2);
    layout.show(DateTime::of(2024, 3, 1));
    EXPECT_EQ(cell.DateDay(), DateTime::of(2024, 3, 1));
}

TEST_F(CellTest, ClearLeavesDependsOnActivityInPlace) {
    grid::clsMsgSchedCell& cell = layout.Cells(1, 2);
    cell.Text("Call");
    cell.ActivityID("ACTIVITY0001");
    cell.ContactID("CONTACT00001");
    cell.SortText("Ann||9:00");
    cell.Recurring(true);
    cell.Cleared(true);
    cell.HasDetails(true);
    cell.BackColor(2);
    cell.ForeColor(255);
    cell.IconIndex(4);
    cell.DependsOnActivity("ACTIVITY0002");
    cell.DependsOnActivityX(3);
    cell.DependsOnActivityY(2);
    cell.Clear();
    EXPECT_EQ(cell.Text(), "");
    EXPECT_EQ(cell.ActivityID(), "");
    EXPECT_EQ(cell.ContactID(), "");
    EXPECT_EQ(cell.SortText(), "");
    EXPECT_TRUE(cell.Recurring());
    EXPECT_TRUE(cell.Cleared());
    EXPECT_TRUE(cell.HasDetails());
    EXPECT_EQ(cell.BackColor(), 2);
    EXPECT_EQ(cell.ForeColor(), 255);
    EXPECT_EQ(cell.IconIndex(), 4);
    EXPECT_EQ(cell.DependsOnActivity(), "ACTIVITY0002");
    EXPECT_EQ(cell.DependsOnActivityX(), 3);
    EXPECT_EQ(cell.DependsOnActivityY(), 2);
}

TEST_F(CellTest, HasNoSlotBeforeItIsInitialised) {
    const grid::clsMsgSchedCell cell(layout);
    EXPECT_FALSE(cell.Initialized());
    EXPECT_EQ(support::failure_number([&] { cell.Slot(); }), 6);
    EXPECT_EQ(support::failure_number([&] { cell.Time(); }), 6);
    EXPECT_EQ(cell.DateDay(), layout.StartDate());
}

TEST_F(CellTest, NeverGoesBeyondInAnythingThatIsDrawn) {
    world.calendar.layout.Slots(grid::SlotNumber(0), 2)
        .SetCell({.ActivityID = "ACTIVITY0001",
                  .ContactID = "",
                  .Recurring = "0",
                  .Cleared = "0",
                  .BackColor = "",
                  .ForeColor = "0",
                  .Type = "1",
                  .Text = "Call",
                  .Detail = "Ann||",
                  .HasDetails = "0",
                  .GoesBeyond = 2});
    world.calendar.rendering.Display_Changes("");
    for (const grid::clsMsgSchedCell& cell : layout.Cells)
        EXPECT_FALSE(cell.GoesBeyond());
}

TEST_F(CellTest, IsFoundInsideTheGridOnly) {
    EXPECT_EQ(support::failure_number([&] { layout.Cells(layout.Cells.rows(), 0); }), 9);
    EXPECT_EQ(support::failure_number([&] { layout.Cells(0, layout.Cells.cols()); }), 9);
    EXPECT_EQ(support::failure_number([&] { layout.Cells(-1, 0); }), 9);
    EXPECT_EQ(support::failure_number([&] { layout.Cells.reference(0, -1); }), 9);
}

} // namespace
