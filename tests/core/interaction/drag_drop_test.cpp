#include "core/interaction/drag_drop.h"

#include "interaction_world.h"

#include <gtest/gtest.h>

namespace {

using host::Answer;
using Calls = std::vector<std::string>;
using values::DateTime;

DateTime at(int day, int hour) { return DateTime::of(2024, 1, day, hour); }

class DragDrop : public testing::Test, protected support::InteractionWorld {
protected:
    std::vector<std::string> titles() {
        std::vector<std::string> found;
        for (const host::Message& message : box.shown)
            found.push_back(message.title);
        return found;
    }
    int icon_at(int x, int y) {
        hands.drag_drop.msgSched_DragOver(x, y);
        return presenter.drag_icon;
    }
    void ann_at_nine(const store::Activity& activity) {
        id = add(activity);
        open();
    }

    std::string id;
    const int nine = 1, eleven = 3; // slots
};

// A quick refresh would find one of them.
TEST_F(DragDrop, ADropShowsAllThatOthersHaveChangedMeanwhile) {
    ann_at_nine(meeting(10, 9));
    tick();
    add(meeting(8, 9));
    add(meeting(9, 9));
    drag(row_of(nine), col_of(10), row_of(eleven), col_of(12));
    EXPECT_EQ(shown(row_of(nine), col_of(8)), "Chris Smith");
    EXPECT_EQ(shown(row_of(nine), col_of(9)), "Chris Smith");
    EXPECT_EQ(shown(row_of(eleven), col_of(12)), "Chris Smith");
    EXPECT_EQ(shown(row_of(nine), col_of(10)), "");
}

TEST_F(DragDrop, OverTheCellsOfTheDaysShowsThatADropIsPermitted) {
    open();
    EXPECT_EQ(icon_at(x(2), y(1)), 1);
    EXPECT_EQ(icon_at(x(8), y(18)), 1);
}

TEST_F(DragDrop, OverTheTitlesShowsThatItIsNot) {
    open();
    EXPECT_EQ(icon_at(x(2), y(0)), 2);
    EXPECT_EQ(icon_at(x(1), y(1)), 2);
    EXPECT_EQ(icon_at(x(0), y(0)), 2);
}

TEST_F(DragDrop, TheTopOfRowOneAndTheLeftEdgeOfTheFirstDayBelongToTheCells) {
    open();
    EXPECT_EQ(icon_at(calendar.msgSched.ColPos(2), calendar.msgSched.RowPos(1)), 1);
    EXPECT_EQ(icon_at(calendar.msgSched.ColPos(2) - 1, calendar.msgSched.RowPos(1)), 2);
    EXPECT_EQ(icon_at(calendar.msgSched.ColPos(2), calendar.msgSched.RowPos(1) - 1), 2);
}

TEST_F(DragDrop, OverTheRightOfTheLastColumnShowsThatItIsNotAndUnderTheLastRowThatItIs) {
    open();
    const int right = calendar.msgSched.ColPos(8) + calendar.msgSched.ColWidth(8);
    EXPECT_EQ(icon_at(right, y(1)), 1);
    EXPECT_EQ(icon_at(right + 1, y(1)), 2);
    EXPECT_EQ(icon_at(x(2), 1'000'000), 1);
}

TEST_F(DragDrop, MovesAPlainActivityToAnotherDayAndHour) {
    ann_at_nine(meeting(10, 9, 90));
    drag(row_of(nine), col_of(10), row_of(eleven), col_of(12));
    EXPECT_TRUE(box.shown.empty());
    EXPECT_EQ(stored(id).start, at(12, 11));
    EXPECT_EQ(stored(id).end, at(12, 11).plus_minutes(90));
    EXPECT_EQ(stored(id).duration, 90);
    EXPECT_EQ(stored(id).user, ann);
    EXPECT_EQ(shown(row_of(nine), col_of(10)), "");
    EXPECT_EQ(shown(row_of(eleven), col_of(12)), "Chris Smith");
    EXPECT_EQ(shown(row_of(eleven + 1), col_of(12)), "( Continued )");
    EXPECT_EQ(calendar.msgSched.Row(), row_of(eleven));
    EXPECT_EQ(calendar.msgSched.Col(), col_of(12));
}

TEST_F(DragDrop, TheCellsIntoWhichTheActivityRanOnStandForItNoLonger) {
    ann_at_nine(meeting(10, 9, 120));
    ASSERT_EQ(cell(row_of(nine + 1), col_of(10)).DependsOnActivity(), id);
    drag(row_of(nine), col_of(10), row_of(eleven), col_of(12));
    EXPECT_EQ(cell(row_of(nine + 1), col_of(10)).DependsOnActivity(), "");
    EXPECT_EQ(cell(row_of(eleven + 1), col_of(12)).DependsOnActivity(), id);
    EXPECT_EQ(cell(row_of(eleven + 1), col_of(12)).DependsOnActivityX(), row_of(eleven));
}

TEST_F(DragDrop, OfACellIntoWhichAnActivityRunsOnWritesNothing) {
    ann_at_nine(meeting(10, 9, 120));
    const auto before = revision();
    drag(row_of(nine + 1), col_of(10), row_of(eleven), col_of(12));
    EXPECT_EQ(presenter.drags, 1) << "it shows text";
    EXPECT_EQ(box.shown.size(), 1U);
    EXPECT_EQ(revision(), before);
    EXPECT_EQ(shown(row_of(nine), col_of(10)), "Chris Smith");
}

TEST_F(DragDrop, WritesAPlainActivityInOrder) {
    ann_at_nine(meeting(10, 9));
    drag(row_of(nine), col_of(10), row_of(eleven), col_of(12));
    EXPECT_EQ(calls(), (Calls{"Goto " + id, "Data(30)", "Data(101)", "Goto " + id, "Edit",
                              "Data(28, 1/12/2024 11:00:00 AM)", "Data(29, 1/12/2024 12:00:00 PM)", "Update"}));
    EXPECT_TRUE(refreshed());
}

TEST_F(DragDrop, OnTheSourceCellChangesAndWritesNothing) {
    ann_at_nine(meeting(10, 9));
    const auto before = revision();
    drag(row_of(nine), col_of(10), row_of(nine), col_of(10));
    EXPECT_EQ(revision(), before);
    EXPECT_EQ(record.calls, Calls{});
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(DragDrop, OnTheTitlesDoesNothing) {
    ann_at_nine(meeting(10, 9));
    press(1, 2, row_of(nine), col_of(10));
    hands.drag_drop.msgSched_DragDrop(x(3), y(0));
    hands.drag_drop.msgSched_DragDrop(x(1), y(3));
    EXPECT_EQ(record.calls, Calls{});
    EXPECT_EQ(calendar.msgSched.Row(), row_of(nine));
    EXPECT_EQ(calendar.msgSched.Col(), col_of(10));
}

TEST_F(DragDrop, TheTargetTakesTheSourcesIdBeforeAnythingIsConfirmed) {
    ann_at_nine(meeting(10, 9));
    box.answers = {Answer::no};
    drag(row_of(nine), col_of(10), row_of(nine, 1), col_of(10));
    EXPECT_EQ(cell(row_of(nine, 1), col_of(10)).ActivityID(), id);
    EXPECT_EQ(cell(row_of(nine, 1), col_of(10)).Text(), "");
    EXPECT_EQ(&selected(), &cell(row_of(nine, 1), col_of(10)));
    engine.refresh.Refresh_Data();
    EXPECT_EQ(cell(row_of(nine, 1), col_of(10)).ActivityID(), "");
}

TEST_F(DragDrop, ToAnotherUsersCellAsksAndMakesTheActivityTheirs) {
    ann_at_nine(meeting(10, 9));
    box.answers = {Answer::yes};
    drag(row_of(nine), col_of(10), row_of(eleven, 1), col_of(10));
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_EQ(box.shown[0].text,
              "You are dropping this activity to a cell belonging to another user. Do you want to continue?");
    EXPECT_EQ(box.shown[0].title, "Change of user");
    EXPECT_EQ(box.shown[0].icon, host::Icon::exclamation);
    EXPECT_EQ(box.shown[0].buttons, host::Buttons::yes_no);
    EXPECT_EQ(stored(id).user, bob);
    EXPECT_EQ(stored(id).start, at(10, 11));
    EXPECT_EQ(calls().at(7), "Data(37, " + bob + ")");
    EXPECT_EQ(shown(row_of(eleven, 1), col_of(10)), "Chris Smith");
}

TEST_F(DragDrop, InTheSameSlotToAnotherUserIsAMove) {
    ann_at_nine(meeting(10, 9));
    box.answers = {Answer::yes};
    drag(row_of(nine), col_of(10), row_of(nine, 1), col_of(10));
    EXPECT_EQ(stored(id).user, bob);
    EXPECT_EQ(stored(id).start, at(10, 9));
}

TEST_F(DragDrop, ToAnotherUserAnsweredWithNoRestoresTheCurrentCellAndWritesNothing) {
    ann_at_nine(meeting(10, 9));
    box.answers = {Answer::no};
    drag(row_of(nine), col_of(10), row_of(eleven, 1), col_of(12));
    EXPECT_EQ(record.calls, Calls{});
    EXPECT_EQ(calendar.msgSched.Row(), row_of(nine));
    EXPECT_EQ(calendar.msgSched.Col(), col_of(10));
    EXPECT_EQ(stored(id).start, at(10, 9));
}

TEST_F(DragDrop, AUserIdThatHasNot12CharactersIsNotWritten) {
    ann_at_nine(meeting(10, 9));
    users.UserNameToId["Bob"] = bob.substr(0, 11);
    drag(row_of(nine), col_of(10), row_of(eleven, 1), col_of(10));
    EXPECT_EQ(stored(id).user, ann);
    EXPECT_EQ(stored(id).start, at(10, 11));
}

TEST_F(DragDrop, ARowOfAUserWhoIsNotListedLeavesTheActivityItsUser) {
    ann_at_nine(meeting(10, 9));
    users.UserNameToId.erase("Bob");
    drag(row_of(nine), col_of(10), row_of(eleven, 1), col_of(10));
    EXPECT_EQ(stored(id).user, ann);
    EXPECT_EQ(stored(id).start, at(10, 11));
}

TEST_F(DragDrop, AsksOnTheUserBeforeAnythingOnTheSeries) {
    ann_at_nine(daily(8, 9));
    box.answers = {Answer::yes, Answer::cancel};
    drag(row_of(nine), col_of(10), row_of(nine, 1), col_of(11));
    EXPECT_EQ(titles(), (std::vector<std::string>{"Change of user", "Orvanta"}));
    EXPECT_FALSE(refreshed());
}

TEST_F(DragDrop, OfAnOccurrenceToAnotherDateNeverOffersAll) {
    ann_at_nine(daily(8, 9));
    drag(row_of(nine), col_of(10), row_of(eleven), col_of(11));
    EXPECT_EQ(question.questions, 0);
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_EQ(box.shown[0].text, "You are changing the date of a recurring activity. This change will remove the "
                                 "recurring settings for this instance of the activity.");
    EXPECT_EQ(box.shown[0].title, "Orvanta");
    EXPECT_EQ(box.shown[0].icon, host::Icon::exclamation);
    EXPECT_EQ(box.shown[0].buttons, host::Buttons::ok_cancel);
    const store::Activity instance = other_than(id);
    EXPECT_EQ(instance.start, at(11, 11));
    EXPECT_EQ(instance.recurrence.kind, store::RecurrenceKind::none);
    EXPECT_EQ(stored(id).exceptions, std::vector<DateTime>{at(10, 0)});
    EXPECT_EQ(stored(id).start, at(8, 9));
    EXPECT_EQ(shown(row_of(nine), col_of(10)), "");
    EXPECT_EQ(shown(row_of(eleven), col_of(11)), "Chris Smith");
    EXPECT_TRUE(refreshed());
}

TEST_F(DragDrop, OfAnOccurrenceToAnotherDateAnsweredWithCancelDoesNothing) {
    ann_at_nine(daily(8, 9));
    box.answers = {Answer::cancel};
    drag(row_of(nine), col_of(10), row_of(eleven), col_of(11));
    EXPECT_EQ(all().size(), 1U);
    EXPECT_TRUE(stored(id).exceptions.empty());
    EXPECT_FALSE(refreshed());
}

TEST_F(DragDrop, OfAnOccurrenceToAnotherTimeOfItsDateOffersAllThreeAnswers) {
    ann_at_nine(daily(8, 9));
    question.answers = {0};
    drag(row_of(nine), col_of(10), row_of(eleven), col_of(10));
    EXPECT_EQ(question.questions, 1);
    EXPECT_EQ(question.iResponse, interaction::ActivityChange::Response::this_instance);
    EXPECT_TRUE(box.shown.empty());
    EXPECT_EQ(other_than(id).start, at(10, 11));
    EXPECT_EQ(stored(id).exceptions, std::vector<DateTime>{at(10, 0)});
}

TEST_F(DragDrop, AllKeepsTheDateOfTheFirstOccurrenceAndTakesTheTargetsTime) {
    store::Activity series = daily(8, 9, 30);
    series.end = at(8, 10).plus_minutes(15); // the occurrences are longer than the duration says
    ann_at_nine(series);
    question.answers = {1};
    drag(row_of(nine), col_of(10), row_of(eleven), col_of(10));
    EXPECT_EQ(stored(id).start, at(8, 11));
    EXPECT_EQ(stored(id).end, at(8, 12).plus_minutes(15));
    EXPECT_EQ(stored(id).duration, 30);
    EXPECT_TRUE(stored(id).exceptions.empty());
    EXPECT_EQ(all().size(), 1U);
    EXPECT_EQ(shown(row_of(eleven), col_of(12)), "Chris Smith");
    EXPECT_EQ(calls(),
              (Calls{"Goto " + id, "Data(30)", "Data(101)", "Data(28)", "Edit", "RecurringChangeMode false",
                     "Data(28, 1/8/2024 11:00:00 AM)", "Data(29, 1/8/2024 12:15:00 PM)", "Update"}));
}

TEST_F(DragDrop, AllToAnotherUserGivesThemTheSeries) {
    ann_at_nine(daily(8, 9));
    box.answers = {Answer::yes};
    question.answers = {1};
    drag(row_of(nine), col_of(10), row_of(nine, 1), col_of(10));
    EXPECT_EQ(stored(id).user, bob);
    EXPECT_EQ(stored(id).start, at(8, 9));
}

TEST_F(DragDrop, AnInstanceThatIsDroppedOnAnotherUserIsTheirs) {
    ann_at_nine(daily(8, 9));
    question.answers = {0};
    drag(row_of(nine), col_of(10), row_of(nine, 1), col_of(10));
    EXPECT_EQ(other_than(id).user, bob);
    EXPECT_EQ(stored(id).user, ann);
}

TEST_F(DragDrop, CancelOfTheDialogDoesNothing) {
    ann_at_nine(daily(8, 9));
    question.answers = {2};
    drag(row_of(nine), col_of(10), row_of(eleven), col_of(10));
    EXPECT_EQ(all().size(), 1U);
    EXPECT_EQ(stored(id).start, at(8, 9));
    EXPECT_FALSE(refreshed());
}

TEST_F(DragDrop, OnTheRightOfTheLastColumnKeepsTheCurrentColumn) {
    ann_at_nine(meeting(10, 9));
    press(1, 2, row_of(nine), col_of(10));
    const int right = calendar.msgSched.ColPos(8) + calendar.msgSched.ColWidth(8) + 1;
    EXPECT_EQ(icon_at(right, y(row_of(eleven))), 2);
    hands.drag_drop.msgSched_DragDrop(right, y(row_of(eleven)));
    EXPECT_EQ(stored(id).start, at(10, 11));
}

TEST_F(DragDrop, UnderTheLastRowKeepsTheCurrentRow) {
    ann_at_nine(meeting(10, 9));
    press(1, 2, row_of(nine), col_of(10));
    hands.drag_drop.msgSched_DragDrop(x(col_of(12)), 1'000'000);
    EXPECT_EQ(stored(id).start, at(12, 9));
}

TEST_F(DragDrop, InAScrolledGridFallsOnTheCellThatIsSeen) {
    ann_at_nine(meeting(10, 13));
    calendar.msgSched.TopRow(row_of(4));
    press(1, 2, row_of(5), col_of(10));
    hands.drag_drop.msgSched_DragDrop(x(col_of(12)), y(row_of(4)));
    EXPECT_EQ(stored(id).start, at(12, 12));
    EXPECT_EQ(icon_at(x(3), y(0)), 2);
    hands.drag_drop.msgSched_DragDrop(x(col_of(9)), y(0));
    EXPECT_EQ(stored(id).start, at(12, 12));
}

TEST_F(DragDrop, ARecordThatTheDesksUserChangedMeanwhileIsNotOverwritten) {
    ann_at_nine(meeting(10, 9));
    record.before = [&](const std::string& call) {
        if (!call.starts_with("Data(28,"))
            return;
        record.before = nullptr;
        change(id, [](store::Activity& activity) { activity.regarding = "What the desk's user wrote"; });
    };
    drag(row_of(nine), col_of(10), row_of(eleven), col_of(12));
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_TRUE(box.shown[0].text.starts_with("Error 440: ")) << box.shown[0].text;
    EXPECT_NE(box.shown[0].text.find("in frmMain: Sub Reschedule - Line # 50\r"), std::string::npos);
    EXPECT_EQ(stored(id).regarding, "What the desk's user wrote");
    EXPECT_EQ(stored(id).start, at(10, 9));
    EXPECT_FALSE(refreshed());
    EXPECT_EQ(shown(row_of(nine), col_of(10)), "Chris Smith");
    box.shown.clear();
    drag(row_of(nine), col_of(10), row_of(eleven), col_of(12)); // once more
    EXPECT_TRUE(box.shown.empty());
    EXPECT_EQ(stored(id).start, at(12, 11));
    EXPECT_EQ(stored(id).regarding, "What the desk's user wrote");
}

TEST_F(DragDrop, AnActivityThatIsGoneShowsTheBoxAndStopsThere) {
    ann_at_nine(meeting(10, 9));
    store().remove_activity(id);
    drag(row_of(nine), col_of(10), row_of(eleven), col_of(12));
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_NE(box.shown[0].text.find("in frmMain: Sub Reschedule - Line # "), std::string::npos);
    EXPECT_TRUE(all().empty());
}

TEST_F(DragDrop, WithoutASourceShowsTheBox) {
    open();
    hands.drag_drop.msgSched_DragDrop(x(3), y(3));
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_TRUE(box.shown[0].text.starts_with("Error 91: "));
}

TEST_F(DragDrop, ASeriesThatCanNotBeMadeAnInstanceIsReadAgainAllTheSame) {
    ann_at_nine(daily(8, 9));
    question.answers = {0};
    record.before = [&](const std::string& call) {
        if (call == "Add")
            throw values::Failure(values::FailureNumber::automation, "The disk is full.");
    };
    drag(row_of(nine), col_of(10), row_of(eleven), col_of(10));
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_TRUE(
        box.shown[0].text.starts_with("Error 440: 'The disk is full.'\rin frmMain: Function Change_Instance"));
    EXPECT_EQ(all().size(), 1U);
    EXPECT_TRUE(stored(id).exceptions.empty());
    EXPECT_TRUE(refreshed());
    EXPECT_EQ(shown(row_of(nine), col_of(10)), "Chris Smith");
}

} // namespace
