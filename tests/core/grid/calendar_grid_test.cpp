#include "core/grid/calendar_grid.h"

#include "support/grid_world.h"

#include <gtest/gtest.h>

namespace {

using values::DateTime;

TEST(CalendarGrid, ShowsNineSlotsWithoutAnySettings) {
    support::GridWorld world;
    world.have_users({"Ann"});
    world.open(DateTime::of(2024, 1, 10));
    EXPECT_EQ(world.calendar.msgSched.TextMatrix(1, 0), "08:00 AM");
    EXPECT_EQ(world.calendar.msgSched.TextMatrix(9, 0), "04:00 PM");
    EXPECT_EQ(world.calendar.msgSched.Rows(), 10);
    EXPECT_TRUE(world.box.shown.empty());
}

TEST(CalendarGrid, IsBuiltWithTheWindowLockedAndReleasesItAtTheEnd) {
    support::GridWorld world;
    world.have_users({"Ann"});
    world.open(DateTime::of(2024, 1, 10));
    EXPECT_EQ(world.window.calls.front(), "lock_updates");
    EXPECT_EQ(world.window.calls.back(), "unlock_updates");
    EXPECT_FALSE(world.window.locked);
    EXPECT_FALSE(world.window.hourglass);
}

TEST(CalendarGrid, HidesDaysOffAfterTheSizesAreRestored) {
    support::GridWorld world;
    world.have_users({"Ann"});
    world.calendar.layout.DaysOff("1");
    world.open(DateTime::of(2024, 1, 10));
    EXPECT_EQ(world.calendar.msgSched.ColWidth(2), 0);
    EXPECT_EQ(world.calendar.msgSched.ColWidth(3), 1800);
}

TEST(CalendarGrid, GoesFromAWeekToADayAndBack) {
    support::GridWorld world;
    world.have_users({"Ann", "Bob"});
    world.open(DateTime::of(2024, 1, 10));
    grid::CalendarGrid& calendar = world.calendar;
    calendar.layout.NumDays(1);
    calendar.layout.Initialize_Dates(DateTime::of(2024, 1, 11));
    calendar.Setup_Calendar(calendar.layout.StartDate(), calendar.layout.EndDate());
    EXPECT_EQ(calendar.msgSched.Cols(), 3);
    EXPECT_EQ(calendar.msgSched.TextMatrix(0, 2), "Thursday Jan. 11");
    EXPECT_EQ(calendar.layout.Cells(1, 2).DateDay(), DateTime::of(2024, 1, 11));
    calendar.layout.NumDays(7);
    calendar.layout.Initialize_Dates(DateTime::of(2024, 1, 11));
    calendar.Setup_Calendar(calendar.layout.StartDate(), calendar.layout.EndDate());
    EXPECT_EQ(calendar.msgSched.Cols(), 9);
    EXPECT_EQ(calendar.msgSched.TextMatrix(0, 2), "Sunday Jan. 7");
    EXPECT_TRUE(world.box.shown.empty());
}

TEST(CalendarGrid, HoldsFiftyUsersIn32Slots) {
    support::GridWorld world;
    world.set("Slots", "SlotsCount", "32");
    std::vector<std::string> names;
    for (int user = 1; user <= 50; ++user)
        names.push_back("User" + std::to_string(user));
    world.have_users(names);
    world.open(DateTime::of(2024, 1, 10));
    EXPECT_EQ(world.calendar.msgSched.Rows(), 1601);
    EXPECT_EQ(world.calendar.msgSched.TextMatrix(1600, 1), "User50");
    EXPECT_EQ(world.calendar.layout.Cells(1600, 8).User(), "User50");
    EXPECT_TRUE(world.box.shown.empty());
}

} // namespace
