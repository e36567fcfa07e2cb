#include "core/interaction/lookups.h"

#include "interaction_world.h"

#include <gtest/gtest.h>

namespace {

using Calls = std::vector<std::string>;
using Ids = std::vector<std::string>;

class Lookups : public testing::Test, protected support::InteractionWorld {
protected:
    store::Activity with(store::Activity activity, std::vector<std::string> contacts) {
        activity.contacts = std::move(contacts);
        return activity;
    }
    void right_click(int row, int col) { press(2, 0, row, col); }
    void look_up() { hands.lookups.mnupopLookup_Click(); }
    void look_up_this_cell() { hands.lookups.mnupopGoto_Click(); }
    // The ids of the list that was asked for last.
    Ids list() const {
        Ids ids;
        for (std::size_t at = 0; at < running_desk.lookups.back().size(); at += 12)
            ids.push_back(running_desk.lookups.back().substr(at, 12));
        return ids;
    }
    Calls view_calls() const {
        Calls calls = record.calls;
        std::erase_if(calls,
                      [](const std::string& call) { return call != "CreateLookup" && call != "Command 701"; });
        return calls;
    }
    // Chris on Wednesday at 9:00, Dana on Wednesday at 11:00 and Erin on Friday at 9:00, all in Ann's rows.
    void open_three() {
        add(meeting(10, 9));
        add(with(meeting(10, 11), {dana}));
        add(with(meeting(12, 9), {erin}));
        open();
    }
    void expect_nothing_found() {
        ASSERT_EQ(box.shown.size(), 1U);
        EXPECT_EQ(box.shown[0].text, "No records were found that match the specified criteria.");
        EXPECT_EQ(box.shown[0].title, "ACT!");
        EXPECT_EQ(box.shown[0].icon, host::Icon::exclamation);
        EXPECT_EQ(box.shown[0].buttons, host::Buttons::ok);
        EXPECT_EQ(presenter.minimised, 0);
        EXPECT_TRUE(running_desk.lookups.empty());
    }

