#include "core/interaction/mouse.h"

#include "interaction_world.h"

#include <gtest/gtest.h>

namespace {

constexpr int left = 1, right = 2;
constexpr int shift = 1, ctrl = 2, alt = 4;

class Mouse : public testing::Test, protected support::InteractionWorld {
protected:
    void press_at(int button, int x, int y) { hands.mouse.msgSched_MouseDown(button, 0, x, y); }
    // From the current cell to that one.
    void select_to(int row, int col) {
        calendar.msgSched.RowSel(row);
        calendar.msgSched.ColSel(col);
    }
    // "current cell to far end".
    std::string selection() const {
        const table::GridModel& grid = calendar.msgSched;
        return std::to_string(grid.Row()) + "," + std::to_string(grid.Col()) + " to " +
               std::to_string(grid.RowSel()) + "," + std::to_string(grid.ColSel());
    }
    bool has_drag_begun() const { return presenter.drags > 0; }
    const interaction::Click& click() const { return hands.mouse.click; }
    int bottom() const { return calendar.msgSched.RowPos(18) + calendar.msgSched.RowHeight(18); }
    int right_edge() const { return calendar.msgSched.ColPos(8) + calendar.msgSched.ColWidth(8); }
};

TEST_F(Mouse, ARightClickOnADayCellMovesTheCurrentCellThereFirstSoThatTheMenuWorksOnIt) {
    add(meeting(10, 9));
    open();
    press(right, 0, row_of(1), col_of(10));
    EXPECT_EQ(selection(), "3,5 to 3,5");
    EXPECT_EQ(&selected(), &cell(3, 5));
    ASSERT_TRUE(presenter.popup.has_value());
    EXPECT_TRUE(presenter.popup->mnupopDetails.enabled);
    EXPECT_TRUE(presenter.popup->mnupopDetails.visible);
}

TEST_F(Mouse, ALeftClickSelectsTheCellAndDoesNoMore) {
    add(meeting(10, 9));
    open();
    press(left, 0, row_of(1), col_of(10));
    EXPECT_EQ(selection(), "3,5 to 3,5");
    EXPECT_EQ(&selected(), &cell(3, 5));
    EXPECT_FALSE(presenter.popup.has_value());
    EXPECT_FALSE(click().PopupOpen);
    EXPECT_FALSE(has_drag_begun());
}

TEST_F(Mouse, APressOnTheLineBetweenTwoCellsFallsOnTheFirst) {
    open();
    press_at(left, calendar.msgSched.ColPos(4), calendar.msgSched.RowPos(6));
    EXPECT_EQ(selection(), "5,3 to 5,3");
    press_at(left, calendar.msgSched.ColPos(4) + 1, calendar.msgSched.RowPos(6) + 1);
    EXPECT_EQ(selection(), "6,4 to 6,4");
}

TEST_F(Mouse, APressBehindTheLastColumnOrRowLeavesThatCoordinate) {
    open();
    select(4, 4);
    press_at(left, right_edge() + 1, y(7));
    EXPECT_EQ(selection(), "7,4 to 7,4");
    press_at(left, x(6), bottom() + 1);
    EXPECT_EQ(selection(), "7,6 to 7,6");
    press_at(right, right_edge() + 1, bottom() + 1);
    EXPECT_EQ(selection(), "7,6 to 7,6");
    EXPECT_EQ(&selected(), &cell(7, 6));
}

TEST_F(Mouse, TellsByTheTopOfRowOneAndTheLeftEdgeOfTheFirstDayWhatATitleIs) {
    open();
    const int top = calendar.msgSched.RowPos(1), edge = calendar.msgSched.ColPos(2);
    press_at(left, edge, top);
    EXPECT_FALSE(click().ClickOnTitleRow || click().ClickOnTitleCol);
    press_at(left, edge, top - 1);
    EXPECT_TRUE(click().on_title_row_only());
    select(4, 4);
    press_at(left, edge - 1, top);
    EXPECT_TRUE(click().on_title_col_only());
    select(4, 4);
    press_at(left, edge - 1, top - 1);
    EXPECT_TRUE(click().on_corner());
}

TEST_F(Mouse, InSharedRowsTheFirstDayFollowsTheTimesAtOnce) {
    open(7, false);
    press(left, 0, 3, 1);
    EXPECT_EQ(selection(), "3,1 to 3,1");
    EXPECT_FALSE(click().ClickOnTitleCol);
    press(left, 0, 3, 0);
    EXPECT_TRUE(click().ClickOnTitleCol);
}

TEST_F(Mouse, KnowsTheTitlesOfAScrolledGridAndTheCellsBehindThem) {
    open();
    calendar.msgSched.TopRow(9);
    calendar.msgSched.LeftCol(4);
    press_at(left, x(5), y(0));
    EXPECT_TRUE(click().on_title_row_only());
    EXPECT_EQ(selection(), "0,5 to 18,5");
    select(10, 5);
    press_at(left, x(1), y(12));
    EXPECT_TRUE(click().on_title_col_only());
    EXPECT_EQ(selection(), "12,0 to 12,8");
    select(10, 5);
    press(left, 0, 9, 4);
    EXPECT_EQ(selection(), "9,4 to 9,4");
}

TEST_F(Mouse, AClickOnADaysTitleSelectsTheWholeColumn) {
    open();
    press(left, 0, 0, 4);
    EXPECT_EQ(selection(), "0,4 to 18,4");
    EXPECT_TRUE(click().ClickOnTitleRow);
    EXPECT_FALSE(click().ClickOnTitleCol);
    EXPECT_TRUE(click().ClickOnTitles);
    EXPECT_FALSE(click().MultiSelected);
    EXPECT_EQ(&selected(), &cell(0, 4));
}

TEST_F(Mouse, AClickOnARowsTitleSelectsTheWholeRow) {
    open();
    for (const int col : {0, 1}) {
        select(4, 4);
        press(left, 0, 7, col);
        EXPECT_EQ(selection(), "7,0 to 7,8");
        EXPECT_TRUE(click().ClickOnTitleCol);
        EXPECT_FALSE(click().ClickOnTitleRow);
        EXPECT_TRUE(click().ClickOnTitles);
        EXPECT_FALSE(click().MultiSelected);
        EXPECT_EQ(&selected(), &cell(7, 0));
    }
}

TEST_F(Mouse, AClickOnTheCornerSelectsAllDayCells) {
    open();
    press(left, 0, 0, 1);
    EXPECT_EQ(selection(), "1,2 to 18,8");
    EXPECT_TRUE(click().on_corner());
    EXPECT_TRUE(click().ClickOnTitles);
    EXPECT_FALSE(click().MultiSelected);
    EXPECT_EQ(&selected(), &cell(1, 2));
}

TEST_F(Mouse, APressOnATitleBehindTheLastColumnTakesTheCurrentOne) {
    open();
    select(4, 4);
    press_at(left, right_edge() + 1, y(0));
    EXPECT_EQ(selection(), "0,4 to 18,4");
    select(4, 4);
    press_at(left, x(0), bottom() + 1);
    EXPECT_EQ(selection(), "4,0 to 4,8");
}

TEST_F(Mouse, ASelectionOfSeveralIsOneWhoseFarEndIsAnotherRowOrColumn) {
    open();
    for (const auto& [row, col] : {std::pair{5, 4}, {4, 5}, {3, 4}, {4, 3}}) {
        select(4, 4);
        select_to(row, col);
        press(right, 0, 4, 4);
        EXPECT_TRUE(click().MultiSelected);
    }
    select(4, 4);
    press(right, 0, 4, 4);
    EXPECT_FALSE(click().MultiSelected);
}

TEST_F(Mouse, ARightClickWithSeveralCellsSelectedKeepsThem) {
    open();
    for (const auto& [row, col] : {std::pair{4, 4}, {6, 6}, {12, 8}}) {
        select(3, 3);
        select_to(8, 7);
        press(right, 0, row, col);
        EXPECT_EQ(selection(), "3,3 to 8,7");
        EXPECT_EQ(&selected(), &cell(3, 3));
        EXPECT_TRUE(click().MultiSelected);
        EXPECT_FALSE(click().ClickOnTitles);
    }
}

// What a press on a title means while several cells are selected.
struct OnSelection {
    const char* what;
    int far_row, far_col; // of a selection that begins in row 3, column 3
    int row, col;         // of the press
    bool row_flag, col_flag, several;
    const char* selection_then;
};

class OnASelection : public Mouse, public testing::WithParamInterface<OnSelection> {};

TEST_P(OnASelection, ARightClickOnATitleMeansTheSelectionOrTheTitle) {
    const OnSelection& given = GetParam();
    open();
    select(3, 3);
    select_to(given.far_row, given.far_col);
    press(right, 0, given.row, given.col);
    EXPECT_EQ(click().ClickOnTitleRow, given.row_flag);
    EXPECT_EQ(click().ClickOnTitleCol, given.col_flag);
    EXPECT_EQ(click().MultiSelected, given.several);
    EXPECT_TRUE(click().ClickOnTitles) << "taken before that is decided";
    EXPECT_EQ(selection(), given.selection_then);
}

INSTANTIATE_TEST_SUITE_P(
    ByWhatItSpans, OnASelection,
    testing::Values(
        OnSelection{"ADaysTitleKeepsASelectionThatSpansColumns", 3, 6, 0, 5, false, false, true, "3,3 to 3,6"},
        OnSelection{"ADaysTitleKeepsASelectionThatSpansBoth", 7, 6, 0, 8, false, false, true, "3,3 to 7,6"},
        OnSelection{"ADaysTitleIsMeantByItselfWhereRowsAreSpanned", 7, 3, 0, 5, true, false, false, "0,5 to 18,5"},
        OnSelection{"ARowsTitleKeepsASelectionThatSpansRows", 7, 3, 5, 0, false, false, true, "3,3 to 7,3"},
        OnSelection{"ARowsTitleKeepsASelectionThatSpansBoth", 7, 6, 12, 1, false, false, true, "3,3 to 7,6"},
        OnSelection{"ARowsTitleIsMeantByItselfWhereColumnsAreSpanned", 3, 6, 5, 0, false, true, false,
                    "5,0 to 5,8"},
        OnSelection{"TheCornerIsAlwaysMeantWhereRowsAreSpanned", 7, 3, 0, 0, true, true, false, "1,2 to 18,8"},
        OnSelection{"TheCornerIsAlwaysMeantWhereColumnsAreSpanned", 3, 6, 0, 1, true, true, false, "1,2 to 18,8"},
        OnSelection{"TheCornerIsAlwaysMeantWhereBothAreSpanned", 7, 6, 0, 0, true, true, false, "1,2 to 18,8"}),
    [](const auto& given) { return given.param.what; });

TEST_F(Mouse, ARightClickOnAClickedTitleMeansThatTitleAgain) {
    open();
    press(left, 0, 0, 4);
    press(right, 0, 0, 4);
    EXPECT_EQ(selection(), "0,4 to 18,4");
    EXPECT_TRUE(click().on_title_row_only());
    EXPECT_FALSE(click().MultiSelected);
    press(left, 0, 7, 0); // the column's selection spans rows, so it counts as the selection
    EXPECT_EQ(selection(), "0,4 to 18,4");
    EXPECT_TRUE(click().MultiSelected);
}

TEST_F(Mouse, TheFlagsLiveFromOnePressToTheNext) {
    open();
    press(right, 0, 0, 0);
    EXPECT_TRUE(click().on_corner());
    EXPECT_TRUE(click().ClickOnTitles);
    EXPECT_TRUE(click().PopupOpen);
    select(4, 4);
    press(left, 0, 5, 5);
    EXPECT_FALSE(click().on_anything());
    EXPECT_FALSE(click().ClickOnTitles);
    EXPECT_TRUE(click().PopupOpen) << "set by the first menu, reset by nobody";
}

TEST_F(Mouse, TheMenuOpensOnTheRightButtonOnly) {
    open();
    for (const int button : {1, 4, 3}) {
        press(button, 0, 4, 4);
        EXPECT_FALSE(presenter.popup.has_value());
    }
    press(right, shift + ctrl, 4, 4);
    EXPECT_TRUE(presenter.popup.has_value());
    EXPECT_TRUE(click().PopupOpen);
}

TEST_F(Mouse, CtrlAndTheLeftButtonOnACellThatShowsTextBeginADrag) {
    add(meeting(10, 9));
    open();
    press(left, ctrl, row_of(1), col_of(10));
    EXPECT_EQ(presenter.drags, 1);
    EXPECT_EQ(presenter.drag_icon, 1);
    EXPECT_EQ(calendar.selection.DragSourceCell.get(), &cell(row_of(1), col_of(10)));
    EXPECT_EQ(&selected(), &cell(row_of(1), col_of(10)));
}

TEST_F(Mouse, CtrlAndTheLeftButtonOnAnEmptyCellStartNoDrag) {
    add(meeting(10, 9));
    open();
    press(left, ctrl, row_of(2), col_of(10));
    EXPECT_FALSE(has_drag_begun());
    EXPECT_FALSE(calendar.selection.DragSourceCell);
}

TEST_F(Mouse, CtrlWithShiftStartsNoDragSinceShiftMustBeExactlyTwo) {
    add(meeting(10, 9));
    open();
    for (const int keys : {0, shift, shift + ctrl, alt, ctrl + alt, shift + ctrl + alt})
        press(left, keys, row_of(1), col_of(10));
    EXPECT_FALSE(has_drag_begun());
}

TEST_F(Mouse, AnotherButtonStartsNoDrag) {
    add(meeting(10, 9));
    open();
    for (const int button : {2, 3, 4})
        press(button, ctrl, row_of(1), col_of(10));
    EXPECT_FALSE(has_drag_begun());
}

TEST_F(Mouse, APressOnSeveralSelectedCellsStartsNoDrag) {
    add(meeting(10, 9));
    open();
    select(row_of(1), col_of(10));
    select_to(row_of(1), col_of(11));
    press(left, ctrl, row_of(1), col_of(10));
    EXPECT_TRUE(click().MultiSelected);
    EXPECT_FALSE(has_drag_begun());
}

TEST_F(Mouse, ATitleThatIsDraggedMovesNoActivity) {
    const std::string id = add(meeting(10, 9));
    open();
    const auto before = revision();
    drag(0, col_of(10), row_of(3), col_of(12));
    EXPECT_EQ(presenter.drags, 1) << "it shows text";
    ASSERT_EQ(box.shown.size(), 2U) << "the row of titles belongs to nobody";
    EXPECT_EQ(box.shown[0].title, "Change of user");
    EXPECT_NE(box.shown[1].text.find("in frmMain: Sub Reschedule - Line # 30\r"), std::string::npos);
    EXPECT_EQ(revision(), before);
    EXPECT_EQ(shown(row_of(1), col_of(10)), "Chris Smith");
}

TEST_F(Mouse, AMovedCursorCountsAsAPressOnItsCell) {
    open();
    press(left, 0, 0, 4);
    calendar.msgSched.Row(5);
    calendar.msgSched.Col(6);
    hands.mouse.cursor_moved();
    EXPECT_FALSE(click().on_anything());
    EXPECT_FALSE(click().ClickOnTitles);
    EXPECT_EQ(&selected(), &cell(5, 6));
    select_to(7, 6);
    hands.mouse.cursor_moved();
    EXPECT_TRUE(click().MultiSelected);
    EXPECT_EQ(&selected(), &cell(5, 6));
}

TEST_F(Mouse, TheSelectedCellStaysTheCurrentOneThroughARefreshThatContinuesActivities) {
    add(meeting(10, 9, 180));
    open();
    press(left, 0, row_of(6), col_of(8));
    engine.refresh.Refresh_Data();
    EXPECT_EQ(shown(row_of(2), col_of(10)), "( Continued )");
    EXPECT_EQ(&selected(), &cell(calendar.msgSched.Row(), calendar.msgSched.Col()));
    EXPECT_EQ(calendar.msgSched.Row(), row_of(6));
    EXPECT_EQ(calendar.msgSched.Col(), col_of(8));
}

TEST_F(Mouse, AFailureNamesTheHandler) {
    open();
    presenter.while_showing_menu = [] {
        throw values::Failure(values::FailureNumber::automation, "The menu is gone.");
    };
    press(right, 0, 4, 4);
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_TRUE(box.shown[0].text.starts_with(
        "Error 440: 'The menu is gone.'\rin frmMain: Sub msgSched_MouseDown - Line # 70\r"));
}

} // namespace
