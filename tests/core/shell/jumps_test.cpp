#include "core/shell/jump_targets.h"
#include "navigation_world.h"

// The jump list and the mini calendar behind it.
namespace {

using support::day;
using values::DateTime;
using Texts = std::vector<std::string>;

class Jumps : public support::NavigationTest {};

TEST_F(Jumps, GoToEachEntrysWeek) {
    clock.time = DateTime::of(2024, 3, 31, 9);
    start();
    for (const shell::Jump& jump : shell::jumps) {
        if (jump.target == shell::Jump::Target::none || jump.target == shell::Jump::Target::asked)
            continue;
        jump_to(std::string(jump.text));
        const DateTime target = shell::target_of(jump, day(2024, 3, 31));
        EXPECT_EQ(navigation.dates.datNow, target) << jump.text;
        EXPECT_EQ(layout().StartDate(), target.plus_days(1 - target.weekday())) << jump.text;
        EXPECT_EQ(layout().EndDate(), layout().StartDate().plus_days(6)) << jump.text;
        EXPECT_EQ(layout().lblYear(), std::to_string(target.year())) << jump.text;
        EXPECT_TRUE(pointer_is_back());
    }
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(Jumps, GoToEachEntrysDayInTheDailyView) {
    clock.time = DateTime::of(2024, 2, 29, 9);
    start_daily();
    for (const shell::Jump& jump : shell::jumps) {
        if (jump.target == shell::Jump::Target::none || jump.target == shell::Jump::Target::asked)
            continue;
        jump_to(std::string(jump.text));
        const DateTime target = shell::target_of(jump, day(2024, 2, 29));
        EXPECT_EQ(layout().StartDate(), target) << jump.text;
        EXPECT_EQ(layout().EndDate(), target) << jump.text;
    }
}

TEST_F(Jumps, GoAMonthBackFromTheEndOfMarchToTheLastDayOfFebruary) {
    clock.time = DateTime::of(2023, 3, 31, 9);
    start_daily();
    jump_to("Today - 1 month");
    expect_view(day(2023, 2, 28), day(2023, 2, 28));
}

TEST_F(Jumps, GoForwardOverDaysOffInTheDailyView) {
    have_settings("[DaysOff]\n1=1\n7=1\n");
    start_daily();
    jump_to("1st of previous month"); // a Friday
    expect_view(day(2023, 12, 1), day(2023, 12, 1));
    jump_to("Today - 1 month"); // a Sunday
    expect_view(day(2023, 12, 11), day(2023, 12, 11));
    EXPECT_EQ(navigation.dates.datNow, day(2023, 12, 10));
}

TEST_F(Jumps, ShowTheTargetsYearNotTheWeeks) {
    start();
    clock.time = DateTime::of(2024, 12, 10, 9);
    jump_to("1st of next month"); // 1 January, in the week of 29 December
    expect_view(day(2024, 12, 29), day(2025, 1, 4));
    EXPECT_EQ(layout().lblYear(), "2025");
}

TEST_F(Jumps, GoToTodayWithTheFirstDayOfTheWeekReadAnew) {
    start();
    have_settings("[Settings]\n1stday=2\n");
    jump_to("Today + 1 month");
    EXPECT_EQ(layout().StartDate(), day(2024, 2, 4));
    jump_to("Today");
    expect_view(day(2024, 1, 8), day(2024, 1, 14));
}

TEST_F(Jumps, DoNothingAtTheEmptyEntry) {
    start();
    window.calls.clear();
    jump_to("");
    EXPECT_TRUE(window.calls.empty());
    EXPECT_FALSE(layout().KeepCellDims);
    expect_view(day(2024, 1, 7), day(2024, 1, 13));
}

TEST_F(Jumps, DoNothingWhileTheWindowLoads) {
    load();
    window.calls.clear();
    jump_to("Today + 1 year");
    navigation.chkView_Click(1);
    EXPECT_TRUE(window.calls.empty());
    expect_view(day(2024, 1, 7), day(2024, 1, 13));
}

TEST_F(Jumps, HappenAtEnterAndAtNoOtherKey) {
    start();
    window.jump = "Today + 1 year";
    navigation.cboGoTo_KeyPress(32);
    EXPECT_EQ(layout().StartDate(), day(2024, 1, 7));
    navigation.cboGoTo_KeyPress(13);
    EXPECT_EQ(layout().StartDate(), day(2025, 1, 5));
}

TEST_F(Jumps, KeepTheSizesThatAChangeOfViewGivesBack) {
    start();
    table::GridModel& grid = calendar.grid.msgSched;
    grid.ColWidth(3, 2222);
    grid.RowHeight(2, 999);
    jump_to("Today + 1 month");
    EXPECT_EQ(grid.ColWidth(3), 2222);
    EXPECT_EQ(grid.RowHeight(2), 999);
    EXPECT_FALSE(layout().KeepCellDims);
    window.set_chkView(0, true);
    EXPECT_EQ(grid.RowHeight(2), 820);
}

TEST_F(Jumps, RepaintTheWindowUnderTheHourglassFirst) {
    start();
    window.calls.clear();
    jump_to("Today + 1 month");
    EXPECT_EQ(Texts(window.calls.begin(), window.calls.begin() + 2), (Texts{"show_hourglass", "repaint"}));
}

class MiniCalendar : public Jumps {};

TEST_F(MiniCalendar, OpensOnTodayAtItsFirstUse) {
    start();
    jump_to("Pick a date...");
    EXPECT_EQ(dialogs.opened_on, std::vector{day(2024, 1, 10)});
}

TEST_F(MiniCalendar, OpensOnTheTargetOfTheLastJump) {
    start();
    jump_to("Today + 1 month");
    jump_to("Pick a date...");
    EXPECT_EQ(dialogs.opened_on, std::vector{day(2024, 2, 10)});
}

TEST_F(MiniCalendar, OpensOnTodayAfterAJumpThere) {
    start();
    jump_to("Today + 1 month");
    jump_to("Today");
    jump_to("Pick a date...");
    EXPECT_EQ(dialogs.opened_on, std::vector{day(2024, 1, 10)});
}

TEST_F(MiniCalendar, LeadsToThePickedDay) {
    start();
    dialogs.pick = day(2024, 7, 4);
    jump_to("Pick a date...");
    expect_view(day(2024, 6, 30), day(2024, 7, 6));
    EXPECT_EQ(navigation.dates.datNow, day(2024, 7, 4));
    EXPECT_TRUE(pointer_is_back());
}

TEST_F(MiniCalendar, ThatIsCancelledLeavesTheCalendarWhereItStoodAndTheTargetAtToday) {
    start();
    jump_to("Today + 1 month");
    window.calls.clear();
    jump_to("Pick a date...");
    EXPECT_EQ(navigation.dates.datNow, day(2024, 1, 10));
    expect_view(day(2024, 2, 4), day(2024, 2, 10));
    EXPECT_EQ(window.calls, (Texts{"show_hourglass", "repaint", "show_default_pointer"}));
}

TEST_F(MiniCalendar, ThatIsCancelledLetsTheNextViewKeepTheSizes) {
    start();
    jump_to("Pick a date...");
    EXPECT_TRUE(layout().KeepCellDims);
    calendar.grid.msgSched.RowHeight(2, 999);
    window.set_chkView(0, true);
    EXPECT_EQ(calendar.grid.msgSched.RowHeight(2), 999);
    jump_to("Today");
    EXPECT_FALSE(layout().KeepCellDims);
}

} // namespace
