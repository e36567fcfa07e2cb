#include "core/interaction/drag_drop.h"

#include "interaction_world.h"

#include <gtest/gtest.h>

namespace {

using Calls = std::vector<std::string>;
using values::DateTime;

DateTime at(int day, int hour) { return DateTime::of(2024, 1, day, hour); }

// Four rows in every slot, which belong to nobody and are filled from the top.
class DragInSharedRows : public testing::Test, protected support::InteractionWorld {
protected:
    const int nine = 1, eleven = 3;          // slots
    const int wednesday = 1 + 3, friday = 6; // columns
};

TEST_F(DragInSharedRows, OnAnotherRowOfTheSameSlotIsNone) {
    const std::string id = add(meeting(10, 9));
    open(7, false);
    press(1, 2, row_of(nine), wednesday);
    hands.drag_drop.msgSched_DragDrop(x(wednesday), y(row_of(nine) + 1));
    EXPECT_EQ(record.calls, Calls{});
    EXPECT_EQ(calendar.msgSched.Row(), row_of(nine)) << "the source is the current cell again";
    EXPECT_EQ(cell(row_of(nine) + 1, wednesday).ActivityID(), id) << "the copy stays until the next refresh";
}

TEST_F(DragInSharedRows, TheCurrentCellFollowsTheActivityToTheRowWhereItStands) {
    const std::string id = add(meeting(10, 9));
    const std::string other = add(meeting(12, 11, 120));
    change(other, [&](store::Activity& activity) { activity.contacts = {dana}; });
    open(7, false);
    ASSERT_EQ(shown(row_of(eleven), friday), "Dana Jones");
    drag(row_of(nine), wednesday, row_of(eleven) + 3, friday);
    EXPECT_EQ(stored(id).start, at(12, 11));
    const int row = cell(row_of(eleven), friday).ActivityID() == id ? row_of(eleven) : row_of(eleven) + 1;
    EXPECT_EQ(shown(row, friday), "Chris Smith");
    EXPECT_EQ(calendar.msgSched.Row(), row);
    EXPECT_EQ(calendar.msgSched.Col(), friday);
    EXPECT_EQ(&selected(), &cell(row, friday));
}

TEST_F(DragInSharedRows, TheCurrentCellFollowsAnOccurrenceThatBecameAnInstance) {
    const std::string id = add(daily(8, 9));
    open(7, false);
    drag(row_of(nine), wednesday, row_of(eleven) + 2, wednesday + 1);
    EXPECT_EQ(calendar.msgSched.Row(), row_of(eleven));
    EXPECT_EQ(cell(calendar.msgSched.Row(), calendar.msgSched.Col()).ActivityID(), other_than(id).id);
}

TEST_F(DragInSharedRows, OutOfASharedSlotLeavesTheContinuationOfTheActivityThatMovesUp) {
    const std::string id = add(meeting(10, 9, 120));
    add(meeting(10, 9, 120));
    open(7, false);
    const std::string first = cell(row_of(nine), wednesday).ActivityID();
    drag(row_of(nine), wednesday, row_of(5), friday);
    EXPECT_EQ(stored(first).start, at(12, 13));
    EXPECT_EQ(shown(row_of(nine), wednesday), "Chris Smith");
    EXPECT_EQ(shown(row_of(nine + 1), wednesday), "( Continued )");
    EXPECT_EQ(cell(row_of(nine + 1), wednesday).DependsOnActivity(), cell(row_of(nine), wednesday).ActivityID());
}

} // namespace
