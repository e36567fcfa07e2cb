#include "core/interaction/popup_menu.h"

#include "interaction_world.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using interaction::Click;
using Menu = interaction::PopupMenu;
using Names = std::vector<std::string>;

struct Entry {
    const char* name;
    Menu::Entry Menu::*member;
};
const std::vector<Entry> entries{{"mnupopSchedule", &Menu::mnupopSchedule},
                                 {"mnupopReschedule", &Menu::mnupopReschedule},
                                 {"mnupopDetails", &Menu::mnupopDetails},
                                 {"mnupopSend", &Menu::mnupopSend},
                                 {"mnuSep1", &Menu::mnuSep1},
                                 {"mnupopClear", &Menu::mnupopClear},
                                 {"mnuPopRecurring", &Menu::mnuPopRecurring},
                                 {"mnuSep2", &Menu::mnuSep2},
                                 {"mnupopGoto", &Menu::mnupopGoto},
                                 {"mnupopLookup", &Menu::mnupopLookup},
                                 {"mnuSep4", &Menu::mnuSep4},
                                 {"mnuResetRowHeight", &Menu::mnuResetRowHeight},
                                 {"mnuResetColumnWidth", &Menu::mnuResetColumnWidth}};

Names shown_by(const Menu& menu) {
    Names names;
    for (const Entry& entry : entries)
        if ((menu.*entry.member).visible)
            names.push_back(entry.name);
    return names;
}

// What can be chosen, separators left out.
Names offered_by(const Menu& menu) {
    Names names;
    for (const Entry& entry : entries)
        if ((menu.*entry.member).visible && (menu.*entry.member).enabled &&
            !std::string(entry.name).starts_with("mnuSep"))
            names.push_back(entry.name);
    return names;
}

class PopupMenu : public testing::Test, protected support::InteractionWorld {
protected:
    // Ann's Wednesday at 9:00 shows what is given; nothing stands at 13:00.
    void open_with(const store::Activity& activity) {
        set("Filter", "ShowCleared", "1");
        add(activity);
        open();
    }
    const Menu& menu_at(int row, int col) {
        press(2, 0, row, col);
        return presenter.popup.value();
    }
    const Menu& menu_of_nine() { return menu_at(row_of(1), col_of(10)); }
    const Menu& menu_of_selection() {
        select(3, 3);
        calendar.msgSched.RowSel(6);
        return menu_at(4, 3);
    }
    store::Activity cleared(store::Activity activity) {
        activity.cleared = true;
        return activity;
    }
};

// A row of the captions: the last condition that holds gives the caption.
struct Caption {
    const char* what;
    Click click;
    const char* caption;
};

class PopupMenuCaption : public PopupMenu, public testing::WithParamInterface<Caption> {};

TEST_P(PopupMenuCaption, TellsWhatTheLookupTakes) {
    open();
    Menu menu;
    menu.prepare(GetParam().click, cell(3, 3));
    EXPECT_EQ(menu.lookup_caption, GetParam().caption);
}

INSTANTIATE_TEST_SUITE_P(
    ByWhatWasClicked, PopupMenuCaption,
    testing::Values(
        Caption{"Always", {}, "Create Lookup (All cells)"},
        Caption{"OnASelection", {.MultiSelected = true}, "Create Lookup (Selection)"},
        Caption{"OnATitleOfAColumn", {.ClickOnTitleRow = true}, "Create Lookup (Column)"},
        Caption{"OnATitleOfAColumnOfASelection",
                {.ClickOnTitleRow = true, .MultiSelected = true},
                "Create Lookup (Column)"},
        Caption{"OnATitleOfARow", {.ClickOnTitleCol = true}, "Create Lookup (Row)"},
        Caption{
            "OnATitleOfARowOfASelection", {.ClickOnTitleCol = true, .MultiSelected = true}, "Create Lookup (Row)"},
        Caption{"OnTheCorner", {.ClickOnTitleRow = true, .ClickOnTitleCol = true}, "Create Lookup (All)"},
        Caption{"OnTheCornerOfASelection",
                {.ClickOnTitleRow = true, .ClickOnTitleCol = true, .MultiSelected = true},
                "Create Lookup (All)"}),
    [](const auto& given) { return given.param.what; });

// A row of what is visible: on a cell, a column's title, a row's title, the corner, a selection, a column's title
// with a selection, a row's title with a selection.
struct Visible {
    Entry entry;
    std::array<bool, 7> expected;
};
const std::array<Click, 7> clicks{Click{},
                                  Click{.ClickOnTitleRow = true},
                                  Click{.ClickOnTitleCol = true},
                                  Click{.ClickOnTitleRow = true, .ClickOnTitleCol = true},
                                  Click{.MultiSelected = true},
                                  Click{.ClickOnTitleRow = true, .MultiSelected = true},
                                  Click{.ClickOnTitleCol = true, .MultiSelected = true}};

