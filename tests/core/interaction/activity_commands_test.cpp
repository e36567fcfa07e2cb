#include "interaction/activity_commands.h"

#include "interaction_world.h"
#include "settings/catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using act::CommandNumber;
using values::DateTime;
using Calls = std::vector<std::string>;
using Numbers = std::vector<int>;

DateTime at(int day, int hour) { return DateTime::of(2024, 1, day, hour); }

class ActivityCommands : public testing::Test, protected support::InteractionWorld {
protected:
    interaction::ActivityCommands& commands = hands.commands;

    void have(const store::Activity& activity) {
        id = add(activity);
        open();
    }
    void double_click(int row, int col) {
        calendar.msgSched.Row(row);
        calendar.msgSched.Col(col);
        forget();
        commands.msgSched_DblClick();
    }
    void on_nine(int day, void (interaction::ActivityCommands::*command)()) {
        select(row_of(nine), col_of(day));
        forget();
        (commands.*command)();
    }
    void user_writes(const std::string& regarding) {
        running_desk.on_command = [this, regarding](CommandNumber) {
            change(running_desk.selected, [&](store::Activity& one) { one.regarding = regarding; });
        };
    }
    void user_moves_to(int hour) {
        running_desk.on_command = [this, hour](CommandNumber) {
            change(running_desk.selected, [&](store::Activity& one) {
                one.start = at(10, hour);
                one.end = at(10, hour + 1);
            });
        };
    }
    void user_adds(const store::Activity& activity) {
        running_desk.on_command = [this, activity](CommandNumber) {
            tick();
            id = add(activity);
        };
    }
    void user_deletes() {
        running_desk.on_command = [this](CommandNumber) { store().remove_activity(running_desk.selected); };
    }
    std::string left(const std::string& name) { return user_store.read("Activity", name, "absent"); }
    bool fully_refreshed() const {
        return std::find(window.calls.begin(), window.calls.end(), "lock_updates") != window.calls.end();
    }
    // The filter under which the activity was looked for.
    std::string dates_asked_for() const {
        for (const std::string& call : record.calls)
            if (call.starts_with("SetFilter "))
                return call.substr(call.find(' ', 10) + 1, call.rfind(' ') - call.find(' ', 10) - 1);
        return "none";
    }
    std::string place() const { return only_box().substr(only_box().find('\r') + 1); }

    const std::string week = "6\\1/7/2024\\1/14/2024", every_date = "1";
    const int nine = 1, ten = 2, eleven = 3; // slots
    std::string id;
};

using enum act::CommandNumber;

// The double click ----------------------------------------------------------------------------------------------

TEST_F(ActivityCommands, ADoubleClickOnADaysTitleOpensTheDay) {
    have(meeting(10, 9));
    const auto selected_before = calendar.selection.SelectedCell;
    hands.click.ClickOnTitleRow = hands.click.ClickOnTitles = true;
    double_click(1, col_of(10));
    EXPECT_EQ(presenter.switched_to, col_of(10));
    EXPECT_EQ(record.calls, Calls{});
    EXPECT_EQ(calendar.selection.SelectedCell, selected_before);
    EXPECT_TRUE(hands.click.ClickOnTitles);
}

TEST_F(ActivityCommands, ADoubleClickOnATitleOfARowIsTakenNoteOfOnce) {
    have(meeting(10, 9));
    hands.click.ClickOnTitleCol = hands.click.ClickOnTitles = true;
    double_click(row_of(nine), col_of(10));
    EXPECT_EQ(record.calls, Calls{});
    EXPECT_FALSE(hands.click.ClickOnTitles);
    EXPECT_EQ(&selected(), &cell(row_of(nine), col_of(10)));
    EXPECT_EQ(presenter.switched_to, -1);
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
    running_desk.on_command = [&](CommandNumber) { compared = engine.refresh.LastRefresh; };
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
    presenter.answers = {0};
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
    EXPECT_EQ(presenter.questions, 0);
    EXPECT_EQ(all().size(), 1U);
    EXPECT_TRUE(fully_refreshed());
}

