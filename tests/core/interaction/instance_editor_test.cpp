#include "core/interaction/instance_editor.h"

#include "interaction_world.h"
#include "support/failure_number.h"

#include <gtest/gtest.h>

namespace {

using act::CommandNumber;
using values::DateTime;
using Calls = std::vector<std::string>;

DateTime at(int day, int hour) { return DateTime::of(2024, 1, day, hour); }

// The occurrence of Wednesday, 9:00 of a series that began on Monday, the 8th.
class InstanceEditor : public testing::Test, protected support::InteractionWorld {
protected:
    InstanceEditor() {
        series = add(daily(8, 9));
        open();
        before = stored(series);
    }
    bool edit(int day, CommandNumber command = CommandNumber::edit_activity) {
        select(row_of(1), col_of(day));
        EXPECT_EQ(selected().ActivityID(), series);
        forget();
        id = series;
        return hands.editor.Edit_Instance(id, command);
    }
    // What the user does with the instance in the dialog, and OK.
    template <typename Change>
    void user_does(Change typed) {
        running_desk.on_command = [this, typed](CommandNumber) { change(running_desk.selected, typed); };
    }
    void user_writes(const std::string& regarding) {
        user_does([regarding](store::Activity& one) { one.regarding = regarding; });
    }
    void expect_no_trace() {
        EXPECT_EQ(all().size(), 1U);
        store::Activity now = stored(series);
        EXPECT_TRUE(now.exceptions.empty());
        EXPECT_EQ(now.regarding, before.regarding);
        EXPECT_EQ(now.start, before.start);
        EXPECT_EQ(now.end, before.end);
        EXPECT_EQ(now.contacts, before.contacts);
        EXPECT_EQ(now.recurrence, before.recurrence);
    }

