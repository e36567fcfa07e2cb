#include "core/interaction/editing.h"

#include "activity_commands_world.h"

namespace {

using act::CommandNumber;
using support::ActivityCommands;
using values::DateTime;
using Calls = std::vector<std::string>;
using Numbers = std::vector<int>;
using enum act::CommandNumber;

DateTime at(int day, int hour) { return DateTime::of(2024, 1, day, hour); }

// Schedule ------------------------------------------------------------------------------------------------------

TEST_F(ActivityCommands, ScheduleLeavesItsKindForTheCompanionAndShowsTheNewActivity) {
    open();
    const std::pair<void (interaction::Scheduling::*)(), std::string> kinds[] = {
        {&interaction::Scheduling::mnupopCall_Click, "C"},
        {&interaction::Scheduling::mnupopMeeting_Click, "M"},
        {&interaction::Scheduling::mnupopTodo_Click, "T"}};
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
    const DateTime last = engine.placing.LastRefresh;
    tick();
    id = add(meeting(12, 14)); // by somebody else, before the command
    DateTime during;
    running_desk.on_command = [&](CommandNumber) { during = engine.placing.LastRefresh; };
    on_nine(10, &interaction::Scheduling::mnupopCall_Click);
    EXPECT_EQ(during, last);
    EXPECT_EQ(shown(row_of(6), col_of(12)), "Chris Smith");
}

TEST_F(ActivityCommands, ScheduleWithoutADeskShowsTheBoxOfItsOwnProcedure) {
    open();
    const std::pair<void (interaction::Scheduling::*)(), std::string> procedures[] = {
        {&interaction::Scheduling::mnupopCall_Click, "mnupopCall_Click"},
        {&interaction::Scheduling::mnupopMeeting_Click, "mnupopMeeting_Click"},
        {&interaction::Scheduling::mnupopTodo_Click, "mnupopTodo_Click"}};
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
    on_nine(10, &interaction::Editing::mnuPopRecurring_Click);
    EXPECT_EQ(word, "1");
    EXPECT_EQ(started, 1U);
    EXPECT_EQ(shell.started, Calls{"ActivityWin"});
    EXPECT_EQ(running_desk.commands, Numbers{1337});
    EXPECT_EQ(running_desk.selected, id);
    EXPECT_EQ(dates_asked_for(), every_date);
    EXPECT_EQ(question.questions, 0);
    EXPECT_EQ(all().size(), 1U) << "no instance";
    EXPECT_TRUE(fully_refreshed());
    EXPECT_EQ(shown(row_of(nine), col_of(11)), "Chris Smith");
    EXPECT_EQ(shown(row_of(nine), col_of(12)), "");
    EXPECT_EQ(left("Type"), "absent");
}

TEST_F(ActivityCommands, EditRecurringSettingsTakesTheWordBackOnceItsDialogIsOverOrRefused) {
    have(daily(8, 9));
    on_nine(10, &interaction::Editing::mnuPopRecurring_Click);
    EXPECT_EQ(left("RecurringEdit"), "absent");
    std::string word;
    running_desk.on_command = [&](CommandNumber) {
        word = left("RecurringEdit");
        throw values::Failure(values::FailureNumber::automation, "Another activity is being worked on already.");
    };
    on_nine(10, &interaction::Editing::mnuPopRecurring_Click);
    EXPECT_EQ(word, "1");
    EXPECT_EQ(left("RecurringEdit"), "absent");
    EXPECT_EQ(box.shown.size(), 1U);
}

TEST_F(ActivityCommands, EditRecurringSettingsOpensAClearedSeries) {
    set("Filter", "ShowCleared", "1");
    store::Activity series = daily(8, 9);
    series.cleared = true;
    have(series);
    on_nine(10, &interaction::Editing::mnuPopRecurring_Click);
    EXPECT_EQ(running_desk.commands, Numbers{1337});
    EXPECT_EQ(running_desk.selected, id);
}

TEST_F(ActivityCommands, EditRecurringSettingsStopsWhereItCanNotTellTheCompanion) {
    have(daily(8, 9));
    user_values.refuses_writes = true;
    on_nine(10, &interaction::Editing::mnuPopRecurring_Click);
    EXPECT_TRUE(place().starts_with("in frmMain: Sub mnuPopRecurring_Click - Line # 10\r")) << only_box();
    EXPECT_EQ(running_desk.commands, Numbers{});
}

// Details -------------------------------------------------------------------------------------------------------

TEST_F(ActivityCommands, DetailsOfAPlainActivityAreShownAndReadAgain) {
    have(meeting(10, 9));
    running_desk.on_command = [this](CommandNumber) {
        change(running_desk.selected, [](store::Activity& one) { one.details = "A page"; });
    };
    on_nine(10, &interaction::Editing::mnupopDetails_Click);
    EXPECT_EQ(running_desk.commands, Numbers{20251});
    EXPECT_EQ(dates_asked_for(), week);
    EXPECT_TRUE(cell(row_of(nine), col_of(10)).HasDetails());
    EXPECT_FALSE(fully_refreshed());
}

TEST_F(ActivityCommands, DetailsOfAnOccurrenceAreThoseOfATemporaryInstance) {
    have(daily(8, 9));
    on_nine(10, &interaction::Editing::mnupopDetails_Click);
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
    question.answers = {1};
    on_nine(10, &interaction::Editing::mnupopDetails_Click);
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
    hands.editing.mnupopSend_Click();
    EXPECT_EQ(running_desk.commands, Numbers{1343});
    EXPECT_EQ(running_desk.selected, id);
    EXPECT_EQ(dates_asked_for(), week);
    EXPECT_FALSE(refreshed());
}

TEST_F(ActivityCommands, SendOfAnOccurrenceThatBeganBeforeTheWeekSendsTheSeriesWithoutAnInstance) {
    have(daily(8, 9));
    on_nine(10, &interaction::Editing::mnupopSend_Click);
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
    on_nine(10, &interaction::Clearing::mnupopClear_Click);
    EXPECT_EQ(running_desk.commands, Numbers{1323});
    EXPECT_EQ(dates_asked_for(), week);
    EXPECT_EQ(shown(row_of(nine), col_of(10)), "");
    EXPECT_FALSE(fully_refreshed());
    EXPECT_EQ(question.questions, 0);
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
    hands.clearing.mnupopClear_Click();
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
    on_nine(10, &interaction::Clearing::mnupopClear_Click);
    EXPECT_EQ(running_desk.commands, Numbers{1323});
    EXPECT_EQ(question.questions, 0);
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
    on_nine(8, &interaction::Clearing::mnupopClear_Click);
    EXPECT_NE(running_desk.selected, id);
    EXPECT_EQ(stored(id).exceptions, std::vector<DateTime>{at(8, 0)});
    EXPECT_EQ(other_than(id).start, at(8, 9));
}

TEST_F(ActivityCommands, ClearOfAnOccurrenceDeletedInTheDialogAndAnsweredWithInstanceLosesItAlone) {
    have(daily(8, 9));
    user_deletes();
    question.answers = {0};
    on_nine(10, &interaction::Clearing::mnupopClear_Click);
    EXPECT_EQ(question.questions, 1);
    EXPECT_EQ(all().size(), 1U);
    EXPECT_EQ(stored(id).exceptions, std::vector<DateTime>{at(10, 0)});
    EXPECT_TRUE(fully_refreshed());
    EXPECT_EQ(shown(row_of(nine), col_of(10)), "");
    EXPECT_EQ(shown(row_of(nine), col_of(11)), "Chris Smith");
}

TEST_F(ActivityCommands, ClearOfAnOccurrenceDeletedInTheDialogAndAnsweredWithAllDeletesTheSeries) {
    have(daily(8, 9));
    user_deletes();
    question.answers = {1};
    on_nine(10, &interaction::Clearing::mnupopClear_Click);
    EXPECT_TRUE(all().empty());
    EXPECT_TRUE(fully_refreshed());
    EXPECT_EQ(shown(row_of(nine), col_of(11)), "");
}

TEST_F(ActivityCommands, ClearOfAnOccurrenceDeletedInTheDialogAndAnsweredWithCancelBringsItBack) {
    have(daily(8, 9));
    user_deletes();
    question.answers = {2};
    on_nine(10, &interaction::Clearing::mnupopClear_Click);
    EXPECT_EQ(question.questions, 1);
    EXPECT_EQ(all().size(), 1U);
    EXPECT_TRUE(stored(id).exceptions.empty());
    EXPECT_FALSE(refreshed());
    EXPECT_EQ(shown(row_of(nine), col_of(10)), "Chris Smith");
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(ActivityCommands, ClearOfAnOccurrenceHasItsInstanceRememberedUntilTheDialogHasClosed) {
    const std::string series = add(daily(8, 9));
    open();
    select(row_of(1), col_of(10));
    running_desk.on_command = [&](CommandNumber) { EXPECT_EQ(remembered_instances(), 1); };
    hands.clearing.mnupopClear_Click();
    EXPECT_EQ(running_desk.commands.size(), 1U);
    EXPECT_EQ(remembered_instances(), 0);
    EXPECT_EQ(all().size(), 2U);
}

TEST_F(ActivityCommands, ClearOfAnOccurrenceAsksTheDeskInThisOrder) {
    have(daily(8, 9));
    std::string instance;
    running_desk.on_command = [&](CommandNumber) {
        instance = running_desk.selected;
        store().remove_activity(instance);
    };
    question.answers = {1};
    on_nine(10, &interaction::Clearing::mnupopClear_Click);
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
    on_nine(10, &interaction::Clearing::mnupopClear_Click);
    EXPECT_TRUE(only_box().starts_with("Error 440: 'The disk is full.'\rin frmMain: Function Change_Instance"))
        << only_box();
    EXPECT_EQ(running_desk.commands, Numbers{});
    EXPECT_EQ(all().size(), 1U);
    EXPECT_TRUE(stored(id).exceptions.empty());
    EXPECT_EQ(question.questions, 0);
}

TEST_F(ActivityCommands, ClearOfAnOccurrenceLosesNothingWhenTheDeskDiesInTheDialog) {
    have(daily(8, 9));
    fail_before("Command");
    on_nine(10, &interaction::Clearing::mnupopClear_Click);
    EXPECT_TRUE(place().starts_with("in frmMain: Sub Select_and_Launch_Command - Line # ")) << only_box();
    EXPECT_EQ(question.questions, 0);
    EXPECT_EQ(other_than(id).start, at(10, 9)) << "the instance exists and stays";
    EXPECT_EQ(shown(row_of(nine), col_of(10)), "Chris Smith");
}

} // namespace
