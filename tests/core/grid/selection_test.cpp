#include "core/grid/selection.h"

#include "support/failure_number.h"
#include "support/grid_world.h"

#include <gtest/gtest.h>

namespace {

TEST(Selection, FailsWith91WhileNoCellIsSelected) {
    const grid::Selection selection;
    EXPECT_EQ(support::failure_number([&] { selection.selected(); }), 91);
    EXPECT_EQ(support::failure_number([&] { selection.drag_source(); }), 91);
}

TEST(Selection, IsTheGridsOwnRecordNotACopy) {
    support::GridWorld world;
    world.have_users({"Ann"});
    world.open(values::DateTime::of(2024, 1, 10));
    grid::CalendarGrid& calendar = world.calendar;
    calendar.selection.SelectedCell = calendar.layout.Cells.reference(2, 3);
    calendar.layout.Cells(2, 3).ActivityID("ACTIVITY0001");
    EXPECT_EQ(calendar.selection.selected().ActivityID(), "ACTIVITY0001");
    calendar.selection.selected().Clear();
    EXPECT_EQ(calendar.layout.Cells(2, 3).ActivityID(), "");
}

TEST(Selection, OutlivesTheRecordsOfTheGrid) {
    support::GridWorld world;
    world.have_users({"Ann"});
    world.open(values::DateTime::of(2024, 1, 10));
    grid::CalendarGrid& calendar = world.calendar;
    calendar.selection.SelectedCell = calendar.layout.Cells.reference(2, 3);
    calendar.layout.Cells(2, 3).Text("old");
    calendar.Setup_Calendar(calendar.layout.StartDate(), calendar.layout.EndDate());
    EXPECT_EQ(calendar.selection.selected().Text(), "old");
    EXPECT_EQ(calendar.selection.selected().Row(), 2);
    EXPECT_EQ(calendar.layout.Cells(2, 3).Text(), "");
}

} // namespace
