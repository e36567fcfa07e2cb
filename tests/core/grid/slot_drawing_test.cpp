#include "core/grid/slot_world.h"
#include "core/grid/sort_table.h"

#include <gtest/gtest.h>

namespace {

using Column = std::vector<std::string>;

// The plain way to the same order: neighbours change places as long as the left key is the greater.
void bubble_sort(std::vector<grid::SortEntry>& table) {
    for (std::size_t end = table.size(); end > 1; --end)
        for (std::size_t left = 0; left + 1 < end; ++left)
            if (table[left].key > table[left + 1].key)
                std::swap(table[left], table[left + 1]);
}

// Enough of each key that a sort which doesn't keep equal ones in order would show.
TEST(SortTable, GivesWhatABubbleSortOfNeighboursGives) {
    const std::vector<std::string> keys = {"Bob||b", "ann||a", "Ann||b", "", "Bob||b", "Ann||a", "Bob||a"};
    std::vector<grid::SortEntry> table;
    for (int record = 0; record < 60; ++record)
        table.push_back({record, keys[static_cast<std::size_t>(record * record) % keys.size()]});
    std::vector<grid::SortEntry> expected = table;
    bubble_sort(expected);
    grid::Sort_Table(table);
    for (std::size_t index = 0; index < table.size(); ++index)
        EXPECT_EQ(table[index].record, expected[index].record) << index;
}

TEST(SortTable, PutsCapitalsFirstAndLeavesEqualKeysInOrder) {
    std::vector<grid::SortEntry> table = {{0, "ann"}, {1, "Zoe"}, {2, "ann"}, {3, "Ann"}};
    grid::Sort_Table(table);
    EXPECT_EQ(table[0].record, 3);
    EXPECT_EQ(table[1].record, 1);
    EXPECT_EQ(table[2].record, 0);
    EXPECT_EQ(table[3].record, 2);
}

class SlotDrawing : public SlotDrawingTest {};

TEST_F(SlotDrawing, SplitsTheUsersNameFromTheDetail) {
    EXPECT_EQ(grid::clsMsgSchedSlot::ExtractUserName("Ann||1/5/2024 9:00:00 AMLunch||x"), "Ann");
    EXPECT_EQ(grid::clsMsgSchedSlot::ExtractUserName("Ann"), "Ann");
    EXPECT_EQ(grid::clsMsgSchedSlot::ExtractUserName("||x"), "");
}

TEST_F(SlotDrawing, FindsTheUsersRowInTheSlot) {
    world.open_with_users({"Ann", "Bob"});
    world.calendar.msgSched.Col(3);
    const grid::clsMsgSchedSlot& slot = layout.Slots(grid::SlotNumber(1), 3);
    EXPECT_EQ(slot.GetCorrectCell(world.calendar.msgSched, "Ann", slot.FirstRow()), 3);
    EXPECT_EQ(slot.GetCorrectCell(world.calendar.msgSched, "Bob", slot.FirstRow()), 4);
    EXPECT_EQ(slot.GetCorrectCell(world.calendar.msgSched, "Cem", slot.FirstRow()), -1);
}

// Arrival: Bob, Ann late, Ann early.  Drawn: Ann early, Ann late, Bob.
TEST_F(SlotDrawing, OrdersASlotByUserAndThenByTheRestOfTheDetail) {
    world.open_with_rows(3, 2);
    world.put(0, 1, {.id = "B1", .user = "Bob", .text = "Call"});
    world.put(0, 1, {.id = "A2", .user = "Ann", .text = "Review"});
    world.put(0, 1, {.id = "A1", .user = "Ann", .text = "Lunch"});
    draw(0, 1);
    EXPECT_EQ(world.column(1), (Column{"Lunch", "Review", "Call", "", "", ""}));
    EXPECT_EQ(world.place_of("A1"), "1|1");
    EXPECT_EQ(world.place_of("B1"), "3|1");
    EXPECT_FALSE(layout.Slots(grid::SlotNumber(0), 1).Changed());
}

TEST_F(SlotDrawing, ClearsAnEmptySlot) {
    world.open_with_rows(2, 1);
    world.put(0, 1, {.id = "A1", .user = "Ann", .text = "Lunch"});
    world.calendar.writer.ShowIcons = true;
    draw(0, 1);
    world.calendar.msgSched.Row(1);
    world.calendar.msgSched.CellBackColor(77);
    layout.Slots(grid::SlotNumber(0), 1).DeleteCell("A1");
    draw(0, 1);
    EXPECT_EQ(world.column(1), (Column{"", ""}));
    EXPECT_EQ(world.calendar.msgSched.cell(1, 1).back_colour, 77);
    EXPECT_EQ(layout.Cells(1, 1).ActivityID(), "");
    EXPECT_FALSE(layout.Slots(grid::SlotNumber(0), 1).Changed());
}

TEST_F(SlotDrawing, ShowsThePictureWithRoomForItWhereIconsAreOn) {
    world.open_with_rows(2, 1);
    world.calendar.writer.ShowIcons = true;
    world.put(0, 1,
              {.id = "A1", .user = "Ann", .text = "Lunch", .recurring = "1", .has_details = "1", .type = "2"});
    draw(0, 1);
    EXPECT_EQ(world.column(1), (Column{"rwdmeeting:       Lunch", ""}));
    EXPECT_EQ(layout.Cells(1, 1).IconIndex(), 5);
    EXPECT_EQ(layout.Cells(1, 1).Text(), "Lunch");
    // Drawn again, the text has no more room than before.
    draw(0, 1);
    EXPECT_EQ(world.column(1), (Column{"rwdmeeting:       Lunch", ""}));
}

TEST_F(SlotDrawing, StoresTheIconsNumberWhateverIsShown) {
    world.open_with_rows(3, 1);
    world.put(0, 1, {.id = "A1", .user = "a", .text = "Lunch", .type = "2"});
    world.put(0, 1, {.id = "A2", .user = "b", .text = "", .recurring = "1", .type = "3"});
    draw(0, 1);
    EXPECT_EQ(world.column(1), (Column{"Lunch", "", ""}));
    EXPECT_EQ(layout.Cells(1, 1).IconIndex(), 2);
    EXPECT_EQ(layout.Cells(2, 1).IconIndex(), 6);
    world.calendar.writer.ShowIcons = true;
    world.put(0, 2, {.id = "A3", .user = "a", .text = "", .type = "1"});
    draw(0, 2);
    EXPECT_EQ(layout.Cells(1, 2).IconIndex(), 1);
}

TEST_F(SlotDrawing, StoresTheActivityInTheCellsRecord) {
    world.open_with_rows(2, 1);
    world.put(0, 1,
              {.id = "A1",
               .user = "Ann",
               .text = "Lunch",
               .cleared = "1",
               .recurring = "1",
               .has_details = "1",
               .fore_color = "4210752"});
    layout.Cells(1, 1).BackColor(2);
    draw(0, 1);
    const grid::clsMsgSchedCell& cell = layout.Cells(1, 1);
    EXPECT_EQ(cell.ActivityID(), "A1");
    EXPECT_EQ(cell.ContactID(), "CONTACT00001");
    EXPECT_TRUE(cell.Recurring());
    EXPECT_TRUE(cell.Cleared());
    EXPECT_TRUE(cell.HasDetails());
    EXPECT_EQ(cell.SortText(), "Ann||Lunch");
    EXPECT_EQ(cell.ForeColor(), 4210752);
    EXPECT_EQ(cell.BackColor(), 2);
    EXPECT_EQ(cell.Text(), "Lunch");
}

TEST_F(SlotDrawing, TakesColoursFromTheRecordAndKeepsTheBackgroundWithoutOne) {
    world.open_with_rows(4, 1);
    world.put(0, 1, {.id = "A1", .user = "a", .text = "x", .fore_color = "255", .back_color = "65280"});
    world.put(0, 1, {.id = "A2", .user = "b", .text = "x", .fore_color = ""});
    world.put(0, 1, {.id = "A3", .user = "c", .text = "x", .fore_color = "&HFF0000"});
    draw(0, 1);
    const table::GridModel& model = world.calendar.msgSched;
    EXPECT_EQ(model.cell(1, 1).fore_colour, 255);
    EXPECT_EQ(model.cell(1, 1).back_colour, 65280);
    EXPECT_EQ(model.cell(2, 1).fore_colour, 0);
    EXPECT_EQ(model.cell(2, 1).back_colour, 0xFFFFFF);
    EXPECT_EQ(model.cell(3, 1).fore_colour, 0xFF0000);
}

TEST_F(SlotDrawing, PassesOverAForeColourThatIsNoNumber) {
    world.open_with_rows(2, 1);
    world.calendar.msgSched.Row(1);
    world.calendar.msgSched.Col(1);
    world.calendar.msgSched.CellForeColor(123);
    world.put(0, 1, {.id = "A1", .user = "a", .text = "x", .fore_color = "red"});
    draw(0, 1);
    EXPECT_EQ(world.column(1), (Column{"x", ""}));
    EXPECT_EQ(world.calendar.msgSched.cell(1, 1).fore_colour, 123);
    EXPECT_TRUE(world.box.shown.empty());
}

TEST_F(SlotDrawing, PutsTheTextBackToTheTopLeftOfACellThatContinuedAnActivity) {
    world.open_with_rows(1, 2);
    world.calendar.msgSched.Row(2);
    world.calendar.msgSched.Col(1);
    world.calendar.msgSched.CellAlignment(table::Alignment::left_centre);
    world.put(1, 1, {.id = "A1", .user = "a", .text = "x"});
    draw(1, 1);
    EXPECT_EQ(world.calendar.msgSched.cell(2, 1).alignment, table::Alignment::left_top);
}

TEST_F(SlotDrawing, StrikesAClearedActivityThroughAndContinuesItNowhere) {
    world.open_with_rows(1, 3);
    world.put(0, 1, {.id = "A1", .user = "a", .text = "x", .goes_beyond = 2, .cleared = "1"});
    world.put(0, 2, {.id = "A2", .user = "a", .text = "y", .goes_beyond = 1});
    draw(0, 1);
    draw(0, 2);
    EXPECT_TRUE(world.calendar.msgSched.cell(1, 1).strike_through);
    EXPECT_FALSE(world.calendar.msgSched.cell(1, 2).strike_through);
    EXPECT_EQ(span_list, "2,2,255|");
    EXPECT_EQ(layout.Cells(2, 1).DependsOnActivity(), "");
}

TEST_F(SlotDrawing, LinksTheCellsIntoWhichAnActivityRunsOn) {
    world.open_with_rows(2, 3);
    world.put(0, 3, {.id = "A1", .user = "a", .text = "first"});
    world.put(0, 3, {.id = "A2", .user = "b", .text = "second", .goes_beyond = 2});
    draw(0, 3);
    EXPECT_EQ(span_list, "4,3,255|6,3,255|");
    EXPECT_EQ(layout.Cells(6, 3).DependsOnActivity(), "A2");
    EXPECT_EQ(layout.Cells(6, 3).DependsOnActivityX(), 2);
    EXPECT_EQ(layout.Cells(6, 3).DependsOnActivityY(), 3);
    EXPECT_EQ(layout.Cells(3, 3).DependsOnActivity(), "");
}

TEST_F(SlotDrawing, TellsWhereTheSoughtActivityIs) {
    world.open_with_rows(2, 2);
    world.put(1, 5, {.id = "A1", .user = "a", .text = "x"});
    world.put(1, 5, {.id = "A2", .user = "b", .text = "y"});
    draw(1, 5, "A2");
    EXPECT_EQ(result, (table::Place{4, 5}));
}

TEST_F(SlotDrawing, LeavesTheResultAloneWhereTheSoughtActivityIsNot) {
    world.open_with_rows(2, 2);
    world.put(1, 5, {.id = "A1", .user = "a", .text = "x"});
    result = {1, 3};
    draw(1, 5, "A2");
    EXPECT_EQ(result, (table::Place{1, 3}));
}

// An activity without a text takes its row but shows nothing.
TEST_F(SlotDrawing, ShowsNoPictureWithoutAText) {
    world.open_with_rows(2, 1);
    world.calendar.writer.ShowIcons = true;
    world.put(0, 1, {.id = "A1", .user = "a", .text = ""});
    world.put(0, 1, {.id = "A2", .user = "b", .text = "y"});
    draw(0, 1);
    EXPECT_EQ(world.column(1), (Column{"", "call:       y"}));
    EXPECT_EQ(layout.Cells(1, 1).ActivityID(), "A1");
}

TEST_F(SlotDrawing, PutsEachActivityIntoItsUsersRow) {
    world.open_with_users({"Ann", "Bob", "Cem"}, 2);
    world.put(1, 2, {.id = "C1", .user = "Cem", .text = "Call"});
    world.put(1, 2, {.id = "A1", .user = "Ann", .text = "Lunch"});
    draw(1, 2);
    EXPECT_EQ(world.column(2), (Column{"", "", "", "Lunch", "", "Call"}));
}

TEST_F(SlotDrawing, SkipsTheActivityOfAUserWithoutARow) {
    world.open_with_users({"Ann", "Bob"}, 1);
    world.put(0, 2, {.id = "D1", .user = "Dora", .text = "Call"});
    draw(0, 2);
    EXPECT_EQ(world.column(2), (Column{"", ""}));
    EXPECT_FALSE(world.calendar.writer.ActivityCells.contains("D1"));
    EXPECT_FALSE(layout.Slots(grid::SlotNumber(0), 2).Changed());
}

} // namespace
