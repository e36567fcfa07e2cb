#include "core/calendar/calendar.h"

#include "core/shell/shell_world.h"

#include <gtest/gtest.h>

namespace {

TEST(Calendar, HearsTheEventsOfACTForAsLongAsItLives) {
    support::PlatformWorld world;
    support::FakeMainWindow window;
    support::FakeDialogs dialogs;
    support::FakePresenter presenter;
    support::FakeActivityChange question;
    support::FakeActData data;
    support::FakeApplicationState state;
    support::FakeServer server{data, state};
    const support::FakeEventControl& events = world.events;
    {
        const calendar::Calendar calendar(world.outside(server), {window, dialogs, presenter, question});
        EXPECT_TRUE(events.OnDatabaseClose);
        EXPECT_TRUE(events.OnActUserWantsToClose);
    }
    EXPECT_FALSE(events.OnDatabaseClose);
    EXPECT_FALSE(events.OnActUserWantsToClose);
}

} // namespace
