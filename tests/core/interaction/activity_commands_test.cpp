#include "core/interaction/editing.h"

#include "activity_commands_world.h"

#include <functional>

namespace {

using act::CommandNumber;
using support::ActivityCommands;
using values::DateTime;
using Calls = std::vector<std::string>;
using Numbers = std::vector<int>;
using enum act::CommandNumber;

// The double click ----------------------------------------------------------------------------------------------

TEST_F(ActivityCommands, ADoubleClickOnADaysTitleOpensTheDay) {
    have(meeting(10, 9));
    hands.mouse.click.ClickOnTitleRow = hands.mouse.click.ClickOnTitles = true;
    double_click(1, col_of(10));
    EXPECT_TRUE(main_window.chkView(0));
    EXPECT_EQ(&selected(), &cell(1, col_of(10)));
    EXPECT_EQ(record.calls, Calls{});
    EXPECT_TRUE(hands.mouse.click.ClickOnTitles);
}

TEST_F(ActivityCommands, ADoubleClickOnATitleOfARowIsTakenNoteOfOnce) {
    have(meeting(10, 9));
    hands.mouse.click.ClickOnTitleCol = hands.mouse.click.ClickOnTitles = true;
    double_click(row_of(nine), col_of(10));
    EXPECT_EQ(record.calls, Calls{});
    EXPECT_FALSE(hands.mouse.click.ClickOnTitles);
    EXPECT_EQ(&selected(), &cell(row_of(nine), col_of(10)));
    EXPECT_FALSE(main_window.chkView(0));
    double_click(row_of(nine), col_of(10));
    EXPECT_EQ(running_desk.commands, Numbers{1337});
}

TEST_F(ActivityCommands, ADoubleClickOnAnActivityEditsItAndShowsWhatWasTyped) {
    have(meeting(10, 9));
    user_moves_to(11);
    double_click(row_of(nine), col_of(10));
    EXPECT_EQ(running_desk.commands, Numbers{1337});
    EXPECT_EQ(running_desk.selected, id);
    EXPECT_EQ(dates_asked_for(), week);
    EXPECT_EQ(&selected(), &cell(row_of(nine), col_of(10)));
    EXPECT_EQ(shown(row_of(nine), col_of(10)), "");
    EXPECT_EQ(shown(row_of(eleven), col_of(10)), "Chris Smith");
    EXPECT_FALSE(fully_refreshed());
    EXPECT_EQ(shell.started, Calls{});
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(ActivityCommands, ADoubleClickOnAContinuationCellEditsTheActivityThatStartedInTheCellAbove) {
    have(meeting(10, 9, 120));
    ASSERT_EQ(shown(row_of(ten), col_of(10)), "( Continued )");
    user_moves_to(13);
    double_click(row_of(ten), col_of(10));
    EXPECT_EQ(running_desk.selected, id);
    EXPECT_EQ(running_desk.commands, Numbers{1337});
    EXPECT_EQ(&selected(), &cell(row_of(nine), col_of(10)));
    EXPECT_EQ(dates_asked_for(), every_date) << "the column that it continues from counts as the flag";
    EXPECT_EQ(shown(row_of(nine), col_of(10)), "");
    EXPECT_EQ(shown(row_of(5), col_of(10)), "Chris Smith");
}

TEST_F(ActivityCommands, ADoubleClickOnAContinuationCellGoesByTheClickedCellsOwnMarks) {
    have(meeting(10, 9, 120));
    cell(row_of(ten), col_of(10)).Cleared(true);
    running_desk.on_command = [this](CommandNumber) { EXPECT_EQ(running_desk.filter.mask, 234); };
    double_click(row_of(ten), col_of(10));
    EXPECT_EQ(running_desk.commands, Numbers{1323});
    EXPECT_EQ(running_desk.selected, id);
}

TEST_F(ActivityCommands, ADoubleClickOnAnActivityThatIsGoneTakesItOffTheGrid) {
    have(meeting(10, 9));
    store().remove_activity(id);
    double_click(row_of(nine), col_of(10));
    EXPECT_EQ(running_desk.commands, Numbers{});
    EXPECT_TRUE(box.shown.empty());
    EXPECT_EQ(shown(row_of(nine), col_of(10)), "");
}

TEST_F(ActivityCommands, ADoubleClickOnAClearedActivityOpensItWithTheClearCommand) {
    set("Filter", "ShowCleared", "1");
    store::Activity activity = meeting(10, 9);
    activity.cleared = true;
    have(activity);
    running_desk.on_command = [this](CommandNumber) {
        EXPECT_EQ(running_desk.filter.mask, 234);
        change(id, [](store::Activity& one) { one.cleared = false; });
    };
    double_click(row_of(nine), col_of(10));
    EXPECT_EQ(running_desk.commands, Numbers{1323});
    EXPECT_EQ(running_desk.selected, id);
    EXPECT_FALSE(cell(row_of(nine), col_of(10)).Cleared());
}

TEST_F(ActivityCommands, ADoubleClickOnAnEmptyCellSchedulesAMeetingThere) {
    open();
    user_adds(meeting(11, 10));
    double_click(row_of(ten, 1), col_of(11));
    EXPECT_EQ(left("Type"), "M") << "the default of ActyType";
    EXPECT_EQ(left("Date"), "1/11/2024");
    EXPECT_EQ(left("Time"), "10:00:00 AM");
    EXPECT_EQ(left("For"), "Bob");
    EXPECT_EQ(shell.started, Calls{"ActivityWin"});
    EXPECT_EQ(running_desk.commands, Numbers{1321});
    EXPECT_EQ(shown(row_of(ten), col_of(11)), "Chris Smith") << "the quick refresh found the new activity";
    EXPECT_FALSE(fully_refreshed());
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(ActivityCommands, ADoubleClickOnAnEmptyCellSchedulesTheKindOfActyType) {
    set("Settings", "ActyType", "T");
    open();
    double_click(row_of(ten), col_of(11));
    EXPECT_EQ(left("Type"), "T");
}

TEST_F(ActivityCommands, ADoubleClickOnAnEmptyCellComparesWithTheMomentBeforeTheDialog) {
    have(meeting(10, 9));
    tick();
    change(id, [](store::Activity& one) { one.regarding = "Before the double click"; });
    tick();
    DateTime compared;
    running_desk.on_command = [&](CommandNumber) { compared = engine.placing.LastRefresh; };
    double_click(row_of(ten), col_of(11));
    EXPECT_EQ(compared, clock.time);
    EXPECT_EQ(std::count(record.calls.begin(), record.calls.end(), "Goto " + id), 0) << "an older change";
}

TEST_F(ActivityCommands, ADoubleClickOnAnEmptyCellWithoutADeskShowsTheBoxAndStopsThere) {
    open();
    fail_before("Command");
    double_click(row_of(ten), col_of(11));
    EXPECT_TRUE(place().starts_with("in frmMain: Sub msgSched_DblClick - Line # 90\r")) << only_box();
    EXPECT_FALSE(refreshed());
}

TEST_F(ActivityCommands, ADoubleClickOnAnOccurrenceEditsItAndRefreshesAllWhenItWasKept) {
    have(daily(8, 9));
    user_moves_to(11);
    question.answers = {0};
    double_click(row_of(nine), col_of(10));
    EXPECT_EQ(running_desk.commands, Numbers{1337});
    EXPECT_TRUE(fully_refreshed());
    EXPECT_EQ(shown(row_of(nine), col_of(10)), "");
    EXPECT_EQ(shown(row_of(eleven), col_of(10)), "Chris Smith");
    EXPECT_EQ(shown(row_of(nine), col_of(11)), "Chris Smith");
}

TEST_F(ActivityCommands, ADoubleClickOnAnOccurrenceRefreshesNothingWhenNothingWasChanged) {
    have(daily(8, 9));
    double_click(row_of(nine), col_of(10));
    EXPECT_EQ(running_desk.commands, Numbers{1337});
    EXPECT_FALSE(refreshed());
    EXPECT_EQ(shown(row_of(nine), col_of(10)), "Chris Smith");
    EXPECT_EQ(all().size(), 1U);
}

TEST_F(ActivityCommands, ADoubleClickOnTheFirstOccurrenceEditsTheSeriesWithNoQuestion) {
    have(daily(8, 9));
    user_writes("For all");
    double_click(row_of(nine), col_of(8));
    EXPECT_EQ(running_desk.selected, id);
    EXPECT_EQ(question.questions, 0);
    EXPECT_EQ(all().size(), 1U);
    EXPECT_TRUE(fully_refreshed());
}

TEST_F(ActivityCommands, ASeriesThatTheDesksUserChangedMeanwhileIsNotOverwrittenAndTheBoxSaysSo) {
    have(daily(8, 9));
    user_writes("Typed in the instance");
    question.answers = {1};
    question.while_asking = [this] {
        before_call("Data(5,", [this] {
            change(id, [](store::Activity& one) { one.regarding = "What the desk's user wrote"; });
        });
    };
    double_click(row_of(nine), col_of(10));
    EXPECT_TRUE(only_box().starts_with("Error 440: '")) << only_box();
    EXPECT_NE(only_box().find("changed"), std::string::npos) << only_box();
    EXPECT_TRUE(place().starts_with("in frmMain: Sub msgSched_DblClick - Line # 60\r"));
    EXPECT_EQ(stored(id).regarding, "What the desk's user wrote");
    EXPECT_EQ(other_than(id).regarding, "Typed in the instance") << "nothing is lost";
}

TEST_F(ActivityCommands, RescheduleActivityRunsTheDoubleClick) {
    have(meeting(10, 9, 120));
    on_nine(10, &interaction::Editing::mnupopReschedule_Click);
    EXPECT_EQ(running_desk.commands, Numbers{1337});
    select(row_of(ten), col_of(10));
    hands.editing.mnupopReschedule_Click();
    EXPECT_EQ(running_desk.commands, (Numbers{1337, 1337}));
    EXPECT_EQ(running_desk.selected, id);
}

// All of them ---------------------------------------------------------------------------------------------------

TEST_F(ActivityCommands, TheUsersOwnFilterAndTabAreTheSameAfterAnyCommandAsBeforeIt) {
    const std::vector<std::function<void()>> all_commands = {
        [&] { hands.editing.msgSched_DblClick(); },     [&] { hands.editing.mnupopReschedule_Click(); },
        [&] { hands.editing.mnuPopRecurring_Click(); }, [&] { hands.editing.mnupopDetails_Click(); },
        [&] { hands.editing.mnupopSend_Click(); },      [&] { hands.clearing.mnupopClear_Click(); }};
    const std::string series = add(daily(8, 11));
    have(meeting(10, 9));
    running_desk.filter = {36, "4", bob};
    running_desk.tab = "Groups";
    for (const bool fails : {false, true})
        for (const int slot : {nine, eleven})
            for (const auto& command : all_commands) {
                select(row_of(slot), col_of(10));
                if (fails)
                    fail_before("Command");
                command();
                EXPECT_EQ(record.before, nullptr) << "the command wasn't run";
                EXPECT_EQ(running_desk.tab, "Groups");
                EXPECT_EQ(running_desk.filter.mask, 36);
                EXPECT_EQ(running_desk.filter.dates, "4");
                EXPECT_EQ(running_desk.filter.users, bob);
            }
}

TEST_F(ActivityCommands, WithoutASelectedCellShowTheBoxOfTheirOwnProcedure) {
    open();
    const std::pair<std::function<void()>, std::string> procedures[] = {
        {[&] { hands.editing.mnuPopRecurring_Click(); }, "mnuPopRecurring_Click"},
        {[&] { hands.editing.mnupopDetails_Click(); }, "mnupopDetails_Click"},
        {[&] { hands.clearing.mnupopClear_Click(); }, "mnupopClear_Click"}};
    calendar.selection.SelectedCell.reset();
    for (const auto& [command, name] : procedures) {
        forget();
        command();
        EXPECT_TRUE(only_box().starts_with("Error 91: ")) << name;
        EXPECT_TRUE(place().starts_with("in frmMain: Sub " + name + " - Line # ")) << only_box();
        EXPECT_EQ(running_desk.commands, Numbers{}) << name;
    }
}

} // namespace
