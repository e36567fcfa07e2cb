#include "shell/navigation.h"

#include "shell/jump_list.h"
#include "shell_world.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using values::DateTime;
using Texts = std::vector<std::string>;

DateTime day(int year, int month, int day) { return DateTime::of(year, month, day); }

class Navigation : public ::testing::Test, protected support::ShellWorld {
protected:
    shell::Navigation& navigation = calendar.navigation;

    void start_daily() {
        store("WeeklyView", "0");
        start();
        window.view_boxes[0] = true;
        window.view_boxes[1] = false;
    }
    void jump_to(const std::string& entry) {
        window.jump = entry;
        navigation.cboGoTo_Click();
    }
    void expect_view(DateTime first, DateTime last) {
        EXPECT_EQ(layout().StartDate, first);
        EXPECT_EQ(layout().EndDate, last);
    }
    std::string title(int column) { return calendar.grid.msgSched.TextMatrix(0, column); }
    // Selects the cell in row 1 of a column, as a press on it does.
    void select(int column) {
        calendar.grid.selection.SelectedCell = calendar.grid.layout.Cells.reference(1, column);
    }
    // A call of Ann's on a day at 9:00.
    void add(DateTime on) {
        data.contacts["CONTACT-----"][26] = std::string("Chris Smith");
        auto& record = data.add_activity("ACTIVITY" + std::to_string(1000 + data.activities.size()),
                                         on.plus_minutes(9 * 60), id("Ann"));
        record.fields[act::activity_field::contact] = std::string("CONTACT-----");
    }
    std::string at_nine(int column) { return calendar.grid.msgSched.TextMatrix(3, column); }
    bool was_asked(const std::string& call) {
        return std::count(window.calls.begin(), window.calls.end(), call) > 0;
    }
    bool pointer_is_back() {
        const auto last = std::find_if(window.calls.rbegin(), window.calls.rend(), [](const std::string& call) {
            return call == "show_hourglass" || call == "show_default_pointer";
        });
        return last != window.calls.rend() && *last == "show_default_pointer";
    }
};

