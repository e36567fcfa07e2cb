#include "shell/menu_commands.h"

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

TEST_F(MenuCommands, AboutTellsTitleAndVersion) {
    calendar.menu.mnuAbout_Click();
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_EQ(box.shown[0].text, "Orvanta\r1.2.3");
    EXPECT_EQ(box.shown[0].title, "Orvanta");
}

} // namespace