TEST_F(ActivityCommands, ASeriesThatTheDesksUserChangedMeanwhileIsNotOverwrittenAndTheBoxSaysSo) {
    have(daily(8, 9));
    user_writes("Typed in the instance");
    presenter.answers = {1};
    presenter.while_asking = [this] {
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
    on_nine(10, &interaction::ActivityCommands::mnupopReschedule_Click);
    EXPECT_EQ(running_desk.commands, Numbers{1337});
    select(row_of(ten), col_of(10));
    commands.mnupopReschedule_Click();
    EXPECT_EQ(running_desk.commands, (Numbers{1337, 1337}));
    EXPECT_EQ(running_desk.selected, id);
}

// Schedule ------------------------------------------------------------------------------------------------------

TEST_F(ActivityCommands, ScheduleLeavesItsKindForTheCompanionAndShowsTheNewActivity) {
    open();
    const std::pair<void (interaction::ActivityCommands::*)(), std::string> kinds[] = {
        {&interaction::ActivityCommands::mnupopCall_Click, "C"},
        {&interaction::ActivityCommands::mnupopMeeting_Click, "M"},
        {&interaction::ActivityCommands::mnupopTodo_Click, "T"}};
    int day = 10;
    for (const auto& [command, kind] : kinds) {
        user_adds(meeting(day, 9));
        on_nine(day, command);
        EXPECT_EQ(left("Type"), kind);
        EXPECT_EQ(left("Date"), "1/" + std::to_string(day) + "/2024") << kind;
        EXPECT_EQ(left("Time"), "9:00:00 AM") << kind;
        EXPECT_EQ(shown(row_of(nine), col_of(day)), "Chris Smith") << kind;
        EXPECT_FALSE(fully_refreshed()) << kind;
        ++day;
    }
    EXPECT_EQ(running_desk.commands, (Numbers{1321, 1321, 1321}));
    EXPECT_EQ(shell.started, (Calls{"ActivityWin", "ActivityWin", "ActivityWin"}));
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(ActivityCommands, ScheduleComparesWithTheMomentOfTheLastRefresh) {
    open();
    const DateTime last = engine.refresh.LastRefresh;
    tick();
    id = add(meeting(12, 14)); // by somebody else, before the command
    DateTime during;
    running_desk.on_command = [&](CommandNumber) { during = engine.refresh.LastRefresh; };
    on_nine(10, &interaction::ActivityCommands::mnupopCall_Click);
    EXPECT_EQ(during, last);
    EXPECT_EQ(shown(row_of(6), col_of(12)), "Chris Smith");
}

TEST_F(ActivityCommands, ScheduleWithoutADeskShowsTheBoxOfItsOwnProcedure) {
    open();
    const std::pair<void (interaction::ActivityCommands::*)(), std::string> procedures[] = {
        {&interaction::ActivityCommands::mnupopCall_Click, "mnupopCall_Click"},
        {&interaction::ActivityCommands::mnupopMeeting_Click, "mnupopMeeting_Click"},
        {&interaction::ActivityCommands::mnupopTodo_Click, "mnupopTodo_Click"}};
    for (const auto& [command, name] : procedures) {
        fail_before("Command");
        on_nine(10, command);
        EXPECT_TRUE(place().starts_with("in frmMain: Sub " + name + " - Line # ")) << only_box();
        EXPECT_FALSE(refreshed());
    }
}

// Edit recurring settings ---------------------------------------------------------------------------------------

TEST_F(ActivityCommands, EditRecurringSettingsTellsTheCompanionAndEditsTheSeriesItself) {
    have(daily(8, 9));
    std::string word;
    std::size_t started = 0;
    running_desk.on_command = [&](CommandNumber) {
        word = left("RecurringEdit");
        started = shell.started.size();
        change(running_desk.selected, [](store::Activity& one) { one.recurrence.until = at(11, 0); });
    };
    on_nine(10, &interaction::ActivityCommands::mnuPopRecurring_Click);
    EXPECT_EQ(word, "1");
    EXPECT_EQ(started, 1U);
    EXPECT_EQ(shell.started, Calls{"ActivityWin"});
    EXPECT_EQ(running_desk.commands, Numbers{1337});
    EXPECT_EQ(running_desk.selected, id);
    EXPECT_EQ(dates_asked_for(), every_date);
    EXPECT_EQ(presenter.questions, 0);
    EXPECT_EQ(all().size(), 1U) << "no instance";
    EXPECT_TRUE(fully_refreshed());
    EXPECT_EQ(shown(row_of(nine), col_of(11)), "Chris Smith");
    EXPECT_EQ(shown(row_of(nine), col_of(12)), "");
    EXPECT_EQ(left("Type"), "absent");
}

TEST_F(ActivityCommands, EditRecurringSettingsStopsWhereItCanNotTellTheCompanion) {
    have(daily(8, 9));
    user_values.refuses_writes = true;
    on_nine(10, &interaction::ActivityCommands::mnuPopRecurring_Click);
    EXPECT_TRUE(place().starts_with("in frmMain: Sub mnuPopRecurring_Click - Line # 10\r")) << only_box();
    EXPECT_EQ(running_desk.commands, Numbers{});
}

// Details -------------------------------------------------------------------------------------------------------

TEST_F(ActivityCommands, DetailsOfAPlainActivityAreShownAndReadAgain) {
    have(meeting(10, 9));
    running_desk.on_command = [this](CommandNumber) {
        change(running_desk.selected, [](store::Activity& one) { one.details = "A page"; });
    };
    on_nine(10, &interaction::ActivityCommands::mnupopDetails_Click);
    EXPECT_EQ(running_desk.commands, Numbers{20251});
    EXPECT_EQ(dates_asked_for(), week);
    EXPECT_TRUE(cell(row_of(nine), col_of(10)).HasDetails());
    EXPECT_FALSE(fully_refreshed());
}

TEST_F(ActivityCommands, DetailsOfAnOccurrenceAreThoseOfATemporaryInstance) {
    have(daily(8, 9));
    on_nine(10, &interaction::ActivityCommands::mnupopDetails_Click);
    EXPECT_EQ(running_desk.commands, Numbers{20251});
    EXPECT_NE(running_desk.selected, id);
    EXPECT_EQ(dates_asked_for(), every_date);
    EXPECT_FALSE(refreshed());
    EXPECT_EQ(all().size(), 1U);
}

TEST_F(ActivityCommands, DetailsOfAnOccurrenceRefreshAllWhenTheyWereKept) {
    have(daily(8, 9));
    running_desk.on_command = [this](CommandNumber) {
        change(running_desk.selected, [](store::Activity& one) { one.details = "A page"; });
    };
    presenter.answers = {1};
    on_nine(10, &interaction::ActivityCommands::mnupopDetails_Click);
    EXPECT_TRUE(fully_refreshed());
    EXPECT_EQ(stored(id).details, "A page");
    EXPECT_EQ(all().size(), 1U);
}

// Send ----------------------------------------------------------------------------------------------------------

TEST_F(ActivityCommands, SendTakesTheActivityOfTheCurrentCellAndRefreshesNothing) {
    const std::string other = add(meeting(11, 9));
    have(meeting(10, 9));
    select(row_of(nine), col_of(11));
    calendar.msgSched.Col(col_of(10));
    forget();
    commands.mnupopSend_Click();
    EXPECT_EQ(running_desk.commands, Numbers{1343});
    EXPECT_EQ(running_desk.selected, id);
    EXPECT_EQ(dates_asked_for(), week);
    EXPECT_FALSE(refreshed());
}

TEST_F(ActivityCommands, SendOfAnOccurrenceThatBeganBeforeTheWeekSendsTheSeriesWithoutAnInstance) {
    have(daily(8, 9));
    on_nine(10, &interaction::ActivityCommands::mnupopSend_Click);
    EXPECT_EQ(running_desk.selected, id);
    EXPECT_EQ(all().size(), 1U);
    EXPECT_EQ(revision(), stored(id).revision);
}

// Clear ---------------------------------------------------------------------------------------------------------

TEST_F(ActivityCommands, ClearOfAPlainActivityTakesItOffTheGrid) {
    have(meeting(10, 9));
    running_desk.on_command = [this](CommandNumber) {
        EXPECT_EQ(running_desk.filter.mask, 232);
        change(running_desk.selected, [](store::Activity& one) { one.cleared = true; });
    };
    on_nine(10, &interaction::ActivityCommands::mnupopClear_Click);
    EXPECT_EQ(running_desk.commands, Numbers{1323});
    EXPECT_EQ(dates_asked_for(), week);
    EXPECT_EQ(shown(row_of(nine), col_of(10)), "");
    EXPECT_FALSE(fully_refreshed());
    EXPECT_EQ(presenter.questions, 0);
}

TEST_F(ActivityCommands, ClearReadsAnActivityAgainThatTheCellContinues) {
    const std::string above = add(meeting(10, 9, 120));
    have(meeting(10, 11));
    grid::clsMsgSchedCell& clicked = cell(row_of(eleven), col_of(10));
    clicked.DependsOnActivity(above);
    clicked.DependsOnActivityX(row_of(nine));
    clicked.DependsOnActivityY(col_of(10));
    select(row_of(eleven), col_of(10));
    user_deletes();
    forget();
    commands.mnupopClear_Click();
    EXPECT_FALSE(exists(id));
    EXPECT_EQ(&selected(), &cell(row_of(nine), col_of(10)));
    EXPECT_NE(std::find(record.calls.begin(), record.calls.end(), "Goto " + above), record.calls.end());
    EXPECT_EQ(shown(row_of(nine), col_of(10)), "Chris Smith");
    EXPECT_EQ(shown(row_of(eleven), col_of(10)), "");
}

TEST_F(ActivityCommands, ClearOfAnOccurrenceWorksOnAnInstanceThatStaysAsTheClearedOccurrence) {
    have(daily(8, 9));
    running_desk.on_command = [this](CommandNumber) {
        EXPECT_NE(running_desk.selected, id);
        EXPECT_EQ(running_desk.filter.dates, every_date);
        change(running_desk.selected, [](store::Activity& one) { one.cleared = true; });
    };
    on_nine(10, &interaction::ActivityCommands::mnupopClear_Click);
    EXPECT_EQ(running_desk.commands, Numbers{1323});
    EXPECT_EQ(presenter.questions, 0);
    EXPECT_TRUE(other_than(id).cleared);
    EXPECT_EQ(other_than(id).start, at(10, 9));
    EXPECT_FALSE(stored(id).cleared);
    EXPECT_EQ(stored(id).exceptions, std::vector<DateTime>{at(10, 0)});
    EXPECT_TRUE(fully_refreshed());
    EXPECT_EQ(shown(row_of(nine), col_of(10)), "");
    EXPECT_EQ(shown(row_of(nine), col_of(11)), "Chris Smith");
}

TEST_F(ActivityCommands, ClearOfTheFirstOccurrenceWorksOnAnInstanceToo) {
    have(daily(8, 9));
    on_nine(8, &interaction::ActivityCommands::mnupopClear_Click);
    EXPECT_NE(running_desk.selected, id);
    EXPECT_EQ(stored(id).exceptions, std::vector<DateTime>{at(8, 0)});
    EXPECT_EQ(other_than(id).start, at(8, 9));
}

TEST_F(ActivityCommands, ClearOfAnOccurrenceDeletedInTheDialogAndAnsweredWithInstanceLosesItAlone) {
    have(daily(8, 9));
    user_deletes();
    presenter.answers = {0};
    on_nine(10, &interaction::ActivityCommands::mnupopClear_Click);
    EXPECT_EQ(presenter.questions, 1);
    EXPECT_EQ(all().size(), 1U);
    EXPECT_EQ(stored(id).exceptions, std::vector<DateTime>{at(10, 0)});
    EXPECT_TRUE(fully_refreshed());
    EXPECT_EQ(shown(row_of(nine), col_of(10)), "");
    EXPECT_EQ(shown(row_of(nine), col_of(11)), "Chris Smith");
}

TEST_F(ActivityCommands, ClearOfAnOccurrenceDeletedInTheDialogAndAnsweredWithAllDeletesTheSeries) {
    have(daily(8, 9));
    user_deletes();
    presenter.answers = {1};
    on_nine(10, &interaction::ActivityCommands::mnupopClear_Click);
    EXPECT_TRUE(all().empty());
    EXPECT_TRUE(fully_refreshed());
    EXPECT_EQ(shown(row_of(nine), col_of(11)), "");
}

TEST_F(ActivityCommands, ClearOfAnOccurrenceDeletedInTheDialogAndAnsweredWithCancelBringsItBack) {
    have(daily(8, 9));
    user_deletes();
    presenter.answers = {2};
    on_nine(10, &interaction::ActivityCommands::mnupopClear_Click);
    EXPECT_EQ(presenter.questions, 1);
    EXPECT_EQ(all().size(), 1U);
    EXPECT_TRUE(stored(id).exceptions.empty());
    EXPECT_FALSE(refreshed());
    EXPECT_EQ(shown(row_of(nine), col_of(10)), "Chris Smith");
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(ActivityCommands, ClearOfAnOccurrenceAsksTheDeskInThisOrder) {
    have(daily(8, 9));
    std::string instance;
    running_desk.on_command = [&](CommandNumber) {
        instance = running_desk.selected;
        store().remove_activity(instance);
    };
    presenter.answers = {1};
    on_nine(10, &interaction::ActivityCommands::mnupopClear_Click);
    Calls moves;
    for (const std::string& call : calls())
        for (const char* told : {"Goto", "Add", "Update", "Delete", "Command", "ExceptionInfo", "Data(1)"})
            if (call.starts_with(told))
                moves.push_back(call);
    EXPECT_EQ(moves, (Calls{"Goto " + id, "Add", "Update", "Goto " + instance, "Goto " + id,
                            "ExceptionInfo.Add 1/10/2024", "Goto " + instance, "Data(1)", "Command 1323",
                            "Goto " + instance, "Data(1)", "Goto " + id, "Delete"}));
}

TEST_F(ActivityCommands, ClearOfAnOccurrenceWhoseInstanceCouldNotBeMadeChangesNothing) {
    have(daily(8, 9));
    fail_before("Add", "The disk is full.");
    on_nine(10, &interaction::ActivityCommands::mnupopClear_Click);
    EXPECT_TRUE(only_box().starts_with("Error 440: 'The disk is full.'\rin frmMain: Function Change_Instance"))
        << only_box();
    EXPECT_EQ(running_desk.commands, Numbers{});
    EXPECT_EQ(all().size(), 1U);
    EXPECT_TRUE(stored(id).exceptions.empty());
    EXPECT_EQ(presenter.questions, 0);
}

TEST_F(ActivityCommands, ClearOfAnOccurrenceLosesNothingWhenTheDeskDiesInTheDialog) {
    have(daily(8, 9));
    fail_before("Command");
    on_nine(10, &interaction::ActivityCommands::mnupopClear_Click);
    EXPECT_TRUE(place().starts_with("in frmMain: Sub Select_and_Launch_Command - Line # ")) << only_box();
    EXPECT_EQ(presenter.questions, 0);
    EXPECT_EQ(other_than(id).start, at(10, 9)) << "the instance exists and stays";
    EXPECT_EQ(shown(row_of(nine), col_of(10)), "Chris Smith");
}

// All of them ---------------------------------------------------------------------------------------------------

TEST_F(ActivityCommands, TheUsersOwnFilterAndTabAreTheSameAfterAnyCommandAsBeforeIt) {
    using Commands = interaction::ActivityCommands;
    const auto all_commands = {&Commands::msgSched_DblClick,     &Commands::mnupopReschedule_Click,
                               &Commands::mnuPopRecurring_Click, &Commands::mnupopDetails_Click,
                               &Commands::mnupopSend_Click,      &Commands::mnupopClear_Click};
    const std::string series = add(daily(8, 11));
    have(meeting(10, 9));
    running_desk.filter = {36, "4", bob};
    running_desk.tab = "Groups";
    for (const bool fails : {false, true})
        for (const int slot : {nine, eleven})
            for (const auto command : all_commands) {
                select(row_of(slot), col_of(10));
                if (fails)
                    fail_before("Command");
                (this->commands.*command)();
                EXPECT_EQ(record.before, nullptr) << "the command wasn't run";
                EXPECT_EQ(running_desk.tab, "Groups");
                EXPECT_EQ(running_desk.filter.mask, 36);
                EXPECT_EQ(running_desk.filter.dates, "4");
                EXPECT_EQ(running_desk.filter.users, bob);
            }
}

TEST_F(ActivityCommands, WithoutASelectedCellShowTheBoxOfTheirOwnProcedure) {
    using Commands = interaction::ActivityCommands;
    open();
    const std::pair<void (Commands::*)(), std::string> procedures[] = {
        {&Commands::mnuPopRecurring_Click, "mnuPopRecurring_Click"},
        {&Commands::mnupopDetails_Click, "mnupopDetails_Click"},
        {&Commands::mnupopClear_Click, "mnupopClear_Click"}};
    calendar.selection.SelectedCell.reset();
    for (const auto& [command, name] : procedures) {
        forget();
        (commands.*command)();
        EXPECT_TRUE(only_box().starts_with("Error 91: ")) << name;
        EXPECT_TRUE(place().starts_with("in frmMain: Sub " + name + " - Line # ")) << only_box();
        EXPECT_EQ(running_desk.commands, Numbers{}) << name;
    }
}

} // namespace