TEST_F(Navigation, StepsAWeekInTheWeeklyView) {
    start();
    navigation.cmdNext_Click();
    expect_view(day(2024, 1, 14), day(2024, 1, 20));
    EXPECT_EQ(title(2), "Sunday Jan. 14");
    navigation.cmdPrevious_Click();
    navigation.cmdPrevious_Click();
    expect_view(day(2023, 12, 31), day(2024, 1, 6));
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(Navigation, StepsADayInTheDailyView) {
    start_daily();
    navigation.cmdNext_Click();
    expect_view(day(2024, 1, 11), day(2024, 1, 11));
    EXPECT_EQ(title(2), "Thursday Jan. 11");
    navigation.cmdPrevious_Click();
    expect_view(day(2024, 1, 10), day(2024, 1, 10));
}

TEST_F(Navigation, StepsOverDaysOffInItsDirection) {
    have_settings("[DaysOff]\n1=1\n7=1\n");
    clock.time = DateTime::of(2024, 1, 12, 9); // a Friday
    start_daily();
    navigation.cmdNext_Click();
    expect_view(day(2024, 1, 15), day(2024, 1, 15));
    navigation.cmdPrevious_Click();
    expect_view(day(2024, 1, 12), day(2024, 1, 12));
}

TEST_F(Navigation, StepsToTheSeventhDayTriedWhenAllAreOff) {
    have_settings("[DaysOff]\n1=1\n2=1\n3=1\n4=1\n5=1\n6=1\n7=1\n");
    start_daily();
    const DateTime before = layout().StartDate;
    navigation.cmdNext_Click();
    EXPECT_EQ(layout().StartDate, before.plus_days(1 + 6));
}

TEST_F(Navigation, StepsOfMoreThanADayDontAvoidDaysOff) {
    have_settings("[DaysOff]\n1=1\n");
    start_daily();
    navigation.Move_Start(4); // from Wednesday
    expect_view(day(2024, 1, 14), day(2024, 1, 14));
}

TEST_F(Navigation, ShowsTheActivitiesOfTheNewDays) {
    add(day(2024, 1, 10));
    add(day(2024, 1, 18));
    start();
    EXPECT_NE(at_nine(5), "");
    navigation.cmdNext_Click();
    EXPECT_EQ(at_nine(5), "");
    EXPECT_NE(at_nine(6), "");
}

TEST_F(Navigation, TakesTheColoursOfHolidaysAlong) {
    files.content["/program/holidays.dat"] = "[Holidays]\n1/10/2024=Founding day\n";
    start();
    const grid::GridModel& grid = calendar.grid.msgSched;
    const grid::Colour holiday = grid.cell(1, 5).back_colour;
    EXPECT_NE(holiday, grid.cell(1, 4).back_colour);
    EXPECT_EQ(title(5), "Founding day");
    navigation.cmdNext_Click();
    EXPECT_EQ(grid.cell(1, 5).back_colour, grid.cell(1, 4).back_colour);
    EXPECT_EQ(title(5), "Wednesday Jan. 17");
    navigation.cmdPrevious_Click();
    EXPECT_EQ(grid.cell(1, 5).back_colour, holiday);
}

TEST_F(Navigation, OfTheButtonsGivesTheGridTheFocusAndEmptiesTheJumpList) {
    start();
    window.jump = "Today";
    window.calls.clear();
    navigation.cmdNext_Click();
    EXPECT_EQ(Texts(window.calls.begin(), window.calls.begin() + 2), (Texts{"show_hourglass", "focus_grid"}));
    EXPECT_EQ(window.jump, "");
    EXPECT_TRUE(pointer_is_back());
}

TEST_F(Navigation, KeepsTheYearOfTheWeeksFirstDayAcrossNewYear) {
    clock.time = DateTime::of(2024, 12, 25, 9);
    start();
    navigation.cmdNext_Click();
    expect_view(day(2024, 12, 29), day(2025, 1, 4));
    EXPECT_EQ(layout().lblYear, "2024");
}

TEST_F(Navigation, JumpsToEachEntrysWeek) {
    clock.time = DateTime::of(2024, 3, 31, 9);
    start();
    for (const shell::Jump& jump : shell::jumps) {
        if (jump.target == shell::Jump::Target::none || jump.target == shell::Jump::Target::asked)
            continue;
        jump_to(std::string(jump.text));
        const DateTime target = shell::target_of(jump, day(2024, 3, 31));
        EXPECT_EQ(navigation.dates.datNow, target) << jump.text;
        EXPECT_EQ(layout().StartDate, target.plus_days(1 - target.weekday())) << jump.text;
        EXPECT_EQ(layout().EndDate, layout().StartDate.plus_days(6)) << jump.text;
        EXPECT_EQ(layout().lblYear, std::to_string(target.year())) << jump.text;
        EXPECT_TRUE(pointer_is_back());
    }
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(Navigation, JumpsToEachEntrysDayInTheDailyView) {
    clock.time = DateTime::of(2024, 2, 29, 9);
    start_daily();
    for (const shell::Jump& jump : shell::jumps) {
        if (jump.target == shell::Jump::Target::none || jump.target == shell::Jump::Target::asked)
            continue;
        jump_to(std::string(jump.text));
        const DateTime target = shell::target_of(jump, day(2024, 2, 29));
        EXPECT_EQ(layout().StartDate, target) << jump.text;
        EXPECT_EQ(layout().EndDate, target) << jump.text;
    }
}

TEST_F(Navigation, JumpsAMonthBackFromTheEndOfMarchToTheLastDayOfFebruary) {
    clock.time = DateTime::of(2023, 3, 31, 9);
    start_daily();
    jump_to("Today - 1 month");
    expect_view(day(2023, 2, 28), day(2023, 2, 28));
}

TEST_F(Navigation, JumpsForwardOverDaysOffInTheDailyView) {
    have_settings("[DaysOff]\n1=1\n7=1\n");
    start_daily();
    jump_to("1st of previous month"); // a Friday
    expect_view(day(2023, 12, 1), day(2023, 12, 1));
    jump_to("Today - 1 month"); // a Sunday
    expect_view(day(2023, 12, 11), day(2023, 12, 11));
    EXPECT_EQ(navigation.dates.datNow, day(2023, 12, 10));
}

TEST_F(Navigation, OfAJumpShowsTheTargetsYearNotTheWeeks) {
    start();
    clock.time = DateTime::of(2024, 12, 10, 9);
    jump_to("1st of next month"); // 1 January, in the week of 29 December
    expect_view(day(2024, 12, 29), day(2025, 1, 4));
    EXPECT_EQ(layout().lblYear, "2025");
}

TEST_F(Navigation, JumpsToTodayWithTheFirstDayOfTheWeekReadAnew) {
    start();
    have_settings("[Settings]\n1stday=2\n");
    jump_to("Today + 1 month");
    EXPECT_EQ(layout().StartDate, day(2024, 2, 4));
    jump_to("Today");
    expect_view(day(2024, 1, 8), day(2024, 1, 14));
}

TEST_F(Navigation, DoesNothingAtTheEmptyEntry) {
    start();
    window.calls.clear();
    jump_to("");
    EXPECT_TRUE(window.calls.empty());
    EXPECT_FALSE(layout().KeepCellDims);
    expect_view(day(2024, 1, 7), day(2024, 1, 13));
}

TEST_F(Navigation, DoesNothingWhileTheWindowLoads) {
    load();
    window.calls.clear();
    jump_to("Today + 1 year");
    navigation.chkView_Click(1);
    EXPECT_TRUE(window.calls.empty());
    expect_view(day(2024, 1, 7), day(2024, 1, 13));
}

TEST_F(Navigation, JumpsAtEnterAndAtNoOtherKey) {
    start();
    window.jump = "Today + 1 year";
    navigation.cboGoTo_KeyPress(32);
    EXPECT_EQ(layout().StartDate, day(2024, 1, 7));
    navigation.cboGoTo_KeyPress(13);
    EXPECT_EQ(layout().StartDate, day(2025, 1, 5));
}

TEST_F(Navigation, KeepsSizesInAJumpAndGivesThemBackInAChangeOfView) {
    start();
    grid::GridModel& grid = calendar.grid.msgSched;
    grid.ColWidth(3, 2222);
    grid.RowHeight(2, 999);
    jump_to("Today + 1 month");
    EXPECT_EQ(grid.ColWidth(3), 2222);
    EXPECT_EQ(grid.RowHeight(2), 999);
    EXPECT_FALSE(layout().KeepCellDims);
    window.set_chkView(0, true);
    EXPECT_EQ(grid.RowHeight(2), 820);
}

TEST_F(Navigation, RepaintsTheWindowUnderTheHourglassBeforeItJumps) {
    start();
    window.calls.clear();
    jump_to("Today + 1 month");
    EXPECT_EQ(Texts(window.calls.begin(), window.calls.begin() + 2), (Texts{"show_hourglass", "repaint"}));
}

class MiniCalendar : public Navigation {};

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

class Views : public Navigation {};

TEST_F(Views, DailyShowsTheDayOfTheSelectedCell) {
    add(day(2024, 1, 12));
    start();
    select(7); // Friday
    window.calls.clear();
    window.set_chkView(0, true);
    EXPECT_FALSE(window.view_boxes[1]);
    EXPECT_EQ(layout().NumDays, 1);
    expect_view(day(2024, 1, 12), day(2024, 1, 12));
    EXPECT_EQ(calendar.grid.msgSched.Cols(), 3);
    EXPECT_NE(at_nine(2), "");
    EXPECT_EQ(calendar.grid.msgSched.Row(), 1);
    EXPECT_EQ(calendar.grid.msgSched.Col(), 2);
    EXPECT_EQ(calendar.grid.selection.SelectedCell, layout().Cells.reference(1, 2));
    EXPECT_EQ(Texts(window.calls.begin(), window.calls.begin() + 3),
              (Texts{"focus_grid", "show_hourglass", "repaint"}));
    EXPECT_TRUE(pointer_is_back());
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(Views, DailyGoesOnFromADayOff) {
    have_settings("[DaysOff]\n7=1\n1=1\n");
    start();
    select(8); // Saturday
    window.set_chkView(0, true);
    expect_view(day(2024, 1, 15), day(2024, 1, 15));
}

TEST_F(Views, WeeklyShowsTheWeekOfTheSelectedCell) {
    start_daily();
    jump_to("Today + 1 month"); // a Saturday
    select(2);
    window.set_chkView(1, true);
    EXPECT_FALSE(window.view_boxes[0]);
    EXPECT_EQ(layout().NumDays, 7);
    expect_view(day(2024, 2, 4), day(2024, 2, 10));
    EXPECT_EQ(calendar.grid.msgSched.Cols(), 9);
    EXPECT_TRUE(pointer_is_back());
}

TEST_F(Views, StayWhenABoxThatIsOnGoesOff) {
    start();
    window.calls.clear();
    window.set_chkView(1, false);
    EXPECT_FALSE(window.view_boxes[0]);
    EXPECT_TRUE(window.calls.empty());
    EXPECT_EQ(layout().NumDays, 7);
}

TEST_F(Views, SwitchToTheDayOfAColumnAndBack) {
    start();
    navigation.Switch_View(4); // Tuesday
    EXPECT_TRUE(window.view_boxes[0]);
    EXPECT_FALSE(window.view_boxes[1]);
    expect_view(day(2024, 1, 9), day(2024, 1, 9));
    navigation.Switch_View(2);
    EXPECT_FALSE(window.view_boxes[0]);
    EXPECT_TRUE(window.view_boxes[1]);
    expect_view(day(2024, 1, 7), day(2024, 1, 13));
    EXPECT_TRUE(box.shown.empty());
}

class HalfDays : public Navigation {
protected:
    // Morning or afternoon, as a click on the box that is off.
    void show(int index) { window.set_chkAMPM(index, true); }
};

TEST_F(HalfDays, ScrollToTheFirstRowOfTheMorningAndOfTheAfternoon) {
    start();
    window.calls.clear();
    show(1);
    EXPECT_EQ(calendar.grid.msgSched.TopRow(), 9); // 12:00 with two rows a slot
    EXPECT_EQ(window.calls, Texts{"focus_grid"});
    show(0);
    EXPECT_EQ(calendar.grid.msgSched.TopRow(), 1);
    EXPECT_FALSE(window.half_day_boxes[1]);
    show(1);
    EXPECT_FALSE(window.half_day_boxes[0]);
}

TEST_F(HalfDays, StayWhenABoxGoesOff) {
    start();
    show(1);
    window.set_chkAMPM(1, false);
    EXPECT_EQ(calendar.grid.msgSched.TopRow(), 9);
}

TEST_F(HalfDays, WithoutAnAfternoonFail) {
    have_settings("[Settings]\nPM=11:00:00PM\n");
    start();
    show(1);
    EXPECT_EQ(boxes(), Texts{"Error 380: 'Invalid property value'"});
}

TEST_F(Navigation, TellsTheDateOfAColumnAndTheTimeOfARow) {
    have_settings("[Slots]\nSlot1=9:30:00 AM\n");
    start();
    EXPECT_EQ(navigation.GetDate(2), "1/7/2024");
    EXPECT_EQ(navigation.GetDate(8), "1/13/2024");
    EXPECT_EQ(navigation.GetTime(1), "8:00:00 AM");
    EXPECT_EQ(navigation.GetTime(3), "9:30:00 AM");
}

TEST_F(Navigation, NamesTheButtonsPictureOfAPictureInTheProgramsFolder) {
    EXPECT_EQ(navigation.GetButtonPicture("/program/call.gif"), "/program/bcall.gif");
    EXPECT_EQ(navigation.GetButtonPicture("/elsewhere/call.gif"), "/elsewhere/call.gif");
}

} // namespace
