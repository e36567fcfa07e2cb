#include "core/engine/quick_refresh.h"

#include "quick_refresh_world.h"

namespace {

using values::DateTime;
using Texts = std::vector<std::string>;

class QuickRefreshTest : public support::QuickRefreshWorld {};

TEST_F(QuickRefreshTest, FindsNothingWhenNothingChanged) {
    add("Meet", day(10));
    fill();
    EXPECT_EQ(quick_refresh().Find_New(world_.engine.placing.LastRefresh), "");
    EXPECT_EQ(quick(), Texts{"1/5 Meet"});
}

TEST_F(QuickRefreshTest, StoresTheMomentAndBracketsTheWorkWithTheHourglass) {
    fill();
    world_.clock.time = day(10, 11);
    quick();
    EXPECT_EQ(world_.engine.placing.LastRefresh, day(10, 11));
    EXPECT_EQ(world_.window.calls, (Texts{"show_hourglass", "show_default_pointer"}));
}

TEST_F(QuickRefreshTest, ReadsAChangedActivityAgain) {
    add("Meet", day(10));
    fill();
    move("Meet", day(12, 11));
    edit("Meet", day(10, 9, 30));
    EXPECT_EQ(quick(), Texts{"3/7 Meet"});
    EXPECT_EQ(shown(1, 5), "");
    EXPECT_EQ(cell(1, 5).ActivityID(), "");
    EXPECT_EQ(shown(3, 7), "       Chris Smith");
    EXPECT_EQ(cell(3, 7).ActivityID(), id("Meet"));
}

TEST_F(QuickRefreshTest, ComparesWithTheMomentThatWasHandedInNotWithTheOneItStores) {
    add("Meet", day(10));
    fill();
    world_.clock.time = day(10, 12);
    edit("Meet", day(10, 10));
    move("Meet", day(12, 11));
    EXPECT_EQ(quick(), Texts{"3/7 Meet"});
}

TEST_F(QuickRefreshTest, OfTwoEditedActivitiesOnlyTheLaterInTheListIsReadNow) {
    add("Early", day(10));
    add("Later", day(11));
    fill();
    world_.clock.time = day(10, 9, 15);
    move("Early", day(10, 14));
    edit("Early", day(10, 10));
    move("Later", day(11, 14));
    edit("Later", day(10, 9, 30));
    EXPECT_EQ(quick_refresh().Find_New(world_.engine.placing.LastRefresh), id("Later"));
    EXPECT_EQ(quick(), (Texts{"1/5 Early", "6/6 Later"}));
}

TEST_F(QuickRefreshTest, AnActivityEditedAtExactlyLastRefreshIsNotFound) {
    add("Meet", day(10));
    fill();
    edit("Meet", world_.engine.placing.LastRefresh);
    EXPECT_EQ(quick_refresh().Find_New(world_.engine.placing.LastRefresh), "");
    edit("Meet", DateTime::from_seconds(world_.engine.placing.LastRefresh.seconds() + 1));
    EXPECT_EQ(quick_refresh().Find_New(world_.engine.placing.LastRefresh), id("Meet"));
}

TEST_F(QuickRefreshTest, FindsTheDisplayedIdsThatTheListNoLongerHolds) {
    add("First", day(9));
    add("Stays", day(10));
    add("Last", day(11));
    fill();
    remove("First");
    remove("Last");
    edit("Stays", day(10, 10));
    EXPECT_EQ(quick_refresh().Find_New(world_.engine.placing.LastRefresh), id("Stays") + id("First") + id("Last"));
    EXPECT_EQ(world_.displayed(), id("First") + id("Stays") + id("Last")) << "the search works on a copy";
}

TEST_F(QuickRefreshTest, WalksTheListRebuiltFromItsFirstRecord) {
    add("Meet", day(10));
    fill();
    EXPECT_TRUE(world_.session.ActActivity->isEOF());
    edit("Meet", day(10, 10));
    EXPECT_EQ(quick_refresh().Find_New(day(10)), id("Meet"));
    EXPECT_EQ(world_.act_data.calls, Texts{"Activity.Rebuild"});
}

TEST_F(QuickRefreshTest, ADeletedActivityStaysDisplayedUntilItIsFoundMissingAndThenItsCellEmpties) {
    add("Meet", day(10));
    fill();
    remove("Meet");
    EXPECT_EQ(shown(1, 5), "       Chris Smith");
    EXPECT_EQ(quick(), Texts{});
    EXPECT_EQ(shown(1, 5), "");
    EXPECT_EQ(cell(1, 5).ActivityID(), "");
    EXPECT_EQ(world_.displayed(), id("Meet")) << "a quick refresh doesn't shorten the list";
}

TEST_F(QuickRefreshTest, ReadsANewActivity) {
    fill();
    add("New", day(11));
    edit("New", day(10, 10));
    EXPECT_EQ(quick(), Texts{"1/6 New"});
    EXPECT_EQ(shown(1, 6), "       Chris Smith");
    EXPECT_EQ(world_.displayed(), id("New"));
}

TEST_F(QuickRefreshTest, ANewActivityOutsideTheShownDatesPlacesNothingButClearsTheSelectedCell) {
    add("Meet", day(10));
    fill();
    select(row_of(1), 5);
    add("New", day(20));
    edit("New", day(10, 10));
    EXPECT_EQ(quick(), Texts{"1/5 Meet"});
    EXPECT_EQ(cell(1, 5).ActivityID(), "");
    EXPECT_EQ(cell(1, 5).Text(), "");
}

TEST_F(QuickRefreshTest, ANewActivityLeavesACellInTheTitleRowAlone) {
    fill();
    select(0, 3);
    const std::string title(world_.calendar.layout.Cells(0, 3).Text());
    add("New", day(20));
    edit("New", day(10, 10));
    quick();
    EXPECT_NE(title, "");
    EXPECT_EQ(world_.calendar.layout.Cells(0, 3).Text(), title);
}

TEST_F(QuickRefreshTest, ANewActivityWithoutASelectedCellShowsTheBox) {
    fill();
    world_.calendar.selection.SelectedCell.reset();
    add("New", day(10));
    edit("New", day(10, 10));
    EXPECT_EQ(quick(), Texts{});
    ASSERT_EQ(world_.failures().size(), 1u);
    EXPECT_TRUE(world_.failures()[0].starts_with("Error 91: "));
    EXPECT_TRUE(world_.failures()[0].ends_with("\rin modRefresh: Sub Add_New - Line # 40"));
    EXPECT_TRUE(world_.window.hourglass);
}

TEST_F(QuickRefreshTest, AChangedActivityThatHasACellClearsTheSelectedOneToo) {
    add("Meet", day(10));
    add("Other", day(12, 11));
    fill();
    select(row_of(3), 7);
    ASSERT_EQ(cell(3, 7).ActivityID(), id("Other"));
    edit("Meet", day(10, 10));
    EXPECT_EQ(quick(), (Texts{"1/5 Meet", "3/7 Other"}));
    EXPECT_EQ(cell(3, 7).ActivityID(), "");
    EXPECT_EQ(cell(1, 5).ActivityID(), id("Meet"));
}

TEST_F(QuickRefreshTest, TheSelectedCellThatANewActivityClearedIsntClearedOnceMore) {
    add("Gone", day(10));
    fill();
    select(row_of(1), 5);
    add("New", day(11));
    edit("New", day(10, 10));
    remove("Gone");
    // It stays in its slot, as its cell counts as treated.
    EXPECT_EQ(quick(), (Texts{"1/5 Gone", "1/6 New"}));
}

TEST_F(QuickRefreshTest, TwoIdsOfOneCellClearItOnce) {
    add("First", day(10));
    add("Second", day(10, 9, 30));
    fill();
    world_.calendar.writer.record_place(id("Second"), row_of(1), 5);
    remove("First");
    remove("Second");
    // The second one stays in the slot, as its cell had been cleared for the first.
    EXPECT_EQ(quick(), Texts{"1/5 Second"});
    EXPECT_TRUE(world_.box.shown.empty());
}

TEST_F(QuickRefreshTest, AListThatFailsShowsTheBoxAndNothingIsReadAgain) {
    add("Meet", day(10));
    fill();
    world_.act_data.failing.insert("Activity.Rebuild");
    EXPECT_EQ(quick(), Texts{"1/5 Meet"});
    ASSERT_EQ(world_.failures().size(), 1u);
    EXPECT_TRUE(world_.failures()[0].ends_with("\rin modRefresh: Function Find_New - Line # 20"));
    EXPECT_FALSE(world_.window.hourglass);
}

} // namespace
