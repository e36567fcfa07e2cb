#include "core/shell/closing.h"

#include "shell_world.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using Texts = std::vector<std::string>;

class Closing : public ::testing::Test, protected support::ShellWorld {};

TEST_F(Closing, StoresTheWindowAndTheView) {
    start();
    window.place = {.left = 150, .top = 300, .width = 15000, .height = 9000};
    window.state = shell::WindowState::maximised;
    calendar.closing.mnuExit_Click();
    EXPECT_EQ(stored("WindowState"), "2");
    EXPECT_EQ(stored("Left"), "150");
    EXPECT_EQ(stored("Top"), "300");
    EXPECT_EQ(stored("Width"), "15000");
    EXPECT_EQ(stored("Height"), "9000");
    EXPECT_EQ(stored("WeeklyView"), "1");
}

TEST_F(Closing, StoresTheHeightOfEachRowUnderTheView) {
    start();
    calendar.grid.msgSched.RowHeight(2, 1111);
    calendar.closing.Form_Unload();
    EXPECT_EQ(stored("RowHeightWeekly1"), "820");
    EXPECT_EQ(stored("RowHeightWeekly2"), "1111");
    EXPECT_EQ(stored("RowHeightWeekly18"), "820");
    EXPECT_EQ(stored("RowHeightWeekly0"), std::to_string(calendar.grid.msgSched.RowHeight(0)));
    EXPECT_EQ(stored("RowHeightWeekly19"), "absent");
    EXPECT_EQ(stored("RowHeightDaily1"), "absent");
}

TEST_F(Closing, KeepsAllThatItStoresAtOnceInTheOrderOfTheRows) {
    start();
    user_store.times_kept = 0;
    calendar.closing.Form_Unload();
    EXPECT_EQ(user_store.times_kept, 1);
    Texts names;
    for (const auto& [name, value] : user_store.list("Software\\Program Settings\\Orvanta\\Settings"))
        names.push_back(name);
    const auto first = std::ranges::find(names, "RowHeightWeekly0");
    ASSERT_NE(first, names.end());
    for (int row = 0; row <= 18; ++row)
        EXPECT_EQ(first[row], "RowHeightWeekly" + std::to_string(row));
    EXPECT_EQ(Texts(first + 19, names.end()),
              (Texts{"WindowState", "Left", "Top", "Width", "Height", "WeeklyView"}));
}

TEST_F(Closing, OfADailyViewStoresItAsSuch) {
    store("WeeklyView", "0");
    start();
    calendar.closing.Form_Unload();
    EXPECT_EQ(stored("RowHeightDaily1"), "820");
    EXPECT_EQ(stored("RowHeightWeekly1"), "absent");
    EXPECT_EQ(stored("WeeklyView"), "0");
}

TEST_F(Closing, RemovesTheRowHeightsOfAnOlderRelease) {
    for (const char* key : {"RowHeight0", "RowHeight77", "RowHeight150", "RowHeight151"})
        store(key, "500");
    start();
    calendar.closing.Form_Unload();
    EXPECT_EQ(stored("RowHeight0"), "absent");
    EXPECT_EQ(stored("RowHeight77"), "absent");
    EXPECT_EQ(stored("RowHeight150"), "absent");
    EXPECT_EQ(stored("RowHeight151"), "500");
    EXPECT_TRUE(box.shown.empty()); // most of them weren't there
}

TEST_F(Closing, LetsTheApplicationGoClosesTheDatabaseAndEndsTheProgram) {
    start();
    data.calls.clear();
    calendar.closing.mnuExit_Click();
    EXPECT_EQ(data.calls, (Texts{"Application released", "Database.Close"}));
    EXPECT_EQ(program.ends, 1);
    EXPECT_FALSE(tmr2.running);
}

TEST_F(Closing, LetsTheApplicationGoThatHasNoDatabaseForTheCalendar) {
    data.failing = {"create database"};
    start();
    data.calls.clear();
    box.shown.clear();
    calendar.closing.mnuExit_Click();
    EXPECT_EQ(data.calls, Texts{"Application released"});
    EXPECT_EQ(boxes(), Texts{});
    EXPECT_EQ(program.ends, 1);
}

TEST_F(Closing, OfAStartThatStoppedShowsNoFurtherBox) {
    events.open_databases = 0;
    load();
    EXPECT_EQ(box.shown.size(), 1U);
    EXPECT_EQ(program.ends, 1);
}

TEST_F(Closing, EndsTheProgramEvenIfTheStoreCantBeWritten) {
    start();
    user_store.refuses_writes = true;
    calendar.closing.mnuExit_Click();
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_TRUE(box.shown[0].text.starts_with("Error 5: 'Invalid procedure call or argument'\r"
                                              "in frmMain: Sub Form_Unload - Line # 20\r"));
    EXPECT_EQ(program.ends, 1);
}

TEST_F(Closing, FollowsTheDatabase) {
    start();
    events.OnDatabaseClose();
    EXPECT_EQ(events.disconnects, 1);
    EXPECT_EQ(window.unloads, 1);
    EXPECT_EQ(stored("WeeklyView"), "1");
    EXPECT_EQ(stored("RowHeightWeekly1"), "820");
    EXPECT_EQ(program.ends, 1);
}

TEST_F(Closing, FollowsACTWhenItsUserClosesIt) {
    start();
    events.OnActUserWantsToClose();
    EXPECT_EQ(events.disconnects, 1);
    EXPECT_EQ(window.unloads, 1);
    EXPECT_EQ(program.ends, 1);
}

class Restart : public Closing {
protected:
    void SetUp() override {
        start();
        data.calls.clear();
        window.calls.clear();
        calendar.departure.RestartAct = true;
    }
};

TEST_F(Restart, ClosesACTAndOpensItsDatabaseWithTheDesktop) {
    calendar.closing.Form_Unload();
    EXPECT_EQ(data.calls, (Texts{"Application.GetOpenDBName", "Application.Command", "Application released",
                                 "Database.Close"}));
    EXPECT_EQ(state.commands, std::vector{act::CommandNumber::close_application});
    EXPECT_EQ(shell.opened, Texts{"/data/Office.desk"});
    EXPECT_EQ(window.calls, Texts{"hide"});
}

TEST_F(Restart, EndsTheProgramAtTheSecondTick) {
    calendar.closing.Form_Unload();
    EXPECT_EQ(tmr2.period, 1000);
    EXPECT_EQ(program.ends, 0);
    tmr2.fire();
    EXPECT_EQ(program.ends, 0);
    tmr2.fire();
    EXPECT_EQ(program.ends, 1);
}

TEST_F(Restart, GoesOnWhenACTDoesntAnswer) {
    data.failing = {"Application.GetOpenDBName", "Application.Command"};
    calendar.closing.Form_Unload();
    EXPECT_TRUE(box.shown.empty());
    EXPECT_EQ(shell.opened, Texts{""});
    EXPECT_TRUE(tmr2.running);
}

TEST_F(Restart, KeepsTheWindowWhenACTSaysThatItIsClosing) {
    events.OnActUserWantsToClose();
    EXPECT_EQ(events.disconnects, 1);
    EXPECT_EQ(window.unloads, 0);
    EXPECT_EQ(program.ends, 0);
}

} // namespace
