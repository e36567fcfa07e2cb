#include "quick_refresh_world.h"

// One activity read again, and what commands ask for after they changed it.
namespace {

using support::FakeActivityRecord;
using values::DateTime;
using Texts = std::vector<std::string>;
namespace field = act::activity_field;

class RefreshActivityTest : public support::QuickRefreshWorld {
protected:
    Texts reread(const std::string& name, bool clear_selected = false) {
        for (grid::clsMsgSchedSlot& slot : world_.calendar.layout.Slots)
            slot.ClearCells();
        using Selected = engine::QuickRefresh::SelectedCell;
        quick_refresh().Refresh_Activity(id(name), clear_selected ? Selected::cleared : Selected::stays);
        return world_.placed();
    }
};

TEST_F(RefreshActivityTest, ReadsItFromANewListWithoutFilters) {
    world_.set("Filter", "Type1", "0");
    fill();
    add("Meet", day(10));
    EXPECT_EQ(reread("Meet"), Texts{"1/5 Meet"});
    EXPECT_EQ(world_.act_data.calls, (Texts{"Database.Activity", "Activity.Rebuild", "Activity.Goto " + id("Meet"),
                                            "Activity.Goto " + id("Meet")}));
    add("Meeting", day(11)).fields[field::type] = std::int64_t{1};
    edit("Meeting", day(10, 10));
    EXPECT_EQ(quick_refresh().Find_New(day(10)), id("Meeting")) << "the list stays without filters";
}

TEST_F(RefreshActivityTest, MakesTheCellOfTheActivityCurrent) {
    fill();
    add("Meet", day(11, 10));
    reread("Meet");
    EXPECT_EQ(world_.calendar.msgSched.Row(), row_of(2));
    EXPECT_EQ(world_.calendar.msgSched.Col(), 6);
}

TEST_F(RefreshActivityTest, ClearsTheSelectedCellOnRequest) {
    add("Meet", day(10));
    add("Other", day(11));
    fill();
    select(row_of(1), 5);
    reread("Other", false);
    EXPECT_EQ(cell(1, 5).ActivityID(), id("Meet"));
    reread("Other", true);
    EXPECT_EQ(cell(1, 5).ActivityID(), "");
}

TEST_F(RefreshActivityTest, AnIdThatIsNotThereIsNoFailure) {
    EXPECT_EQ(reread("Missing"), Texts{});
    EXPECT_TRUE(world_.box.shown.empty());
}

TEST_F(RefreshActivityTest, PlacesTheFirstAndTheLastShownDayAndNothingBeyond) {
    add("First", day(7));
    add("Last", day(13));
    add("Before", day(6));
    add("Behind", day(14));
    EXPECT_EQ(reread("First"), Texts{"1/2 First"});
    EXPECT_EQ(reread("Last"), Texts{"1/8 Last"});
    EXPECT_EQ(reread("Before"), Texts{});
    EXPECT_EQ(reread("Behind"), Texts{});
}

TEST_F(RefreshActivityTest, GoesByTheDateOfFieldTwoHundred) {
    add("Meet", day(10)).fields[field::date] = day(14);
    EXPECT_EQ(reread("Meet"), Texts{});
    world_.act_data.activities.front().fields[field::date] = std::string("1/13/2024");
    EXPECT_EQ(reread("Meet"), Texts{"1/5 Meet"});
    world_.act_data.activities.front().fields.erase(field::date);
    EXPECT_EQ(reread("Meet"), Texts{});
    EXPECT_TRUE(world_.box.shown.empty());
}

TEST_F(RefreshActivityTest, TestsTypeAndPriorityByTheSettings) {
    FakeActivityRecord& meet = add("Meet", day(10));
    meet.fields[field::type] = std::int64_t{2};
    meet.fields[field::priority] = std::int64_t{1};
    EXPECT_EQ(reread("Meet"), Texts{"1/5 Meet"});
    world_.set("Filter", "Type2", "0");
    EXPECT_EQ(reread("Meet"), Texts{});
    world_.set("Filter", "Type2", "2"); // not exactly 1
    EXPECT_EQ(reread("Meet"), Texts{});
    world_.set("Filter", "Type2", "1");
    world_.set("Filter", "Priority1", "0");
    EXPECT_EQ(reread("Meet"), Texts{});
}

TEST_F(RefreshActivityTest, TestsClearedActivitiesByTheSettings) {
    add("Done", day(10)).fields[field::cleared] = std::string("1");
    EXPECT_EQ(reread("Done"), Texts{});
    world_.set("Filter", "ShowCleared", "1");
    EXPECT_EQ(reread("Done"), Texts{"1/5 Done"});
    world_.act_data.activities.front().fields[field::cleared] = std::string("0");
    EXPECT_EQ(reread("Done"), Texts{"1/5 Done"});
    world_.set("Filter", "ShowCleared", "0");
    EXPECT_EQ(reread("Done"), Texts{"1/5 Done"});
    world_.act_data.activities.front().fields.erase(field::cleared);
    EXPECT_EQ(reread("Done"), Texts{"1/5 Done"}) << "no text is the empty text of the setting";
}

TEST_F(RefreshActivityTest, TestsTheUser) {
    add("Meet", day(10));
    world_.users.UsersFilter = id("Bob") + " ";
    EXPECT_EQ(reread("Meet"), Texts{});
    world_.users.UsersFilter = " ";
    EXPECT_EQ(reread("Meet"), Texts{"1/5 Meet"});
}

TEST_F(RefreshActivityTest, ExpandsASeriesWithoutLookingAtTypePriorityAndCleared) {
    FakeActivityRecord& daily = add("Daily", day(11));
    daily.recurring_type = act::RecurrenceKind::daily;
    daily.fields[field::cleared] = std::string("1");
    world_.set("Filter", "Type0", "0");
    world_.set("Filter", "Priority2", "0");
    EXPECT_EQ(reread("Daily"), (Texts{"1/6 Daily", "1/7 Daily", "1/8 Daily"}));
}

TEST_F(RefreshActivityTest, ExpandsASeriesAlsoWhereTheFullRefreshWouldNot) {
    add("Daily", day(13)).recurring_type = act::RecurrenceKind::daily;
    EXPECT_EQ(reread("Daily"), Texts{"1/8 Daily"});
    world_.engine.refresh.CheckRecurring = false;
    EXPECT_EQ(reread("Daily"), Texts{"1/8 Daily"});
    fill();
    EXPECT_EQ(world_.placed(), Texts{});
    world_.engine.refresh.CheckRecurring = true;
    fill();
    EXPECT_EQ(world_.placed(), Texts{}) << "it begins on the last shown day behind midnight";
}

TEST_F(RefreshActivityTest, SkipsASeriesBehindTheViewBeforeItOrOfOtherUsers) {
    FakeActivityRecord& daily = add("Daily", day(14));
    daily.recurring_type = act::RecurrenceKind::daily;
    EXPECT_EQ(reread("Daily"), Texts{});
    move("Daily", day(10));
    daily.until = day(6);
    EXPECT_EQ(reread("Daily"), Texts{});
    daily.until = day(20);
    world_.users.UsersFilter = id("Bob") + " ";
    EXPECT_EQ(reread("Daily"), Texts{});
}

TEST_F(RefreshActivityTest, AStartThatIsNoDateShowsTheBox) {
    add("Meet", day(10)).fields[field::start] = std::string("some day");
    EXPECT_EQ(reread("Meet"), Texts{});
    EXPECT_EQ(world_.failures(),
              Texts{"Error 13: 'Type mismatch'\rin modRefresh: Sub Refresh_Activity - Line # 60"});
}

class AskRefreshTest : public support::QuickRefreshWorld {};

TEST_F(AskRefreshTest, WithoutAKnownChangeItIsAQuickRefresh) {
    add("Meet", day(10));
    fill();
    move("Meet", day(12));
    edit("Meet", day(10, 10));
    quick_refresh().Ask_Refresh({});
    EXPECT_EQ(world_.placed(), Texts{"1/7 Meet"});
    EXPECT_EQ(world_.window.calls, (Texts{"bring_to_front", "show_hourglass", "show_default_pointer"}));
}

TEST_F(AskRefreshTest, WithAKnownChangeTheSelectedActivityIsReadAgain) {
    add("Meet", day(10));
    add("Edited", day(11));
    fill();
    move("Meet", day(12));
    edit("Edited", day(10, 10));
    move("Edited", day(13));
    select(row_of(1), 5);
    quick_refresh().Ask_Refresh({.selected = true});
    EXPECT_EQ(world_.placed(), (Texts{"1/6 Edited", "1/7 Meet"}));
    EXPECT_EQ(world_.window.calls, Texts{"bring_to_front"});
}

TEST_F(AskRefreshTest, ClearsTheSelectedCellUnlessItLiesInTheFirstSlot) {
    add("Zero", day(10, 8));
    add("One", day(10, 9));
    fill();
    move("Zero", day(20));
    move("One", day(20));
    for (const int slot : {0, 1}) {
        select(row_of(slot), 5);
        cell(slot, 5).ContactID("mark");
        // The slot holds nothing else, so that only the flag's own clearing can be seen before it is drawn.
        world_.act_data.failing = {"Database.Activity"};
        quick_refresh().Ask_Refresh({.selected = true});
    }
    EXPECT_EQ(cell(0, 5).ContactID(), "mark");
    EXPECT_EQ(cell(1, 5).ContactID(), "");
}

TEST_F(AskRefreshTest, ASelectedCellWithoutAnActivityHasNothingToReadAgain) {
    add("Meet", day(10));
    fill();
    select(row_of(1), 5);
    cell(1, 5).ActivityID("");
    quick_refresh().Ask_Refresh({.selected = true});
    EXPECT_TRUE(world_.box.shown.empty());
    EXPECT_EQ(world_.placed(), Texts{"1/5 Meet"});
}

TEST_F(AskRefreshTest, ReadsASecondActivityAndSelectsItsCell) {
    add("Meet", day(10));
    fill();
    select(row_of(1), 5);
    add("Second", day(12));
    quick_refresh().Ask_Refresh({.selected = true, .second_id = id("Second"), .second_place = {row_of(1), 7}});
    EXPECT_EQ(world_.placed(), (Texts{"1/5 Meet", "1/7 Second"}));
    EXPECT_EQ(world_.calendar.selection.SelectedCell.get(), &cell(1, 7));
}

class OtherOperationsTest : public support::QuickRefreshWorld {};

TEST_F(OtherOperationsTest, AddOtherIDsAppendsTheContactsThatAreNotThereYet) {
    add("Meet", day(10)).contacts = {"contact1----", "contact2----", "contact3----"};
    world_.session.ActActivity->Goto(id("Meet"));
    EXPECT_EQ(quick_refresh().AddOtherIDs("contact2----"), "contact2----contact1----contact3----");
    EXPECT_EQ(quick_refresh().AddOtherIDs(""), "contact1----contact2----contact3----");
}

TEST_F(OtherOperationsTest, AddOtherIDsOfAnActivityWithoutContactsAddsNothing) {
    add("Meet", day(10));
    world_.session.ActActivity->Goto(id("Meet"));
    EXPECT_EQ(quick_refresh().AddOtherIDs("contact2----"), "contact2----");
}

TEST_F(OtherOperationsTest, EraseSlotEmptiesTheFirstCellOfTheActivityAndForgetsItsId) {
    add("Daily", day(10)).recurring_type = act::RecurrenceKind::daily;
    add("Other", day(11, 10));
    fill();
    quick_refresh().Erase_Slot(id("Daily"));
    EXPECT_EQ(world_.displayed(), id("Other"));
    EXPECT_EQ(shown(1, 5), "");
    EXPECT_EQ(world_.calendar.msgSched.cell(row_of(1), 5).picture, 0);
    EXPECT_NE(shown(1, 6), "") << "the search stops at the first";
}

TEST_F(OtherOperationsTest, EraseSlotFindsACellByTheBeginningOfItsId) {
    add("Meet", day(10));
    fill();
    quick_refresh().Erase_Slot("Me");
    EXPECT_EQ(shown(1, 5), "");
    quick_refresh().Erase_Slot("eet");
    EXPECT_TRUE(world_.box.shown.empty());
}

TEST_F(OtherOperationsTest, EraseSlotOfAnActivityThatNoCellShowsChangesNothing) {
    add("Meet", day(10));
    fill();
    quick_refresh().Erase_Slot(id("Missing"));
    EXPECT_EQ(world_.displayed(), id("Meet"));
    EXPECT_EQ(shown(1, 5), "       Chris Smith");
}

} // namespace