class PopupMenuVisible : public PopupMenu, public testing::WithParamInterface<Visible> {};

TEST_P(PopupMenuVisible, FollowsWhatWasClicked) {
    open();
    for (std::size_t index = 0; index < clicks.size(); ++index) {
        Menu menu;
        menu.prepare(clicks[index], cell(3, 3));
        EXPECT_EQ((menu.*GetParam().entry.member).visible, GetParam().expected[index]) << index;
    }
}

constexpr std::array<bool, 7> on_a_cell_only{true, false, false, false, false, false, false};

INSTANTIATE_TEST_SUITE_P(
    ByEntry, PopupMenuVisible,
    testing::Values(
        Visible{{"mnuResetRowHeight", &Menu::mnuResetRowHeight}, {false, false, true, true, false, false, false}},
        Visible{{"mnuResetColumnWidth", &Menu::mnuResetColumnWidth},
                {false, true, false, true, false, false, false}},
        Visible{{"mnuSep4", &Menu::mnuSep4}, {false, true, false, true, false, false, false}},
        Visible{{"mnupopSchedule", &Menu::mnupopSchedule}, on_a_cell_only},
        Visible{{"mnupopReschedule", &Menu::mnupopReschedule}, on_a_cell_only},
        Visible{{"mnupopDetails", &Menu::mnupopDetails}, on_a_cell_only},
        Visible{{"mnupopSend", &Menu::mnupopSend}, on_a_cell_only},
        Visible{{"mnuSep1", &Menu::mnuSep1}, on_a_cell_only},
        Visible{{"mnupopClear", &Menu::mnupopClear}, on_a_cell_only},
        Visible{{"mnuSep2", &Menu::mnuSep2}, on_a_cell_only},
        Visible{{"mnupopGoto", &Menu::mnupopGoto}, on_a_cell_only},
        Visible{{"mnuPopRecurring", &Menu::mnuPopRecurring}, {true, true, true, true, false, false, false}},
        Visible{{"mnupopLookup", &Menu::mnupopLookup}, {true, true, true, true, true, true, true}}),
    [](const auto& given) { return given.param.entry.name; });

// A row of what is enabled: on an activity, a recurring one, a cleared one, a cleared recurring one, an empty cell
// and an empty one into which an activity runs on.
struct Enabled {
    Entry entry;
    std::array<bool, 6> expected;
};

class PopupMenuEnabled : public PopupMenu, public testing::WithParamInterface<Enabled> {};

TEST_P(PopupMenuEnabled, FollowsTheSelectedCell) {
    open();
    grid::clsMsgSchedCell at_nine = cell(3, 5);
    at_nine.Initialize(3, 5);
    const auto look = [&](const char* what, bool expected) {
        Menu menu;
        menu.prepare({}, at_nine);
        EXPECT_EQ((menu.*GetParam().entry.member).enabled, expected) << what;
    };
    at_nine.Text("Chris Smith");
    look("an activity", GetParam().expected[0]);
    at_nine.Recurring(true);
    look("a recurring one", GetParam().expected[1]);
    at_nine.Cleared(true);
    look("a cleared recurring one", GetParam().expected[3]);
    at_nine.Recurring(false);
    look("a cleared one", GetParam().expected[2]);
    at_nine.Clear(); // which leaves the flags up
    at_nine.Recurring(true);
    look("an empty cell", GetParam().expected[4]);
    at_nine.DependsOnActivity("another-----");
    look("a continuation", GetParam().expected[5]);
}

INSTANTIATE_TEST_SUITE_P(
    ByEntry, PopupMenuEnabled,
    testing::Values(Enabled{{"mnupopSchedule", &Menu::mnupopSchedule}, {false, false, false, false, true, true}},
                    Enabled{{"mnupopReschedule", &Menu::mnupopReschedule},
                            {true, true, false, false, false, true}},
                    Enabled{{"mnupopDetails", &Menu::mnupopDetails}, {true, true, false, false, false, false}},
                    Enabled{{"mnupopSend", &Menu::mnupopSend}, {true, true, false, false, false, false}},
                    Enabled{{"mnupopClear", &Menu::mnupopClear}, {true, true, false, false, false, false}},
                    Enabled{{"mnupopGoto", &Menu::mnupopGoto}, {true, true, true, true, false, false}},
                    Enabled{{"mnuPopRecurring", &Menu::mnuPopRecurring}, {false, true, false, true, false, false}},
                    Enabled{{"mnupopLookup", &Menu::mnupopLookup}, {true, true, true, true, true, true}}),
    [](const auto& given) { return given.param.entry.name; });

