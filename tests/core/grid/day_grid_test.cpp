#include "core/grid/day_grid.h"

#include "support/failure_number.h"
#include "support/grid_world.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

using grid::DayGrid;
using grid::SlotNumber;
using values::DateTime;

TEST(DayGrid, MapsRowsToSlotsAndBack) {
    const DayGrid lines(2, 4);
    EXPECT_EQ(lines.slot_of(1), 0);
    EXPECT_EQ(lines.slot_of(4), 0);
    EXPECT_EQ(lines.slot_of(5), 1);
    EXPECT_EQ(lines.row_of(SlotNumber(2)), 9);
    EXPECT_EQ(lines.last_row_of(SlotNumber(2)), 12);
    EXPECT_EQ(lines.row_below(6, 2), 14);
    EXPECT_EQ(support::failure_number([] { DayGrid(2, 0).slot_of(1); }), 6);
}

// Every layout by row scheme, users, slots and days.
class EveryLayout : public testing::TestWithParam<std::tuple<bool, int, int, int>> {};

//   FixedCols  day 1  day 2 ...        row 0: titles
//     slot 0, place 0                  row 1
//     slot 0, place 1                  row 2
TEST_P(EveryLayout, LeadsThereAndBack) {
    const auto [one_row_per_user, users, slots, days] = GetParam();
    support::GridWorld world;
    std::vector<std::string> names;
    for (int user = 0; user < users; ++user)
        names.push_back("U" + std::to_string(user));
    world.have_users(names);
    world.set("Slots", "SlotsCount", std::to_string(slots));
    world.set("Settings", "CellsPerSlot", std::to_string(users));
    world.open(DateTime::of(2024, 1, 10), days, one_row_per_user);

    const grid::Layout& layout = world.calendar.layout;
    ASSERT_EQ(layout.CellsPerSlot(), users);
    int row = DayGrid::first_row;
    for (int slot = 0; slot < slots; ++slot) {
        EXPECT_EQ(layout.first_row_of(SlotNumber(slot)), row);
        for (int place = 0; place < users; ++place, ++row) {
            EXPECT_EQ(layout.lines().row_of(SlotNumber(slot), place), row);
            EXPECT_EQ(layout.slot_of_row(row), slot);
            EXPECT_EQ(layout.lines().place_of(row), place);
            const grid::clsMsgSchedCell& cell = layout.Cells(row, 0);
            EXPECT_EQ(cell.Slot(), slot) << row;
            if (slot > 0) {
                EXPECT_EQ(layout.lines().row_below(row - users, 1), row);
            }
        }
        EXPECT_EQ(layout.lines().last_row_of(SlotNumber(slot)), row - 1);
    }
    EXPECT_EQ(layout.last_row(), row - 1);

    EXPECT_EQ(layout.FixedCols(), one_row_per_user ? 2 : 1);
    DateTime date = layout.StartDate();
    for (int day = 1; day <= days; ++day, date = date.plus_days(1)) {
        const int col = layout.nth_day_col(day);
        EXPECT_EQ(col, layout.FixedCols() + day - 1);
        EXPECT_EQ(layout.GetDayCol(date), col);
        EXPECT_EQ(layout.GetDayCol(date.plus_minutes(23 * 60)), col);
        EXPECT_EQ(layout.date_of_column(col), date);
        EXPECT_EQ(layout.nth_day(day), date);
        EXPECT_EQ(layout.lines().col_of(layout.lines().day_of(col)), col);
        EXPECT_EQ(layout.Slots(SlotNumber(0), col).Day(), date);
    }
    EXPECT_EQ(layout.last_col(), layout.nth_day_col(days));
    EXPECT_EQ(layout.after_last_day(), date);
    EXPECT_EQ(layout.EndDate(), date.plus_days(-1));
}

INSTANTIATE_TEST_SUITE_P(Layouts, EveryLayout,
                         testing::Combine(testing::Bool(), testing::Values(1, 2, 4, 50), testing::Values(1, 9, 32),
                                          testing::Values(1, 4, 7)));

} // namespace
