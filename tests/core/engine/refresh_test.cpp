#include "core/engine/refresh.h"

#include "engine_world.h"

#include <gtest/gtest.h>

namespace {

using support::EngineWorld;
using values::DateTime;
using Texts = std::vector<std::string>;
namespace field = act::activity_field;

class RefreshTest : public testing::Test {
protected:
    RefreshTest() { world_.open_week(); }

    Texts refresh() {
        world_.act_data.calls.clear();
        world_.window.calls.clear();
        world_.engine.refresh.Refresh_Data();
        return world_.placed();
    }
    DateTime day(int of_january, int hour = 9, int minute = 0) {
        return DateTime::of(2024, 1, of_january, hour, minute);
    }

    EngineWorld world_;
};

TEST_F(RefreshTest, PlacesTheActivitiesOfTheShownDaysAndDrawsThem) {
    world_.add("Before", day(6));
    world_.add("First", day(7));
    world_.add("Last", day(13, 10));
    world_.add("Behind", day(14, 0));
    EXPECT_EQ(refresh(), (Texts{"1/2 First", "2/8 Last"}));
    EXPECT_EQ(world_.displayed(), EngineWorld::user_id("First") + EngineWorld::user_id("Last"));
    const int first_row = world_.calendar.layout.first_row_of(grid::SlotNumber(1));
    EXPECT_EQ(world_.calendar.layout.Cells(first_row, 2).ActivityID(), EngineWorld::user_id("First"));
    EXPECT_EQ(world_.calendar.layout.Cells(first_row, 2).Text(), "Chris Smith");
    EXPECT_TRUE(world_.box.shown.empty());
}

TEST_F(RefreshTest, CallsTheListInItsOrder) {
    world_.add("Meet", day(10));
    refresh();
    EXPECT_EQ(world_.act_data.calls,
              (Texts{"Activity.Rebuild", "Activity.ClearClearedFilter", "Activity.ClearDateScope",
                     "Activity.ClearPriorityFilter", "Activity.ClearTypeFilter", "Activity.SetDateScope",
                     "Activity.SetClearedFilter", "Activity.Goto " + EngineWorld::user_id("Meet"),
                     "Activity.ClearDateScope"}));
}

TEST_F(RefreshTest, BracketsTheWorkWithHourglassAndLock) {
    refresh();
    EXPECT_EQ(world_.window.calls, (Texts{"show_hourglass", "lock_updates", "unlock_updates", "bring_to_front",
                                          "show_default_pointer"}));
}

TEST_F(RefreshTest, SetsTheTypeAndPriorityFiltersOfTheSettings) {
    world_.set("Filter", "Type1", "0");
    world_.set("Filter", "Priority0", "0");
    world_.set("Filter", "Priority2", "none");
    world_.set("Filter", "ShowCleared", "1");
    world_.engine.refresh.CheckRecurring = false;
    refresh();
    EXPECT_EQ(world_.act_data.calls,
              (Texts{"Activity.Rebuild", "Activity.ClearClearedFilter", "Activity.ClearDateScope",
                     "Activity.ClearPriorityFilter", "Activity.ClearTypeFilter", "Activity.SetDateScope",
                     "Activity.SetPriorityFilter", "Activity.SetTypeFilter", "Activity.SetPriorityFilter"}));
}

TEST_F(RefreshTest, KeepsTypesPrioritiesAndClearedActivitiesOut) {
    world_.add("Call", day(8));
    world_.add("Meeting", day(9)).fields[field::type] = std::int64_t{1};
    world_.add("High", day(10)).fields[field::priority] = std::int64_t{0};
    world_.add("Done", day(11)).fields[field::cleared] = std::string("1");
    EXPECT_EQ(refresh(), (Texts{"1/3 Call", "1/4 Meeting", "1/5 High"}));
    world_.set("Filter", "Type1", "0");
    world_.set("Filter", "Priority0", "0");
    world_.set("Filter", "ShowCleared", "1");
    EXPECT_EQ(refresh(), (Texts{"1/3 Call", "1/6 Done"}));
}

TEST_F(RefreshTest, StoresTheMomentAndForgetsTheIdsOfBefore) {
    world_.engine.placing.DisplayedIDs.append("an older id.");
    world_.clock.time = day(10, 17, 45);
    refresh();
    EXPECT_EQ(world_.engine.placing.LastRefresh, day(10, 17, 45));
    EXPECT_EQ(world_.displayed(), "");
}

TEST_F(RefreshTest, EmptiesSlotsRecordsAndCellsOfBefore) {
    world_.add("Meet", day(10));
    refresh();
    const int row = world_.calendar.layout.first_row_of(grid::SlotNumber(1));
    ASSERT_EQ(world_.calendar.msgSched.TextMatrix(row, 5), "       Chris Smith");
    ASSERT_NE(world_.calendar.msgSched.cell(row, 5).picture, 0);
    world_.act_data.activities.clear();
    EXPECT_EQ(refresh(), Texts{});
    EXPECT_EQ(world_.calendar.msgSched.TextMatrix(row, 5), "");
    EXPECT_EQ(world_.calendar.msgSched.cell(row, 5).picture, 0);
    EXPECT_EQ(world_.calendar.layout.Cells(row, 5).ActivityID(), "");
}

TEST_F(RefreshTest, LeavesTheTitlesAlone) {
    const std::string title = world_.calendar.msgSched.TextMatrix(0, 2);
    const std::string user = world_.calendar.msgSched.TextMatrix(1, 1);
    refresh();
    EXPECT_EQ(title, "Sunday Jan. 7");
    EXPECT_EQ(world_.calendar.msgSched.TextMatrix(0, 2), title);
    EXPECT_EQ(world_.calendar.msgSched.TextMatrix(1, 1), user);
    EXPECT_EQ(world_.calendar.layout.Cells(1, 1).Text(), user);
}

TEST_F(RefreshTest, TheFirstOneWhileLoadingLeavesTheSlotsAsTheyAre) {
    world_.add("Meet", day(10));
    world_.calendar.bLoading = true;
    refresh();
    EXPECT_EQ(refresh(), (Texts{"1/5 Meet", "1/5 Meet"}));
    world_.calendar.bLoading = false;
    EXPECT_EQ(refresh(), Texts{"1/5 Meet"});
}

TEST_F(RefreshTest, TakesIconsAndColourModeFromTheSettings) {
    EXPECT_FALSE(world_.calendar.writer.ShowIcons);
    refresh();
    EXPECT_TRUE(world_.calendar.writer.ShowIcons);
    EXPECT_EQ(world_.engine.placing.ShowActyColorsMode, 0);
    EXPECT_EQ(world_.engine.placing.FixedActyColor, "&H0");
    world_.set("Settings", "ShowIcons", "0");
    world_.set("Settings", "ShowActyColors", "1");
    world_.set("Settings", "Color2", "255");
    world_.add("Meet", day(10));
    refresh();
    EXPECT_FALSE(world_.calendar.writer.ShowIcons);
    EXPECT_EQ(world_.only_record().ForeColor, "255");
}

TEST_F(RefreshTest, SkipsAnActivityWhoseStartIsNoDate) {
    world_.add("Someday", day(10)).fields[field::start] = std::string("some day");
    world_.add("Undated", day(10)).fields.erase(field::start);
    world_.add("Meet", day(10));
    EXPECT_EQ(refresh(), Texts{"1/5 Meet"});
    EXPECT_EQ(world_.displayed(), EngineWorld::user_id("Meet"));
    EXPECT_TRUE(world_.box.shown.empty());
}

// The list doesn't compare such starts, so that the scope lets them through.
TEST_F(RefreshTest, SkipsAStartInTextBeforeTheViewAndPlacesOneInside) {
    world_.add("Early", day(10)).fields[field::start] = std::string("1/6/2024 9:00:00 AM");
    world_.add("Inside", day(10)).fields[field::start] = std::string("1/7/2024 9:00:00 AM");
    EXPECT_EQ(refresh(), Texts{"1/2 Inside"});
    EXPECT_TRUE(world_.box.shown.empty());
}

TEST_F(RefreshTest, AStartInTextBehindTheViewShowsTheBoxAndTheWalkGoesOn) {
    world_.add("Late", day(8)).fields[field::start] = std::string("1/14/2024 9:00:00 AM");
    world_.add("Meet", day(10));
    EXPECT_EQ(refresh(), Texts{"1/5 Meet"});
    EXPECT_EQ(world_.failures(),
              Texts{"Error 9: 'Subscript out of range'\rin modRefresh: Sub Treat_Activity - Line # 140"});
    EXPECT_FALSE(world_.window.locked);
}

TEST_F(RefreshTest, DropsAnActivityAtTheLastMinuteOfASlotOrInAGap) {
    world_.add("Minute", day(10, 8, 59));
    world_.add("Early", day(10, 7, 30));
    world_.add("Late", day(10, 17, 0));
    EXPECT_EQ(refresh(), Texts{});
    EXPECT_EQ(world_.displayed(), "");
}

TEST_F(RefreshTest, ABlankFilterPassesEveryUser) {
    world_.add("Anns", day(10));
    world_.add("Bobs", day(11)).fields[field::scheduled_for] = EngineWorld::user_id("Bob");
    world_.add("Nobodys", day(12)).fields[field::scheduled_for] = std::string("nobody------");
    world_.users.UsersFilter = " ";
    EXPECT_EQ(refresh(), (Texts{"1/5 Anns", "1/6 Bobs", "1/7 Nobodys"}));
}

TEST_F(RefreshTest, AnyOtherFilterPassesTheIdsThatOccurInIt) {
    world_.add("Anns", day(10));
    world_.add("Bobs", day(11)).fields[field::scheduled_for] = EngineWorld::user_id("Bob");
    world_.add("Cuts", day(12)).fields[field::scheduled_for] = std::string("------Bob---"); // across a border
    world_.users.UsersFilter = EngineWorld::user_id("Ann") + EngineWorld::user_id("Bob") + " ";
    EXPECT_EQ(refresh(), (Texts{"1/5 Anns", "1/6 Bobs", "1/7 Cuts"}));
    world_.users.UsersFilter = EngineWorld::user_id("Bob") + " ";
    EXPECT_EQ(refresh(), Texts{"1/6 Bobs"});
}

TEST_F(RefreshTest, ExpandsSeriesBesideThePlainActivities) {
    world_.add_daily("Daily", day(11, 10));
    world_.add("Plain", day(11));
    EXPECT_EQ(refresh(), (Texts{"1/6 Plain", "2/6 Daily", "2/7 Daily", "2/8 Daily"}));
}

TEST_F(RefreshTest, LeavesSeriesOutWhenTheyAreNotToBeExpanded) {
    world_.add_daily("Daily", day(11, 10));
    world_.add("Plain", day(11));
    world_.engine.refresh.CheckRecurring = false;
    EXPECT_EQ(refresh(), Texts{"1/6 Plain"});
}

TEST_F(RefreshTest, WorksInTheDailyViewWithRowsOfNobody) {
    EngineWorld world;
    world.open(DateTime::of(2024, 1, 10), 1, false);
    world.add("Today", day(10));
    world.add("Tomorrow", day(11));
    world.engine.refresh.Refresh_Data();
    EXPECT_EQ(world.placed(), Texts{"1/1 Today"});
    EXPECT_EQ(world.calendar.layout.Cells(world.calendar.layout.first_row_of(grid::SlotNumber(1)), 1).Text(),
              "Chris Smith");
}

TEST_F(RefreshTest, AFailureOfTheListLeavesHourglassAndLockOn) {
    world_.add("Meet", day(10));
    refresh();
    world_.act_data.failing.insert("Activity.Rebuild");
    EXPECT_EQ(refresh(), Texts{});
    EXPECT_TRUE(world_.window.locked);
    EXPECT_TRUE(world_.window.hourglass);
    ASSERT_EQ(world_.failures().size(), 1u);
    EXPECT_TRUE(world_.failures()[0].ends_with("\rin modRefresh: Sub Refresh_Data - Line # 70"));
    EXPECT_EQ(world_.calendar.layout.Cells(world_.calendar.layout.first_row_of(grid::SlotNumber(1)), 5).Text(), "")
        << "the cells were emptied before";
}

TEST_F(RefreshTest, AFailureInsideTheWalkEndsTheRefreshWhereItStands) {
    world_.add("First", day(9));
    world_.add("Broken", day(10)).fields[field::duration] = std::string("long");
    world_.add("Last", day(11));
    EXPECT_EQ(refresh(), Texts{"1/4 First"});
    EXPECT_EQ(world_.failures(), Texts{"Error 13: 'Type mismatch'\rin modRefresh: Sub Refresh_Data - Line # 150"});
    EXPECT_TRUE(world_.window.locked);
    EXPECT_TRUE(world_.window.hourglass);
    EXPECT_EQ(world_.calendar.layout.Cells(world_.calendar.layout.first_row_of(grid::SlotNumber(1)), 4).Text(), "")
        << "nothing was drawn";
}

TEST_F(RefreshTest, AColourModeThatIsNoNumberEndsTheRefreshBeforeTheLock) {
    world_.set("Settings", "ShowActyColors", "many");
    refresh();
    EXPECT_EQ(world_.failures(), Texts{"Error 13: 'Type mismatch'\rin modRefresh: Sub Refresh_Data - Line # 40"});
    EXPECT_FALSE(world_.window.locked);
    EXPECT_TRUE(world_.window.hourglass);
}

TEST_F(RefreshTest, WithoutASessionTheBoxSaysThatTheObjectIsNotSet) {
    world_.session.ActActivity.release();
    refresh();
    ASSERT_EQ(world_.failures().size(), 1u);
    EXPECT_TRUE(world_.failures()[0].starts_with("Error 91: "));
}

TEST_F(RefreshTest, ClearMsgEmptiesTheRangeAloneAndStandsOnItsLastCell) {
    table::GridModel& msgSched = world_.calendar.msgSched;
    for (int row = 1; row <= 4; ++row)
        for (int col = 2; col <= 4; ++col) {
            msgSched.Row(row);
            msgSched.Col(col);
            msgSched.Text("x");
        }
    world_.engine.refresh.Clear_Msg(2, 3, 3, 4);
    std::string remaining;
    for (int row = 1; row <= 4; ++row)
        for (int col = 2; col <= 4; ++col)
            remaining += msgSched.TextMatrix(row, col).empty() ? "." : "x";
    EXPECT_EQ(remaining, "xxxx..x..xxx");
    EXPECT_EQ(msgSched.Row(), 3);
    EXPECT_EQ(msgSched.Col(), 4);
}

TEST_F(RefreshTest, ClearMsgOutsideTheGridShowsTheBox) {
    world_.engine.refresh.Clear_Msg(1, 1000, 2, 3);
    ASSERT_EQ(world_.failures().size(), 1u);
    EXPECT_TRUE(world_.failures()[0].ends_with("\rin modRefresh: Sub Clear_Msg - Line # 10"));
}

} // namespace
