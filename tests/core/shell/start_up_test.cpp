#include "shell_world.h"

#include <gtest/gtest.h>
#include <set>

namespace {

using host::Icon;
using values::DateTime;
using Texts = std::vector<std::string>;

class StartUp : public ::testing::Test, protected support::ShellWorld {};

TEST_F(StartUp, ComesUpWithoutABoxAndInFront) {
    start();
    EXPECT_EQ(boxes(), Texts{});
    EXPECT_EQ(window.unloads, 0);
    EXPECT_EQ(Texts(window.calls.end() - 5, window.calls.end()),
              (Texts{"set_left", "set_top", "set_size", "bring_to_front", "set_window_state"}));
    EXPECT_EQ(calendar.start_up.ActHwnd, 4711U);
}

TEST_F(StartUp, ShowsTheWeekOfTodayWithARowForEachUserInNineSlots) {
    start();
    EXPECT_EQ(layout().NumDays(), 7);
    EXPECT_EQ(layout().StartDate(), DateTime::of(2024, 1, 7));
    EXPECT_EQ(layout().EndDate(), DateTime::of(2024, 1, 13));
    EXPECT_EQ(calendar.grid.msgSched.Rows(), 9 * 2 + 1);
    EXPECT_EQ(calendar.grid.msgSched.Cols(), 2 + 7);
    EXPECT_EQ(calendar.grid.msgSched.TextMatrix(0, 5), "Wednesday Jan. 10");
    EXPECT_EQ(layout().lblYear(), "2024");
}

TEST_F(StartUp, FillsTheGridWithTheActivitiesOfTheWeek) {
    data.add_activity("MEETING-----", DateTime::of(2024, 1, 10, 9), id("Ann"));
    data.contacts["CONTACT-----"][26] = std::string("Chris Smith");
    data.find("MEETING-----")->fields[act::activity_field::contact] = std::string("CONTACT-----");
    start();
    EXPECT_TRUE(calendar.grid.msgSched.TextMatrix(3, 5).find("Chris Smith") != std::string::npos)
        << calendar.grid.msgSched.TextMatrix(3, 5);
}

TEST_F(StartUp, OfASecondInstanceShowsABoxAndLeavesTheFirstAlone) {
    program.is_second = true;
    load();
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_EQ(box.shown[0].text, "An instance of this program is already running!");
    EXPECT_EQ(box.shown[0].title, "Orvanta");
    EXPECT_EQ(box.shown[0].icon, Icon::none);
    EXPECT_EQ(window.unloads, 1);
    EXPECT_EQ(data.calls, Texts{});
    EXPECT_EQ(program.ends, 1);
}

TEST_F(StartUp, OfASecondInstanceStoresItsGeometryAndTheDailyView) {
    program.is_second = true;
    store("WeeklyView", "1");
    window.place = {.left = 15, .top = 30, .width = 4500, .height = 4800};
    load();
    EXPECT_EQ(stored("WeeklyView"), "0");
    EXPECT_EQ(stored("Left"), "15");
    EXPECT_EQ(stored("Top"), "30");
    EXPECT_EQ(stored("Width"), "4500");
    EXPECT_EQ(stored("Height"), "4800");
}

TEST_F(StartUp, WithoutADatabaseAsksForOneAndStops) {
    events.open_databases = 0;
    load();
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_EQ(box.shown[0].text, "Please open an ACT database prior to running Orvanta!");
    EXPECT_EQ(box.shown[0].icon, Icon::exclamation);
    EXPECT_EQ(window.unloads, 1);
    EXPECT_EQ(data.calls, Texts{});
}

TEST_F(StartUp, WithoutACTSaysSoAndStops) {
    events.open_databases = 0;
    events.communication_failed = true;
    load();
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_EQ(box.shown[0].text, "Unable to communicate with ACT!\r"
                                 "Please run actreg.exe located in the ACT folder and try again");
    EXPECT_EQ(box.shown[0].icon, Icon::critical);
    EXPECT_EQ(window.unloads, 1);
}

TEST_F(StartUp, FindsTheSettingsFileInTheProgramsFolder) {
    have_settings("[Settings]\r\nStdColWidth=2345\r\n");
    start();
    EXPECT_EQ(layout().StdColWidth(), 2345);
    EXPECT_EQ(stored("SettingsFile"), "absent");
}

TEST_F(StartUp, KeepsAStoredPathAtWhichNoSettingsFileStands) {
    store("SettingsFile", "/elsewhere/my.ini");
    start();
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_EQ(box.shown[0].text, "The program's settings file has been deleted or moved or is unaccessible.\r"
                                 "A new settings file will be created in the program's folder");
    EXPECT_EQ(box.shown[0].icon, Icon::critical);
    calendar.settings.ini.WriteKeyValue("Settings", "1stday", "2");
    EXPECT_TRUE(files.exists("/elsewhere/my.ini"));
    EXPECT_FALSE(files.exists("/program/Orvanta.ini"));
}

TEST_F(StartUp, TellsOfAStoredPathWithoutAFileOnceAtEachStartUntilTheFileIsThere) {
    store("SettingsFile", "/elsewhere/my.ini");
    start();
    EXPECT_EQ(box.shown.size(), 1U);
    load();
    EXPECT_EQ(box.shown.size(), 2U);
    calendar.settings.ini.WriteKeyValue("Settings", "1stday", "2");
    load();
    EXPECT_EQ(box.shown.size(), 2U);
}

TEST_F(StartUp, ReadsAStoredSettingsFileThatIsThere) {
    store("SettingsFile", "elsewhere/my.ini");
    files.content["elsewhere/my.ini"] = "[Settings]\nStdRowHeight=500\n";
    start();
    EXPECT_EQ(boxes(), Texts{});
    EXPECT_EQ(layout().StdRowHeight(), 500);
}

TEST_F(StartUp, TakesTheContactFieldFrom25On) {
    have_settings("[Settings]\nDisplayContact=3\n");
    start();
    EXPECT_EQ(calendar.engine.cell_text.DisplayContactField, 28);
}

TEST_F(StartUp, FillsTheJumpListWithItsSixteenEntries) {
    start();
    EXPECT_EQ(window.cboGoTo,
              (Texts{"", "Pick a date...", "Today - 1 year", "Today - 6 months", "Today - 3 months",
                     "Today - 1 month", "1st of previous month", "15th of previous month", "1st of this month",
                     "Today", "1st of next month", "15th of next month", "Today + 1 month", "Today + 3 months",
                     "Today + 6 months", "Today + 1 year"}));
    EXPECT_EQ(window.cboGoTo_lines, 17);
}

TEST_F(StartUp, TakesUpTheDailyView) {
    store("WeeklyView", "0");
    start();
    EXPECT_EQ(layout().NumDays(), 1);
    EXPECT_EQ(layout().StartDate(), DateTime::of(2024, 1, 10));
    EXPECT_TRUE(window.view_boxes[0]);
    EXPECT_FALSE(window.view_boxes[1]);
}

TEST_F(StartUp, HasAsManyColumnsAsAnOddStoredViewGivesDays) {
    store("WeeklyView", "2");
    start();
    EXPECT_EQ(layout().NumDays(), 13);
    EXPECT_EQ(calendar.grid.msgSched.Cols(), 2 + 13);
    EXPECT_FALSE(window.view_boxes[0]);
    EXPECT_TRUE(window.view_boxes[1]);
}

TEST_F(StartUp, CountsTheDaysOfAnyOddWeeklyViewAndSelectsDailyForOneDayOnly) {
    store("WeeklyView", "-1");
    start();
    EXPECT_EQ(layout().NumDays(), -5);
    EXPECT_FALSE(window.view_boxes[0]);
    EXPECT_TRUE(window.view_boxes[1]);
}

TEST_F(StartUp, LeavesTheFourSizesOfTheViewsUnwritten) {
    have_settings("[Settings]\n1stday=2\n");
    start();
    calendar.closing.Form_Unload();
    const std::string settings = files.content["/program/Orvanta.ini"];
    for (const char* key : {"DailyStdColWidth", "DailyStdRowHeight", "WeeklyStdColWidth", "WeeklyStdRowHeight"})
        EXPECT_EQ(settings.find(key), std::string::npos) << key;
}

TEST_F(StartUp, ReadsTheHolidays) {
    files.content["/program/holidays.dat"] = "[Holidays]\r\n1/10/2024=Founders' day\r\n";
    start();
    EXPECT_EQ(calendar.grid.background.holidays.HolidaysFile, "/program/holidays.dat");
    EXPECT_EQ(calendar.grid.background.holidays.Holidays, "|1/10/2024|");
}

TEST_F(StartUp, ReadsTheSettingsOfTheGrid) {
    have_settings("[Settings]\nStdColWidth=2000\nStdRowHeight=900\nCollColWidth=99\nSpanText=(more)\n"
                  "OneRowPerUser=0\nCheckRecurring=0\n[DaysOff]\n1=1\n2=0\n3=11\n7=1\n");
    start();
    EXPECT_EQ(layout().StdColWidth(), 2000);
    EXPECT_EQ(layout().StdRowHeight(), 900);
    EXPECT_EQ(calendar.start_up.CollColWidth, 99);
    EXPECT_EQ(calendar.grid.rendering.SpanText, "(more)");
    EXPECT_EQ(layout().DaysOff(), "17");
    EXPECT_FALSE(layout().OneRowPerUser());
    EXPECT_EQ(layout().FixedCols(), 1);
    EXPECT_FALSE(calendar.engine.refresh.CheckRecurring);
}

TEST_F(StartUp, HasItsDefaultsWithoutASettingsFile) {
    start();
    EXPECT_EQ(layout().StdColWidth(), 1800);
    EXPECT_EQ(layout().StdRowHeight(), 820);
    EXPECT_EQ(calendar.start_up.CollColWidth, 180);
    EXPECT_EQ(calendar.grid.rendering.SpanText, "( Continued )");
    EXPECT_EQ(layout().DaysOff(), "");
    EXPECT_TRUE(layout().OneRowPerUser());
    EXPECT_EQ(layout().FixedCols(), 2);
    EXPECT_TRUE(calendar.engine.refresh.CheckRecurring);
    EXPECT_EQ(calendar.engine.cell_text.DisplayContactField, 26);
    EXPECT_EQ(calendar.act.users.UsersFilter, " ");
    EXPECT_FALSE(files.exists("/program/Orvanta.ini"));
}

TEST_F(StartUp, KnowsEveryUserByIdAndName) {
    start();
    EXPECT_EQ(calendar.act.users.UserIdToName.at(id("Bob")), "Bob");
    EXPECT_EQ(calendar.act.users.UserNameToId.at("Ann"), id("Ann"));
}

TEST_F(StartUp, LetsTheRefreshTimerTickOnceAMinute) {
    start();
    EXPECT_TRUE(tmrRefresh.running);
    EXPECT_EQ(tmrRefresh.period, 60000);
    EXPECT_EQ(calendar.engine.refresh_timer.AutoRefresh, 15 * 60000);
}

TEST_F(StartUp, LeavesTheRefreshTimerAloneWithAPeriodOf0) {
    have_settings("[Settings]\nAutoRefresh=0\n");
    start();
    EXPECT_FALSE(tmrRefresh.running);
    EXPECT_EQ(calendar.engine.refresh_timer.AutoRefresh, 0);
}

TEST_F(StartUp, RemembersWhenItRefreshedAndMakesTheTwoCellsOfTheMouse) {
    start();
    EXPECT_EQ(calendar.engine.placing.LastRefresh, clock.time);
    EXPECT_TRUE(calendar.grid.msgSched.Redraw());
    ASSERT_TRUE(calendar.grid.selection.SelectedCell);
    ASSERT_TRUE(calendar.grid.selection.DragSourceCell);
    EXPECT_NE(calendar.grid.selection.SelectedCell.get(), calendar.grid.selection.DragSourceCell.get());
    EXPECT_FALSE(calendar.grid.selection.SelectedCell->Initialized());
}

TEST_F(StartUp, TakesTheStoredStateOfTheWindowAtItsFirstActivationOnly) {
    store("WindowState", "2");
    load();
    EXPECT_EQ(window.state, shell::WindowState::normal);
    calendar.start_up.Form_Activate();
    EXPECT_EQ(window.state, shell::WindowState::maximised);
    window.state = shell::WindowState::normal;
    calendar.start_up.Form_Activate();
    EXPECT_EQ(window.state, shell::WindowState::normal);
}

TEST_F(StartUp, CantTakeAStateThatThereIsNot) {
    store("WindowState", "3");
    start();
    EXPECT_EQ(boxes(), Texts{"Error 380: 'Invalid property value'"});
}

TEST_F(StartUp, TellsOfAStateThatIsNoneOnceAlthoughTheEndOfItsBoxActivatesTheWindow) {
    store("WindowState", "seven");
    bool was_loading = true;
    box.while_shown = [&] { was_loading = calendar.grid.bLoading; };
    start();
    calendar.start_up.Form_Activate();
    EXPECT_EQ(boxes(), Texts{"Error 13: 'Type mismatch'"});
    EXPECT_FALSE(was_loading);
    EXPECT_FALSE(calendar.grid.bLoading);
}

TEST_F(StartUp, TellsOfASlotsTimeThatIsNoneOnceInEachProcedureThatMeetsIt) {
    have_settings("[Slots]\nSlot3=noon\n[Off]\nMonday=08:00|09:00\nTuesday=08:00|09:00\n");
    for (int day = 7; day <= 13; ++day)
        for (int hour = 8; hour <= 16; ++hour)
            data.add_activity("MEETING" + std::to_string(day * 100 + hour + 10000),
                              DateTime::of(2024, 1, day, hour), id("Ann"));
    start();
    std::set<std::string> different;
    for (const host::Message& message : box.shown)
        different.insert(message.text);
    EXPECT_EQ(different.size(), box.shown.size());
    EXPECT_LE(box.shown.size(), 3U);
    const std::size_t at_start = box.shown.size();
    calendar.menu.mnuFullRefresh_Click();
    EXPECT_GT(box.shown.size(), at_start); // it is another command
}

TEST_F(StartUp, StopsAtASettingThatIsNoNumberAndLeavesTheWindowOpen) {
    have_settings("[Settings]\nStdColWidth=wide\n");
    load();
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_EQ(box.shown[0].title, "Orvanta error");
    EXPECT_EQ(box.shown[0].text, "Error 13: 'Type mismatch'\rin frmMain: Sub Form_Load - Line # 110\r"
                                 "Orvanta: 1.2.3\r\rPlease contact help@example.org with this error message.");
    EXPECT_EQ(window.unloads, 0);
    EXPECT_FALSE(tmrRefresh.running);
    EXPECT_EQ(window.cboGoTo.size(), 16U);
}

TEST_F(StartUp, TellsOfAnACTThatFailsAndOfWhatIsMissingThen) {
    data.failing = {"create application"};
    load();
    ASSERT_EQ(box.shown.size(), 4U); // each procedure that meets the missing objects ends with its own box
    const auto told_by = [&](std::size_t index, const char* procedure) {
        return box.shown[index].text.find(procedure) != std::string::npos;
    };
    EXPECT_EQ(boxes().front(), "Error 440: 'Automation error'");
    EXPECT_TRUE(told_by(0, "in frmMain: Sub Create_Database - Line # 10\r"));
    EXPECT_TRUE(told_by(1, "in frmMain: Sub Initialize_Users - Line # "));
    EXPECT_TRUE(told_by(2, "in frmMain: Sub Write_ColTitles - Line # "));
    EXPECT_TRUE(told_by(3, "in frmMain: Sub Form_Load - Line # 170\r"));
    EXPECT_EQ(boxes().back(), "Error 91: '" + values::description_of(values::FailureNumber::object_not_set) + "'");
    EXPECT_EQ(window.unloads, 0);
    EXPECT_FALSE(calendar.act.session.ActDatabase);
}

} // namespace
