#include "core/grid/slot_world.h"

#include <gtest/gtest.h>

// What becomes of more activities than a slot has rows.
namespace {

using Column = std::vector<std::string>;

class SlotOverflow : public SlotDrawingTest {
protected:
    void put_many(int slot, int col, const std::string& names) {
        for (const char name : names)
            world.put(
                slot, col,
                {.id = std::string(1, name), .user = std::string(1, name), .text = std::string("text ") + name});
    }
};

TEST_F(SlotOverflow, ShowsAsManyActivitiesAsRowsWithoutAPlus) {
    world.open_with_rows(3, 2);
    put_many(0, 1, "abc");
    draw(0, 1);
    EXPECT_EQ(world.column(1), (Column{"text a", "text b", "text c", "", "", ""}));
}

//  rows of slot 0   1  call  a
//                   2  call  b
//                   3  plus  c    without its own picture, behind seven blanks more
//  rows of slot 1   4        d    the surplus one, until slot 1 is drawn
TEST_F(SlotOverflow, MarksTheLastRowWithAPlusAndWritesTheSurplusOneIntoTheNextRow) {
    world.open_with_rows(3, 2);
    world.calendar.writer.ShowIcons = true;
    put_many(0, 1, "abcd");
    draw(0, 1);
    EXPECT_EQ(world.column(1), (Column{"call:       text a", "call:       text b", "plus:              text c",
                                       "              text d", "", ""}));
    EXPECT_EQ(world.place_of("d"), "4|1");
    EXPECT_EQ(layout.Cells(4, 1).ActivityID(), "d");
    EXPECT_FALSE(layout.Slots(grid::SlotNumber(0), 1).Changed());
}

TEST_F(SlotOverflow, MovesTheTextClearOfThePlusWhereIconsAreOff) {
    world.open_with_rows(2, 2);
    put_many(0, 1, "abc");
    draw(0, 1);
    EXPECT_EQ(world.column(1), (Column{"text a", "plus:       text b", "       text c", ""}));
}

TEST_F(SlotOverflow, IsClearedBelowWhenTheNextSlotIsDrawnButItsPlaceStaysRecorded) {
    world.open_with_rows(2, 2);
    put_many(0, 1, "abc");
    put_many(1, 1, "x");
    world.calendar.rendering.Display_Changes("");
    EXPECT_EQ(world.column(1), (Column{"text a", "plus:       text b", "text x", ""}));
    EXPECT_EQ(world.place_of("c"), "3|1");
    EXPECT_EQ(world.place_of("x"), "3|1");
    EXPECT_EQ(layout.Cells(3, 1).ActivityID(), "x");
}

TEST_F(SlotOverflow, RunsOffTheGridFromTheLastSlotWithTheFailureBox) {
    world.open_with_rows(2, 1);
    put_many(0, 1, "abc");
    draw(0, 1, "b");
    EXPECT_EQ(world.column(1), (Column{"text a", "plus:       text b"}));
    ASSERT_EQ(world.box.shown.size(), 1U);
    EXPECT_NE(world.box.shown[0].text.find("Error 380: "), std::string::npos);
    EXPECT_NE(world.box.shown[0].text.find("in clsMsgSchedSlot: Sub Write_To_Grid - Line # "), std::string::npos);
    EXPECT_TRUE(layout.Slots(grid::SlotNumber(0), 1).Changed());
    EXPECT_EQ(result, (table::Place{2, 1}));
}

// Free records count as records: the plus comes although nothing more follows.
TEST_F(SlotOverflow, ShowsThePlusForFreeRecordsBeyondTheRows) {
    world.open_with_rows(2, 2);
    put_many(0, 1, "abc");
    layout.Slots(grid::SlotNumber(0), 1).DeleteCell("a");
    draw(0, 1);
    EXPECT_EQ(world.column(1), (Column{"text b", "plus:       text c", "", ""}));
    EXPECT_TRUE(world.box.shown.empty());
}

TEST_F(SlotOverflow, ShowsNoPlusForFreeRecordsWhenFewerActivitiesThanRowsAreLeft) {
    world.open_with_rows(2, 2);
    put_many(0, 1, "abc");
    layout.Slots(grid::SlotNumber(0), 1).DeleteCell("a");
    layout.Slots(grid::SlotNumber(0), 1).DeleteCell("c");
    draw(0, 1);
    EXPECT_EQ(world.column(1), (Column{"text b", "", "", ""}));
}

TEST_F(SlotOverflow, FailsWhereASurplusActivityRunsOnBeyondTheGrid) {
    world.open_with_rows(1, 3);
    put_many(1, 1, "a");
    world.put(1, 1, {.id = "b", .user = "b", .text = "text b", .goes_beyond = 1});
    draw(1, 1);
    ASSERT_EQ(world.box.shown.size(), 1U);
    EXPECT_NE(world.box.shown[0].text.find("Error 9: "), std::string::npos);
    EXPECT_TRUE(layout.Slots(grid::SlotNumber(1), 1).Changed());
}

// Ann's first activity by detail is shown, the other one sets the plus.
TEST_F(SlotOverflow, MarksTheUsersCellWithAPlusWhereAUserHasTwo) {
    world.open_with_users({"Ann", "Bob"}, 1);
    world.put(0, 2, {.id = "A2", .user = "Ann", .text = "Review"});
    world.put(0, 2, {.id = "A1", .user = "Ann", .text = "Lunch"});
    world.put(0, 2, {.id = "B1", .user = "Bob", .text = "Call"});
    draw(0, 2);
    EXPECT_EQ(world.column(2), (Column{"plus:       Lunch", "Call"}));
    EXPECT_EQ(layout.Cells(1, 2).ActivityID(), "A1");
    EXPECT_FALSE(world.calendar.writer.ActivityCells.contains("A2"));
}

TEST_F(SlotOverflow, LeavesTheTextWithIconsWhereItIsWhenThePlusComes) {
    world.open_with_users({"Ann"}, 1);
    world.calendar.writer.ShowIcons = true;
    world.put(0, 2, {.id = "A1", .user = "Ann", .text = "Lunch"});
    world.put(0, 2, {.id = "A2", .user = "Ann", .text = "Review"});
    draw(0, 2);
    EXPECT_EQ(world.column(2), (Column{"plus:       Lunch"}));
}

TEST_F(SlotOverflow, MovesTheTextSevenBlanksForEachHiddenActivityWhereIconsAreOff) {
    world.open_with_users({"Ann"}, 1);
    world.put(0, 2, {.id = "A1", .user = "Ann", .text = "Lunch"});
    world.put(0, 2, {.id = "A2", .user = "Ann", .text = "Review"});
    world.put(0, 2, {.id = "A3", .user = "Ann", .text = "Sale"});
    draw(0, 2);
    EXPECT_EQ(world.column(2), (Column{"plus:              Lunch"}));
}

TEST_F(SlotOverflow, ShowsAnActivityThatIsInTheSlotTwiceWithoutAPlus) {
    world.open_with_users({"Ann"}, 1);
    world.put(0, 2, {.id = "A1", .user = "Ann", .text = "Lunch"});
    world.put(0, 2, {.id = "A1", .user = "Ann", .text = "Lunch"});
    draw(0, 2);
    EXPECT_EQ(world.column(2), (Column{"Lunch"}));
}

} // namespace