    std::string series, id;
    store::Activity before;
};

TEST_F(InstanceEditor, OnTheFirstOccurrenceEditsTheSeriesWithNoInstanceAndNoQuestion) {
    user_writes("For all of them");
    EXPECT_TRUE(edit(8)) << "refresh is needed";
    EXPECT_EQ(id, series);
    EXPECT_EQ(running_desk.commands, std::vector<int>{1337});
    EXPECT_EQ(running_desk.selected, series);
    EXPECT_EQ(stored(series).regarding, "For all of them");
    EXPECT_EQ(question.questions, 0);
    EXPECT_EQ(all().size(), 1U);
    EXPECT_TRUE(stored(series).exceptions.empty());
    EXPECT_EQ(Calls(record.calls.begin(), record.calls.begin() + 3),
              (Calls{"Goto " + series, "Data(28)", "Goto " + series}));
}

TEST_F(InstanceEditor, OnTheFirstOccurrenceNeedsARefreshEvenIfNothingWasChanged) {
    EXPECT_TRUE(edit(8));
    EXPECT_EQ(stored(series).revision, before.revision);
}

TEST_F(InstanceEditor, HasTheInstanceRememberedUntilItIsKeptOrDropped) {
    using Response = interaction::ActivityChange::Response;
    for (const Response response : {Response::cancel, Response::all_instances, Response::this_instance}) {
        question.answers = {static_cast<int>(response)};
        running_desk.on_command = [&](CommandNumber) {
            EXPECT_EQ(remembered_instances(), 1);
            change(running_desk.selected, [](store::Activity& one) { one.regarding += "!"; });
        };
        edit(10);
        EXPECT_EQ(remembered_instances(), 0);
    }
    EXPECT_EQ(all().size(), 2U);
}

TEST_F(InstanceEditor, OnALaterOccurrenceRunsTheCommandOnATemporaryInstanceOfAllDates) {
    std::string edited;
    running_desk.on_command = [&](CommandNumber) {
        edited = running_desk.selected;
        EXPECT_EQ(running_desk.filter.dates, "1");
        EXPECT_EQ(stored(edited).start, at(10, 9));
        EXPECT_EQ(stored(series).exceptions, std::vector<DateTime>{at(10, 0)});
    };
    edit(10, CommandNumber::activity_details);
    EXPECT_EQ(running_desk.commands, std::vector<int>{20251});
    EXPECT_NE(edited, series);
    EXPECT_EQ(edited.size(), 12U);
    EXPECT_EQ(id, edited) << "the id is replaced by the instance's";
    EXPECT_EQ(running_desk.tab, "Notes");
}

TEST_F(InstanceEditor, OnALaterOccurrenceWithNothingChangedLeavesNoTrace) {
    EXPECT_FALSE(edit(10)) << "no refresh is needed";
    EXPECT_EQ(question.questions, 0);
    EXPECT_TRUE(box.shown.empty());
    expect_no_trace();
    EXPECT_FALSE(refreshed());
}

TEST_F(InstanceEditor, OnALaterOccurrenceStoredAsItWasLeavesNoTrace) {
    user_does([](store::Activity&) {});
    EXPECT_FALSE(edit(10));
    EXPECT_EQ(question.questions, 0);
    expect_no_trace();
}

TEST_F(InstanceEditor, OnALaterOccurrenceOfASeriesLongerThanItsSlotWithNothingChangedLeavesNoTrace) {
    change(series, [](store::Activity& one) { one.duration = 90, one.end = at(8, 9).plus_minutes(90); });
    engine.refresh.Refresh_Data();
    before = stored(series);
    EXPECT_FALSE(edit(10));
    EXPECT_EQ(question.questions, 0);
    expect_no_trace();
}

TEST_F(InstanceEditor, ThatFindsTheRecurringTabUsedShowsTheStopMessageAndChangesNothing) {
    user_does([](store::Activity& one) {
        one.regarding = "Typed as well";
        one.recurrence.kind = store::RecurrenceKind::weekly;
        one.recurrence.days_of_week = 8;
    });
    EXPECT_FALSE(edit(10));
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_EQ(box.shown[0].title, "Changes cancelled!");
    EXPECT_EQ(box.shown[0].icon, host::Icon::critical);
    EXPECT_EQ(box.shown[0].buttons, host::Buttons::ok);
    EXPECT_EQ(box.shown[0].text,
              "In Orvanta, changes made under the RECURRING TAB are not allowed unless you use the Edit recurring "
              "settings command. See the user's manual for more on Editing recurring activities.\rAll changes are "
              "ignored.");
    EXPECT_EQ(question.questions, 0);
    expect_no_trace();
}

TEST_F(InstanceEditor, KeepsAChangedInstanceAfterTheAnswerInstance) {
    user_writes("Only today");
    question.answers = {0};
    EXPECT_TRUE(edit(10));
    EXPECT_EQ(question.questions, 1);
    EXPECT_EQ(other_than(series).regarding, "Only today");
    EXPECT_EQ(other_than(series).id, id);
    EXPECT_EQ(stored(series).regarding, "");
    EXPECT_EQ(stored(series).exceptions, std::vector<DateTime>{at(10, 0)});
}

TEST_F(InstanceEditor, CopiesAChangedInstanceToTheSeriesAfterTheAnswerAllAndDropsIt) {
    user_does([this](store::Activity& one) {
        one.regarding = "For all of them";
        one.start = at(10, 15);
        one.end = at(10, 16);
        one.contacts = {dana, erin};
    });
    question.answers = {1};
    EXPECT_TRUE(edit(10));
    EXPECT_EQ(all().size(), 1U);
    const store::Activity now = stored(series);
    EXPECT_EQ(now.regarding, "For all of them");
    EXPECT_EQ(now.contacts, (std::vector<std::string>{dana, erin}));
    EXPECT_EQ(now.start, at(8, 9)) << "everything but the dates";
    EXPECT_EQ(now.end, at(8, 10));
    EXPECT_TRUE(now.exceptions.empty());
}

TEST_F(InstanceEditor, DropsAChangedInstanceAfterTheAnswerCancel) {
    user_writes("Given up");
    question.answers = {2};
    EXPECT_FALSE(edit(10));
    EXPECT_EQ(question.questions, 1);
    expect_no_trace();
}

TEST_F(InstanceEditor, ComparesAppliesAndDeletesInThisOrder) {
    user_writes("For all of them");
    question.answers = {1};
    edit(10);
    Calls moves;
    for (const std::string& call : record.calls)
        for (const char* told : {"Goto", "Add", "Edit", "Update", "Delete", "Command", "ExceptionInfo"})
            if (call.starts_with(told))
                moves.push_back(call);
    EXPECT_EQ(moves, (Calls{"Goto " + series, "Add", "Update", "Goto " + id, "Goto " + series,
                            "ExceptionInfo.Add 1/10/2024", "Goto " + id, "Command 1337", "Goto " + id,
                            "Goto " + id, "Goto " + series, "Edit", "Update", "Goto " + id, "Delete",
                            "Goto " + series, "ExceptionInfo.Remove 1/10/2024"}));
}

TEST_F(InstanceEditor, SettlesTheOccurrenceThatWasClickedThoughARefreshHasEmptiedItsCellMeanwhile) {
    user_writes("For all of them");
    question.while_asking = [this] {
        engine.refresh.Refresh_Data(); // the instance now stands in the cell, or nothing does
        selected().Clear();
    };
    question.answers = {1};
    EXPECT_TRUE(edit(10));
    EXPECT_EQ(all().size(), 1U);
    EXPECT_EQ(stored(series).regarding, "For all of them");
    EXPECT_TRUE(stored(series).exceptions.empty());
}

TEST_F(InstanceEditor, LeavesNoTraceWhenTheDeskDiesInTheDialog) {
    fail_before("Command");
    EXPECT_FALSE(edit(10));
    EXPECT_TRUE(only_box().starts_with("Error 440: 'The desk has gone.'\r"
                                       "in frmMain: Sub Select_and_Launch_Command - Line # "));
    expect_no_trace();
    EXPECT_EQ(question.questions, 0);
}

TEST_F(InstanceEditor, FailsWithoutABoxOfItsOwnAndKeepsWhatWasTypedWhenTheSeriesWasChangedMeanwhile) {
    user_writes("For all of them");
    question.answers = {1};
    question.while_asking = [this] {
        before_call("Data(5,", [this] {
            change(series, [](store::Activity& one) { one.regarding = "What the desk's user wrote"; });
        });
    };
    EXPECT_EQ(support::failure_number([&] { edit(10); }), 440);
    EXPECT_TRUE(box.shown.empty());
    EXPECT_EQ(stored(series).regarding, "What the desk's user wrote");
    EXPECT_EQ(other_than(series).regarding, "For all of them") << "the instance stays";
    EXPECT_EQ(stored(series).exceptions, std::vector<DateTime>{at(10, 0)});
}

TEST_F(InstanceEditor, FailsWhereNoInstanceCouldBeMadeAndDeletesNothing) {
    fail_before("Add", "The disk is full.");
    EXPECT_EQ(support::failure_number([&] { edit(10); }), 91);
    EXPECT_TRUE(only_box().starts_with("Error 440: 'The disk is full.'\rin frmMain: Function Change_Instance"));
    EXPECT_EQ(id, "");
    expect_no_trace();
}

TEST_F(InstanceEditor, FailsWithoutASelectedCell) {
    calendar.selection.SelectedCell.reset();
    id = series;
    EXPECT_EQ(support::failure_number([&] { hands.editor.Edit_Instance(id, CommandNumber::edit_activity); }), 91);
    EXPECT_EQ(all().size(), 1U);
}

} // namespace
