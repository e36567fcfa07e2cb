#include "core/shell/menu_commands.h"

#include "shell_world.h"

#include <gtest/gtest.h>

namespace {

using values::DateTime;

class MenuCommands : public ::testing::Test, protected support::ShellWorld {
protected:
    MenuCommands() {
        data.contacts["CONTACT-----"][26] = std::string("Chris Smith");
        add("FIRST-------", 9);
        start();
    }
    // A call of an hour today with Chris Smith for Ann, edited at its start.
    void add(const std::string& activity, int hour) {
        const DateTime time = DateTime::of(2024, 1, 10, hour);
        support::FakeActivityRecord& record = data.add_activity(activity, time, id("Ann"));
        record.fields[act::activity_field::contact] = std::string("CONTACT-----");
        record.fields[act::activity_field::edited] = time;
    }
    // Whether the row of Ann shows anything at that hour today.
    bool shows(int hour) { return !calendar.grid.msgSched.TextMatrix((hour - 8) * 2 + 1, 5).empty(); }
};

TEST_F(MenuCommands, FullRefreshReadsEverythingAgain) {
    add("SECOND------", 11);
    add("THIRD-------", 12);
    EXPECT_FALSE(shows(11));
    calendar.menu.mnuFullRefresh_Click();
    EXPECT_TRUE(shows(9));
    EXPECT_TRUE(shows(11));
    EXPECT_TRUE(shows(12));
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(MenuCommands, QuickRefreshReadsWhatChangedSinceTheLastRefresh) {
    add("EARLIER-----", 8); // edited before the start
    add("LATER-------", 11);
    calendar.menu.mnuRefresh_Click();
    EXPECT_TRUE(shows(9));
    EXPECT_TRUE(shows(11));
    EXPECT_FALSE(shows(8));
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(MenuCommands, DaysOffOpensItsDialogAndDoesNothingAfterIt) {
    add("SECOND------", 11);
    calendar.menu.mnuHolidays_Click();
    EXPECT_EQ(dialogs.shown, std::vector<std::string>{"frmHolidays"});
    EXPECT_FALSE(shows(11));
}

TEST_F(MenuCommands, UsersManualOpensTheManualInTheProgramsFolder) {
    calendar.menu.mnuUsers_Click();
    EXPECT_EQ(shell.opened, std::vector<std::string>{"/program/orvanta_manual.pdf"});
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(MenuCommands, UsersManualThatCantBeOpenedIsTold) {
    shell.succeeds = false;
    calendar.menu.mnuUsers_Click();
    EXPECT_EQ(boxes(),
              std::vector<std::string>{"Error 53: '/program/orvanta_manual.pdf isn't there, or no program is "
                                       "there to open it'"});
}

TEST_F(MenuCommands, OnlineOpensThePageOfTheTutorial) {
    calendar.menu.mnuOnline_Click();
    ASSERT_EQ(shell.opened.size(), 1U);
    EXPECT_TRUE(shell.opened[0].ends_with("/orvanta_online.htm"));
}

TEST_F(MenuCommands, ResetRowHeightGivesTheCurrentRowItsStandardHeight) {
    table::GridModel& grid = calendar.grid.msgSched;
    grid.Row(4);
    grid.RowHeight(4, 1234);
    grid.RowHeight(5, 1234);
    calendar.menu.mnuResetRowHeight_Click();
    EXPECT_EQ(grid.RowHeight(4), 820);
    EXPECT_EQ(grid.RowHeight(5), 1234);
    have_settings("[Settings]\nStdRowHeight=700\n");
    calendar.menu.mnuResetRowHeight_Click();
    EXPECT_EQ(grid.RowHeight(4), 700);
}

TEST_F(MenuCommands, ResetColumnWidthPairsTheWeekdaysNumberWithTheColumns) {
    table::GridModel& grid = calendar.grid.msgSched;
    for (int col = 2; col < 9; ++col)
        grid.ColWidth(col, 1000 + col);
    have_settings("[Settings]\nStdColWidth=1500\n1stday=2\n[DaysOff]\n1=1\n");
    calendar.menu.mnuResetColumnWidth_Click();
    EXPECT_EQ(grid.ColWidth(2), 1002); // of the first column, whatever weekday it shows
    for (int col = 3; col < 9; ++col)
        EXPECT_EQ(grid.ColWidth(col), 1500) << col;
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(MenuCommands, ResetColumnWidthRunsBeyondTheOneColumnOfADailyView) {
    calendar.navigation.Switch_View(5);
    calendar.grid.msgSched.ColWidth(2, 1234);
    calendar.menu.mnuResetColumnWidth_Click();
    EXPECT_EQ(calendar.grid.msgSched.ColWidth(2), 1800);
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_TRUE(box.shown[0].text.starts_with("Error 381: '"));
}

TEST_F(MenuCommands, AboutTellsTitleAndVersion) {
    calendar.menu.mnuAbout_Click();
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_EQ(box.shown[0].text, "Orvanta\r1.2.3");
    EXPECT_EQ(box.shown[0].title, "Orvanta");
}

} // namespace
