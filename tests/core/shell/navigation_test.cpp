#include "core/shell/navigation.h"

#include "navigation_world.h"

namespace {

using support::day;
using values::DateTime;
using Texts = std::vector<std::string>;

class Navigation : public support::NavigationTest {};

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
    const DateTime before = layout().StartDate();
    navigation.cmdNext_Click();
    EXPECT_EQ(layout().StartDate(), before.plus_days(1 + 6));
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
    const table::GridModel& grid = calendar.grid.msgSched;
    const table::Colour holiday = grid.cell(1, 5).back_colour;
    EXPECT_NE(holiday, grid.cell(1, 4).back_colour);
    EXPECT_EQ(title(5), "Founding day");
    navigation.cmdNext_Click();
    EXPECT_EQ(grid.cell(1, 5).back_colour, grid.cell(1, 4).back_colour);
    EXPECT_EQ(title(5), "Wednesday Jan. 17");
    navigation.cmdPrevious_Click();
    EXPECT_EQ(grid.cell(1, 5).back_colour, holiday);
}

TEST_F(Navigation, GoesOnBehindTheBoxOfABrokenInactiveTime) {
    add(day(2024, 1, 18));
    have_settings("[Off]\nMonday=late\n");
    start();
    box.shown.clear();
    navigation.cmdNext_Click();
    EXPECT_EQ(boxes(), Texts{"Error 9: 'Subscript out of range'"});
    expect_view(day(2024, 1, 14), day(2024, 1, 20));
    EXPECT_NE(at_nine(6), "");
    EXPECT_TRUE(pointer_is_back());
    EXPECT_EQ(window.calls.back(), "unlock_updates");
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
    EXPECT_EQ(layout().lblYear(), "2024");
}

class Views : public Navigation {};

TEST_F(Views, DailyShowsTheDayOfTheSelectedCell) {
    add(day(2024, 1, 12));
    start();
    select(7); // Friday
    window.calls.clear();
    window.set_chkView(0, true);
    EXPECT_FALSE(window.view_boxes[1]);
    EXPECT_EQ(layout().NumDays(), 1);
    expect_view(day(2024, 1, 12), day(2024, 1, 12));
    EXPECT_EQ(calendar.grid.msgSched.Cols(), 3);
    EXPECT_NE(at_nine(2), "");
    EXPECT_EQ(calendar.grid.msgSched.Row(), 1);
    EXPECT_EQ(calendar.grid.msgSched.Col(), 2);
    EXPECT_EQ(calendar.grid.selection.SelectedCell.get(), &layout().Cells(1, 2));
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
    EXPECT_EQ(layout().NumDays(), 7);
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
    EXPECT_EQ(layout().NumDays(), 7);
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