    const int nine = 1, eleven = 3; // slots
};

TEST_F(Lookups, OfThisCellTakeTheContactOfItsActivity) {
    open_three();
    right_click(row_of(eleven), col_of(10));
    look_up_this_cell();
    EXPECT_EQ(list(), Ids{dana});
    EXPECT_EQ(presenter.minimised, 1);
    EXPECT_EQ(running_desk.lookups.size(), 1U);
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(Lookups, OfThisCellTakeAllContactsOfItsActivity) {
    add(with(meeting(10, 9), {chris, dana, erin}));
    open();
    right_click(row_of(nine), col_of(10));
    look_up_this_cell();
    EXPECT_EQ(list(), (Ids{chris, dana, erin}));
}

TEST_F(Lookups, OfThisCellReadInOrder) {
    const std::string id = add(with(meeting(10, 9), {chris, dana}));
    open();
    right_click(row_of(nine), col_of(10));
    look_up_this_cell();
    EXPECT_EQ(record.calls, (Calls{"Goto " + id, "Data(40)", "Data(100)", "FirstScheduledWith",
                                   "NextScheduledWith", "NextScheduledWith", "CreateLookup"}));
}

TEST_F(Lookups, OfThisCellMinimiseTheCalendarEvenBeforeItIsKnownThatTheListIsAccepted) {
    const std::string id = add(meeting(10, 9));
    open();
    right_click(row_of(nine), col_of(10));
    int minimised_by_then = 0;
    record.before = [&](const std::string& call) {
        if (call == "Goto " + id)
            minimised_by_then = presenter.minimised;
    };
    running_desk.lookups_missed = 2;
    look_up_this_cell();
    EXPECT_EQ(minimised_by_then, 1);
    EXPECT_EQ(presenter.minimised, 1);
    store().remove_activity(id);
    look_up_this_cell();
    EXPECT_EQ(presenter.minimised, 2);
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_NE(box.shown[0].text.find("in frmMain: Sub mnupopGoto_Click - Line # 40\r"), std::string::npos);
}

TEST_F(Lookups, OfAColumnTakeAllRowsOfItsDayFromTheFirstBehindTheTitles) {
    open_three();
    cell(0, col_of(10)).ContactID("not a contact"); // the row of titles is not read
    right_click(0, col_of(10));
    look_up();
    EXPECT_EQ(list(), (Ids{chris, dana}));
    EXPECT_EQ(presenter.minimised, 1);
}

TEST_F(Lookups, OfARowTakeAllItsDays) {
    open_three();
    cell(row_of(nine), 0).ContactID("not a contact"); // nor are the columns of titles
    cell(row_of(nine), 1).ContactID("not a contact");
    right_click(row_of(nine), 0);
    look_up();
    EXPECT_EQ(list(), (Ids{chris, erin}));
}

TEST_F(Lookups, OfTheCornerTakeTheWholeCalendarRowByRow) {
    open_three();
    right_click(0, 0);
    look_up();
    EXPECT_EQ(list(), (Ids{chris, erin, dana}));
}

TEST_F(Lookups, OfACellThatIsSelectedAloneTakeTheWholeCalendar) {
    open_three();
    right_click(row_of(eleven), col_of(10));
    look_up();
    EXPECT_EQ(list(), (Ids{chris, erin, dana}));
}

TEST_F(Lookups, OfASelectionTakeItsCells) {
    open_three();
    select(row_of(nine), col_of(9));
    calendar.msgSched.RowSel(row_of(eleven));
    calendar.msgSched.ColSel(col_of(10));
    right_click(row_of(nine), col_of(10));
    look_up();
    EXPECT_EQ(list(), (Ids{chris, dana}));
}

TEST_F(Lookups, OfASelectionDrawnUpwardRunFromTheSmallerToTheLargerRowAndColumn) {
    open_three();
    select(row_of(eleven), col_of(11));
    calendar.msgSched.RowSel(row_of(eleven) - 1);
    calendar.msgSched.ColSel(col_of(10));
    right_click(row_of(eleven), col_of(11));
    look_up();
    EXPECT_EQ(list(), Ids{dana});
    calendar.msgSched.RowSel(row_of(nine));
    right_click(row_of(eleven), col_of(11));
    look_up();
    EXPECT_EQ(list(), (Ids{chris, dana}));
}

TEST_F(Lookups, OfASelectionThatIsClickedOnItsTitleTakeItsCells) {
    open_three();
    select(row_of(nine), col_of(9));
    calendar.msgSched.ColSel(col_of(10));
    right_click(0, col_of(12));
    look_up();
    EXPECT_EQ(list(), Ids{chris});
}

TEST_F(Lookups, TakeEachContactOnce) {
    add(meeting(8, 9));
    add(meeting(10, 9));
    add(daily(8, 11));
    open();
    right_click(row_of(nine), col_of(10));
    look_up();
    EXPECT_EQ(list(), Ids{chris});
}

TEST_F(Lookups, TakeTheThreeContactsOfAnActivityOneFromItsCellAndTwoMoreNoneTwice) {
    add(with(meeting(10, 9), {chris, dana, erin}));
    add(with(meeting(10, 11), {erin, chris}));
    open();
    right_click(0, col_of(10));
    look_up();
    EXPECT_EQ(list(), (Ids{chris, dana, erin}));
    EXPECT_EQ(cell(row_of(nine), col_of(10)).ContactID(), chris);
}

TEST_F(Lookups, GoToEachActivityThatHasAContactAndAskForTheOthersOnlyWhereThereAreSome) {
    const std::string first = add(meeting(10, 9)), second = add(with(meeting(10, 11), {dana, erin}));
    open();
    right_click(0, col_of(10));
    look_up();
    EXPECT_EQ(record.calls,
              (Calls{"Goto " + first, "Data(100)", "Goto " + second, "Data(100)", "FirstScheduledWith",
                     "NextScheduledWith", "NextScheduledWith", "CreateLookup"}));
}

TEST_F(Lookups, PassOverEmptyCellsAndThoseIntoWhichAnActivityRunsOn) {
    const std::string id = add(meeting(10, 9, 180));
    open();
    ASSERT_EQ(shown(row_of(2), col_of(10)), "( Continued )");
    right_click(0, col_of(10));
    look_up();
    EXPECT_EQ(list(), Ids{chris});
    EXPECT_EQ(std::count(record.calls.begin(), record.calls.end(), "Goto " + id), 1);
}

TEST_F(Lookups, OfAColumnWithoutActivitiesShowTheMessageAndLeaveTheCalendarUp) {
    open_three();
    right_click(0, col_of(11));
    look_up();
    expect_nothing_found();
}

TEST_F(Lookups, OfOnlyCellsIntoWhichAnActivityRunsOnFindNothing) {
    add(meeting(10, 9, 180));
    open();
    select(row_of(2), col_of(10));
    calendar.msgSched.RowSel(row_of(eleven));
    right_click(row_of(2), col_of(10));
    look_up();
    expect_nothing_found();
}

TEST_F(Lookups, TryOnceMoreBehindTheContactViewWhereTheViewWasNotReady) {
    open_three();
    running_desk.lookups_missed = 1;
    right_click(0, col_of(10));
    look_up();
    EXPECT_EQ(view_calls(), (Calls{"CreateLookup", "Command 701", "CreateLookup"}));
    EXPECT_EQ(running_desk.lookups[0], running_desk.lookups[1]);
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(Lookups, TryNoThirdTimeAndSayNothing) {
    open_three();
    running_desk.lookups_missed = 5;
    for (const auto& command :
         {&interaction::Lookups::mnupopLookup_Click, &interaction::Lookups::mnupopGoto_Click}) {
        record.calls.clear();
        right_click(row_of(nine), col_of(10));
        (hands.lookups.*command)();
        EXPECT_EQ(view_calls(), (Calls{"CreateLookup", "Command 701", "CreateLookup"}));
    }
    EXPECT_TRUE(box.shown.empty());
}

// Ids are counted by characters, as the desk does.
TEST_F(Lookups, TakeNoSecondTryWhereAnIdHasMoreBytesThanCharacters) {
    open_three();
    cell(row_of(nine), col_of(10)).ContactID("CÖNTACT00001");
    right_click(row_of(nine), 0);
    look_up();
    EXPECT_EQ(view_calls(), Calls{"CreateLookup"});
}

TEST_F(Lookups, TakeNoSecondTryWhereAllWereFound) {
    open_three();
    right_click(0, 0);
    look_up();
    EXPECT_EQ(view_calls(), Calls{"CreateLookup"});
    EXPECT_TRUE(running_desk.commands.empty());
}

TEST_F(Lookups, OfAnActivityThatIsGoneShowTheBoxAndLeaveTheCalendarUp) {
    const std::string id = add(meeting(10, 9));
    open();
    store().remove_activity(id);
    right_click(0, col_of(10));
    look_up();
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_NE(box.shown[0].text.find("in frmMain: Sub mnupopLookup_Click - Line # 10\r"), std::string::npos);
    EXPECT_EQ(presenter.minimised, 0);
    EXPECT_TRUE(running_desk.lookups.empty());
}

} // namespace
