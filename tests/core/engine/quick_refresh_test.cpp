#include "engine/quick_refresh.h"

#include "engine_world.h"

#include <gtest/gtest.h>

namespace {

using support::EngineWorld;
using support::FakeActivityRecord;
using values::DateTime;
using Texts = std::vector<std::string>;
namespace field = act::activity_field;

// A calendar filled at nine o'clock, with the top left cell of the days selected.
class QuickRefreshTest : public testing::Test {
protected:
    QuickRefreshTest() {
        world_.open_week();
        select(1, 2);
    }

    DateTime day(int of_january, int hour = 9, int minute = 0) {
        return DateTime::of(2024, 1, of_january, hour, minute);
    }
    std::string id(const std::string& name) { return EngineWorld::user_id(name); }
    // An activity last edited before the calendar was filled.
    FakeActivityRecord& add(const std::string& name, DateTime start) {
        FakeActivityRecord& record = world_.add(name, start);
        record.fields[field::edited] = day(9);
        return record;
    }
    void edit(const std::string& name, DateTime edited) {
        world_.act_data.find(id(name))->fields[field::edited] = edited;
    }
    void move(const std::string& name, DateTime start) {
        FakeActivityRecord& record = *world_.act_data.find(id(name));
        record.fields[field::start] = start;
        record.fields[field::date] = start.date();
    }
    void remove(const std::string& name) {
        std::erase_if(world_.act_data.activities, [&](const auto& one) { return one.id() == id(name); });
    }
    void select(int row, int col) {
        world_.calendar.selection.SelectedCell = world_.calendar.layout.Cells.reference(row, col);
    }
    void fill() {
        world_.engine.refresh.Refresh_Data();
        world_.act_data.calls.clear();
        world_.window.calls.clear();
    }
    Texts quick() {
        quick_refresh().Add_New(world_.engine.refresh.LastRefresh);
        return world_.placed();
    }
    engine::QuickRefresh& quick_refresh() { return world_.engine.quick_refresh; }
    int row_of(int slot) { return world_.calendar.layout.first_row_of(slot); }
    grid::clsMsgSchedCell& cell(int slot, int col) { return world_.calendar.layout.Cells(row_of(slot), col); }
    const std::string& shown(int slot, int col) { return world_.calendar.msgSched.TextMatrix(row_of(slot), col); }

    EngineWorld world_;
};

TEST_F(QuickRefreshTest, FindsNothingWhenNothingChanged) {
    add("Meet", day(10));
    fill();
    EXPECT_EQ(quick_refresh().Find_New(world_.engine.refresh.LastRefresh), "");
    EXPECT_EQ(quick(), Texts{"1/5 Meet"});
}

TEST_F(QuickRefreshTest, StoresTheMomentAndBracketsTheWorkWithTheHourglass) {
    fill();
    world_.clock.time = day(10, 11);
    quick();
    EXPECT_EQ(world_.engine.refresh.LastRefresh, day(10, 11));
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
    EXPECT_EQ(quick_refresh().Find_New(world_.engine.refresh.LastRefresh), id("Later"));
    EXPECT_EQ(quick(), (Texts{"1/5 Early", "6/6 Later"}));
}

TEST_F(QuickRefreshTest, AnActivityEditedAtExactlyLastRefreshIsNotFound) {
    add("Meet", day(10));
    fill();
    edit("Meet", world_.engine.refresh.LastRefresh);
    EXPECT_EQ(quick_refresh().Find_New(world_.engine.refresh.LastRefresh), "");
    edit("Meet", DateTime::from_seconds(world_.engine.refresh.LastRefresh.seconds() + 1));
    EXPECT_EQ(quick_refresh().Find_New(world_.engine.refresh.LastRefresh), id("Meet"));
}

TEST_F(QuickRefreshTest, FindsTheDisplayedIdsThatTheListNoLongerHolds) {
    add("First", day(9));
    add("Stays", day(10));
    add("Last", day(11));
    fill();
    remove("First");
    remove("Last");
    edit("Stays", day(10, 10));
    EXPECT_EQ(quick_refresh().Find_New(world_.engine.refresh.LastRefresh), id("Stays") + id("First") + id("Last"));
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

class RefreshActivityTest : public QuickRefreshTest {
protected:
    Texts reread(const std::string& name, bool clear_selected = false) {
        for (grid::clsMsgSchedSlot& slot : world_.calendar.layout.Slots)
            slot.ClearCells();
        quick_refresh().Refresh_Activity(id(name), clear_selected);
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
    daily.recurring_type = 1;
    daily.fields[field::cleared] = std::string("1");
    world_.set("Filter", "Type0", "0");
    world_.set("Filter", "Priority2", "0");
    EXPECT_EQ(reread("Daily"), (Texts{"1/6 Daily", "1/7 Daily", "1/8 Daily"}));
}

TEST_F(RefreshActivityTest, ExpandsASeriesAlsoWhereTheFullRefreshWouldNot) {
    add("Daily", day(13)).recurring_type = 1;
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
    daily.recurring_type = 1;
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

class AskRefreshTest : public QuickRefreshTest {};

TEST_F(AskRefreshTest, WithoutAKnownChangeItIsAQuickRefresh) {
    add("Meet", day(10));
    fill();
    move("Meet", day(12));
    edit("Meet", day(10, 10));
    quick_refresh().Ask_Refresh(false, "", 0, 0);
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
    quick_refresh().Ask_Refresh(true, "", 0, 0);
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
        quick_refresh().Ask_Refresh(true, "", 0, 0);
    }
    EXPECT_EQ(cell(0, 5).ContactID(), "mark");
    EXPECT_EQ(cell(1, 5).ContactID(), "");
}

TEST_F(AskRefreshTest, ReadsASecondActivityAndSelectsItsCell) {
    add("Meet", day(10));
    fill();
    select(row_of(1), 5);
    add("Second", day(12));
    quick_refresh().Ask_Refresh(true, id("Second"), row_of(1), 7);
    EXPECT_EQ(world_.placed(), (Texts{"1/5 Meet", "1/7 Second"}));
    EXPECT_EQ(world_.calendar.selection.SelectedCell.get(), &cell(1, 7));
}

class OtherOperationsTest : public QuickRefreshTest {};

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
    add("Daily", day(10)).recurring_type = 1;
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
