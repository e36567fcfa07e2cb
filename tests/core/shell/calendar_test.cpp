#include "shell/calendar.h"

#include "shell_world.h"

#include <gtest/gtest.h>

namespace {

TEST(Calendar, HearsTheEventsOfACTForAsLongAsItLives) {
    support::ShellWorld world;
    support::FakeEventControl events;
    {
        const shell::Calendar calendar(world.window, {.application = world.application,
                                                      .locale = values::english_us(),
                                                      .box = world.box,
                                                      .clock = world.clock,
                                                      .tmrRefresh = world.tmrRefresh,
                                                      .tmr2 = world.tmr2,
                                                      .shell = world.shell,
                                                      .user_store = world.user_store,
                                                      .files = world.files,
                                                      .folders = world.folders,
                                                      .program = world.program,
                                                      .server = world.server,
                                                      .ActEvent1 = events});
        EXPECT_TRUE(events.OnDatabaseClose);
        EXPECT_TRUE(events.OnActUserWantsToClose);
    }
    EXPECT_FALSE(events.OnDatabaseClose);
    EXPECT_FALSE(events.OnActUserWantsToClose);
}

} // namespace
