#include "core/engine/refresh_timer.h"

#include "engine_world.h"

#include <gtest/gtest.h>

namespace {

using support::EngineWorld;
using values::DateTime;

// An activity waits to be found, so that a refresh can be told from none.
class RefreshTimerTest : public testing::Test {
protected:
    RefreshTimerTest() {
        world_.open_week();
        world_.calendar.selection.SelectedCell = world_.calendar.layout.Cells.reference(1, 2);
        world_.engine.refresh.Refresh_Data();
        world_.add("New", DateTime::of(2024, 1, 11, 9, 0)).fields[act::activity_field::edited] =
            DateTime::of(2024, 1, 10, 9, 30);
    }

    void start(const std::string& minutes, const std::string& prompt = "0") {
        world_.set("Settings", "AutoRefresh", minutes);
        world_.set("Settings", "AutoRefreshPrompt", prompt);
        world_.engine.refresh_timer.start();
    }
    // The number of the tick that refreshes or asks.
    int ticks_to_action() {
        world_.engine.placing.LastRefresh = DateTime::of(2024, 1, 10, 9, 0);
        for (int tick = 1; tick < 100; ++tick) {
            const std::size_t boxes = world_.box.shown.size();
            world_.clock.time = world_.clock.time.plus_minutes(1);
            world_.timer.fire();
            if (world_.engine.placing.LastRefresh == world_.clock.time || world_.box.shown.size() > boxes)
                return tick;
        }
        return 0;
    }

    EngineWorld world_;
};

TEST_F(RefreshTimerTest, TicksOnceAMinuteAndRefreshesAfterThePeriod) {
    start("3");
    EXPECT_TRUE(world_.timer.running);
    EXPECT_EQ(world_.timer.period, 60000);
    EXPECT_EQ(ticks_to_action(), 3);
    EXPECT_EQ(world_.placed(), std::vector<std::string>{"1/6 New"});
    EXPECT_EQ(ticks_to_action(), 3);
}

TEST_F(RefreshTimerTest, ThePeriodIsFifteenMinutesWhenTheSettingsSayNothing) {
    world_.engine.refresh_timer.start();
    EXPECT_EQ(world_.engine.refresh_timer.AutoRefresh, 15 * 60000);
    EXPECT_EQ(ticks_to_action(), 15);
}

TEST_F(RefreshTimerTest, NeverStartsWithAPeriodOfNothingEvenWhenOneIsSetLater) {
    start("0");
    EXPECT_FALSE(world_.timer.running);
    world_.engine.refresh_timer.AutoRefresh = 60000;
    EXPECT_EQ(ticks_to_action(), 0);
}

TEST_F(RefreshTimerTest, ActsEveryMinuteWhenThePeriodIsSetToNothingWhileItRuns) {
    start("5");
    world_.engine.refresh_timer.AutoRefresh = 0;
    EXPECT_EQ(ticks_to_action(), 1);
    EXPECT_EQ(ticks_to_action(), 1);
}

TEST_F(RefreshTimerTest, AsksNoQuestionWithoutThePrompt) {
    start("1", "0");
    EXPECT_EQ(ticks_to_action(), 1);
    EXPECT_TRUE(world_.box.shown.empty());
}

TEST_F(RefreshTimerTest, AsksBeforeItRefreshesWithThePrompt) {
    start("1", "1");
    world_.timer.fire();
    ASSERT_EQ(world_.box.shown.size(), 1u);
    EXPECT_EQ(world_.box.shown[0].text, "Do you want to refresh your calendar?");
    EXPECT_EQ(world_.box.shown[0].title, "Auto-refresh");
    EXPECT_EQ(world_.box.shown[0].icon, host::Icon::question);
    EXPECT_EQ(world_.box.shown[0].buttons, host::Buttons::yes_no);
    EXPECT_EQ(world_.placed(), std::vector<std::string>{"1/6 New"});
}

TEST_F(RefreshTimerTest, AnAnswerOfNoWaitsAFullPeriod) {
    start("4", "1");
    world_.box.answers = {host::Answer::no, host::Answer::no};
    EXPECT_EQ(ticks_to_action(), 4);
    EXPECT_EQ(ticks_to_action(), 4);
    EXPECT_EQ(world_.box.shown.size(), 2u);
    EXPECT_TRUE(world_.placed().empty());
}

TEST_F(RefreshTimerTest, APromptThatIsNotExactlyOneCountsAsOff) {
    start("1", "2");
    EXPECT_EQ(ticks_to_action(), 1);
    EXPECT_TRUE(world_.box.shown.empty());
}

} // namespace
