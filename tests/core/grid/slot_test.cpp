#include "core/grid/slot.h"

#include "core/grid/slot_world.h"
#include "support/failure_number.h"

#include <gtest/gtest.h>

namespace {

using values::DateTime;

class SlotTest : public testing::Test {
protected:
    SlotTest() { world.open_with_rows(3); }

    std::vector<std::string> ids(const grid::clsMsgSchedSlot& of) const {
        std::vector<std::string> all;
        for (int index = 0; index < of.record_count(); ++index)
            all.push_back(of.record(index).InUse ? of.record(index).ActivityID : "free");
        return all;
    }

    SlotWorld world;
    grid::clsMsgSchedSlot& slot() { return world.calendar.layout.Slots(grid::SlotNumber(2), 4); }
};

TEST_F(SlotTest, KnowsItsRowsDayAndTime) {
    EXPECT_EQ(slot().SlotNo(), 2);
    EXPECT_EQ(slot().Col(), 4);
    EXPECT_EQ(slot().FirstRow(), 7);
    EXPECT_EQ(slot().LastRow(), 9);
    EXPECT_EQ(slot().Time(), DateTime::time_of_day(10, 0));
    EXPECT_EQ(slot().Day(), DateTime::of(2024, 1, 10));
    world.set("Slots", "Slot2", "10:15 AM");
    EXPECT_EQ(slot().Time(), DateTime::time_of_day(10, 15));
}

TEST_F(SlotTest, KeepsTheFirstDayThatItWasMadeWith) {
    world.calendar.layout.show(DateTime::of(2024, 6, 1));
    EXPECT_EQ(slot().Day(), DateTime::of(2024, 1, 10));
}

TEST_F(SlotTest, BeginsWithFreeRecordsUnchanged) {
    EXPECT_EQ(ids(slot()), (std::vector<std::string>{"free", "free", "free"}));
    EXPECT_FALSE(slot().Changed());
}

TEST_F(SlotTest, KeepsAllThatSetCellIsGiven) {
    slot().SetCell({.ActivityID = "ACTIVITY0001",
                    .ContactID = "CONTACT00001",
                    .Recurring = "1",
                    .Cleared = "0",
                    .BackColor = "12",
                    .ForeColor = "255",
                    .Type = "2",
                    .Text = "Lunch",
                    .Detail = "Ann||Lunch",
                    .HasDetails = "1",
                    .GoesBeyond = 3});
    const grid::SlotRecord& record = slot().record(0);
    EXPECT_TRUE(record.InUse);
    EXPECT_EQ(record.ActivityID, "ACTIVITY0001");
    EXPECT_EQ(record.ContactID, "CONTACT00001");
    EXPECT_EQ(record.Recurring, "1");
    EXPECT_EQ(record.Cleared, "0");
    EXPECT_EQ(record.BackColor, "12");
    EXPECT_EQ(record.ForeColor, "255");
    EXPECT_EQ(record.Type, "2");
    EXPECT_EQ(record.Text, "Lunch");
    EXPECT_EQ(record.Detail, "Ann||Lunch");
    EXPECT_EQ(record.HasDetails, "1");
    EXPECT_EQ(record.GoesBeyond, 3);
    EXPECT_TRUE(slot().Changed());
}

TEST_F(SlotTest, GrowsByOneBeyondItsRowsInOrderOfArrival) {
    for (const char* id : {"D", "B", "C", "A"})
        world.put(2, 4, {.id = id, .user = id, .text = "x"});
    EXPECT_EQ(ids(slot()), (std::vector<std::string>{"D", "B", "C", "A"}));
}

TEST_F(SlotTest, SetCellFillsTheRecordThatDeleteCellFreedBeforeAnyLaterOne) {
    for (const char* id : {"A", "B", "C"})
        world.put(2, 4, {.id = id, .user = id, .text = "x"});
    slot().DeleteCell("A");
    EXPECT_EQ(ids(slot()), (std::vector<std::string>{"free", "B", "C"}));
    world.put(2, 4, {.id = "D", .user = "D", .text = "x"});
    world.put(2, 4, {.id = "E", .user = "E", .text = "x"});
    EXPECT_EQ(ids(slot()), (std::vector<std::string>{"D", "B", "C", "E"}));
}

TEST_F(SlotTest, FreesTheFirstRecordOfAnIdOnly) {
    world.put(2, 4, {.id = "A", .user = "Ann", .text = "x"});
    world.put(2, 4, {.id = "A", .user = "Ann", .text = "y"});
    slot().DeleteCell("A");
    EXPECT_EQ(ids(slot()), (std::vector<std::string>{"free", "A", "free"}));
}

TEST_F(SlotTest, IsNotChangedByTheDeletionOfAnUnknownId) {
    slot().DeleteCell("NOBODY");
    EXPECT_FALSE(slot().Changed());
}

TEST_F(SlotTest, TakesAnEmptyIdForThatOfAFreeRecord) {
    slot().DeleteCell("");
    EXPECT_TRUE(slot().Changed());
    EXPECT_EQ(ids(slot()), (std::vector<std::string>{"free", "free", "free"}));
}

TEST_F(SlotTest, ForgetsItsRecordsAndItsGrowthButNotThatItChanged) {
    for (const char* id : {"A", "B", "C", "D"})
        world.put(2, 4, {.id = id, .user = id, .text = "x"});
    slot().ClearCells();
    EXPECT_EQ(ids(slot()), (std::vector<std::string>{"free", "free", "free"}));
    EXPECT_TRUE(slot().Changed());
}

TEST_F(SlotTest, HoldsNothingOfWhatItWasClearedOf) {
    for (const char* id : {"A", "B", "C", "D"})
        world.put(2, 4, {.id = id, .user = id, .text = "x", .goes_beyond = 2, .has_details = "1"});
    slot().DeleteCell("B");
    slot().ClearCells();
    slot().DeleteCell("C"); // nothing has that id any more
    world.put(2, 4, {.id = "E", .user = "E", .text = "y"});
    world.put(2, 4, {.id = "F", .user = "F", .text = "y"});
    EXPECT_EQ(ids(slot()), (std::vector<std::string>{"E", "F", "free"}));
    EXPECT_EQ(slot().record(0).HasDetails, "0");
    EXPECT_EQ(slot().record(0).GoesBeyond, 0);
    EXPECT_EQ(slot().record(2).ActivityID, "");
    world.calendar.rendering.Display_Changes("");
    EXPECT_EQ(world.calendar.msgSched.cell(slot().LastRow(), 4).text, "");
}

TEST_F(SlotTest, IsFoundInsideTheGridOnly) {
    grid::Slots& slots = world.calendar.layout.Slots;
    EXPECT_EQ(support::failure_number([&] { slots(grid::SlotNumber(9), 1); }), 9);
    EXPECT_EQ(support::failure_number([&] { slots(grid::SlotNumber(-1), 1); }), 9);
    EXPECT_EQ(support::failure_number([&] { slots(grid::SlotNumber(0), 0); }), 9);
    EXPECT_EQ(support::failure_number([&] { slots(grid::SlotNumber(0), 8); }), 9);
    EXPECT_EQ(support::failure_number([&] { slot().record(3); }), 9);
}

} // namespace