TEST_F(PopupMenu, OfAnActivityOffersItsCommands) {
    open_with(meeting(10, 9));
    EXPECT_EQ(offered_by(menu_of_nine()), (Names{"mnupopReschedule", "mnupopDetails", "mnupopSend", "mnupopClear",
                                                 "mnupopGoto", "mnupopLookup"}));
    EXPECT_EQ(presenter.popup->lookup_caption, "Create Lookup (All cells)");
}

TEST_F(PopupMenu, OfAnOccurrenceOffersTheSettingsOfItsSeriesToo) {
    open_with(daily(8, 9));
    EXPECT_EQ(offered_by(menu_of_nine()), (Names{"mnupopReschedule", "mnupopDetails", "mnupopSend", "mnupopClear",
                                                 "mnuPopRecurring", "mnupopGoto", "mnupopLookup"}));
}

TEST_F(PopupMenu, OfAClearedActivityOffersOnlyTheLookups) {
    open_with(cleared(meeting(10, 9)));
    EXPECT_EQ(offered_by(menu_of_nine()), (Names{"mnupopGoto", "mnupopLookup"}));
}

TEST_F(PopupMenu, OfAClearedActivityThatRecursOffersItsSeriesSettingsToo) {
    open_with(cleared(daily(8, 9)));
    EXPECT_EQ(offered_by(menu_of_nine()), (Names{"mnuPopRecurring", "mnupopGoto", "mnupopLookup"}));
}

TEST_F(PopupMenu, OfAnEmptyCellOffersToScheduleAndTheLookupOfAllCells) {
    open_with(meeting(10, 9));
    EXPECT_EQ(offered_by(menu_at(row_of(5), col_of(10))), (Names{"mnupopSchedule", "mnupopLookup"}));
}

TEST_F(PopupMenu, OfAnEmptyContinuationCellOffersToRescheduleAndNothingElseButSchedule) {
    open_with(meeting(10, 9, 120));
    ASSERT_EQ(shown(row_of(2), col_of(10)), "( Continued )");
    EXPECT_EQ(offered_by(menu_at(row_of(2), col_of(10))),
              (Names{"mnupopSchedule", "mnupopReschedule", "mnupopLookup"}));
}

TEST_F(PopupMenu, WithSeveralCellsSelectedShowsOnlyTheLookup) {
    open_with(daily(8, 9));
    EXPECT_EQ(shown_by(menu_of_selection()), Names{"mnupopLookup"});
    EXPECT_EQ(presenter.popup->lookup_caption, "Create Lookup (Selection)");
}

TEST_F(PopupMenu, WithSeveralCellsSelectedLeavesWhatIsEnabledAsItWas) {
    open_with(meeting(10, 9));
    menu_of_nine();
    EXPECT_TRUE(menu_of_selection().mnupopDetails.enabled);
    EXPECT_FALSE(presenter.popup->mnupopSchedule.enabled);
    calendar.msgSched.Row(1); // the selection is dropped
    menu_at(row_of(5), col_of(10));
    EXPECT_FALSE(menu_of_selection().mnupopDetails.enabled);
    EXPECT_TRUE(presenter.popup->mnupopSchedule.enabled);
}

TEST_F(PopupMenu, OfADaysTitleOffersTheColumn) {
    open_with(meeting(10, 9));
    EXPECT_EQ(shown_by(menu_at(0, col_of(10))),
              (Names{"mnuPopRecurring", "mnupopLookup", "mnuSep4", "mnuResetColumnWidth"}));
    EXPECT_EQ(offered_by(*presenter.popup), (Names{"mnupopLookup", "mnuResetColumnWidth"}));
    EXPECT_EQ(presenter.popup->lookup_caption, "Create Lookup (Column)");
}

TEST_F(PopupMenu, OfARowsTitleOffersTheRowWithoutASeparator) {
    open_with(meeting(10, 9));
    EXPECT_EQ(shown_by(menu_at(3, 1)), (Names{"mnuPopRecurring", "mnupopLookup", "mnuResetRowHeight"}));
    EXPECT_EQ(presenter.popup->lookup_caption, "Create Lookup (Row)");
}

TEST_F(PopupMenu, OfTheCornerOffersAll) {
    open_with(meeting(10, 9));
    EXPECT_EQ(offered_by(menu_at(0, 0)), (Names{"mnupopLookup", "mnuResetRowHeight", "mnuResetColumnWidth"}));
    EXPECT_EQ(presenter.popup->lookup_caption, "Create Lookup (All)");
}

} // namespace
