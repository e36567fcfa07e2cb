#include "core/grid/slot_times.h"

#include "support/failure_number.h"
#include "support/fake_message_box.h"
#include "support/fake_window.h"
#include "support/memory_files.h"

#include <gtest/gtest.h>

namespace {

using values::DateTime;

class SlotTimesTest : public testing::Test {
protected:
    SlotTimesTest() { ini.SettingsFile = "/program/Orvanta.ini"; }
    void set(const std::string& key, const std::string& value) { ini.WriteKeyValue("Slots", key, value); }

    support::FakeMessageBox box;
    host::ApplicationInfo application;
    support::FakeWindow window;
    host::Guard guarded{box, application, window};
    support::MemoryFiles files;
    settings::IniLib ini{files, guarded};
    grid::SlotTimes times{ini, values::english_us()};
};

TEST_F(SlotTimesTest, BeginAt8AndLastAnHourEach) {
    EXPECT_EQ(times.start(grid::SlotNumber(0)), DateTime::time_of_day(8, 0));
    EXPECT_EQ(times.start(grid::SlotNumber(8)), DateTime::time_of_day(16, 0));
    EXPECT_EQ(times.start_text(grid::SlotNumber(1)), "9:00:00 AM");
    EXPECT_EQ(times.duration_text(grid::SlotNumber(3)), "60");
    EXPECT_EQ(times.duration(grid::SlotNumber(3)), 60);
}

TEST_F(SlotTimesTest, AreThoseOfTheSettings) {
    set("Slot2", "10:30 AM");
    set("DurationSlot2", "45");
    EXPECT_EQ(times.start(grid::SlotNumber(2)), DateTime::time_of_day(10, 30));
    EXPECT_EQ(times.start_text(grid::SlotNumber(2)), "10:30 AM");
    EXPECT_EQ(times.duration(grid::SlotNumber(2)), 45);
}

TEST_F(SlotTimesTest, FollowTheSettingsAtOnce) {
    set("Slot0", "07:00 AM");
    EXPECT_EQ(times.start(grid::SlotNumber(0)), DateTime::time_of_day(7, 0));
    set("Slot0", "06:15 AM");
    EXPECT_EQ(times.start(grid::SlotNumber(0)), DateTime::time_of_day(6, 15));
}

TEST_F(SlotTimesTest, BeyondMidnightAreOnTheNextDay) {
    EXPECT_EQ(times.start(grid::SlotNumber(16)), DateTime::time_of_day(24, 0));
    EXPECT_EQ(times.start(grid::SlotNumber(17)), DateTime::time_of_day(25, 0));
    EXPECT_EQ(times.start(grid::SlotNumber(17)).hour(), 1);
}

TEST_F(SlotTimesTest, FailWith13WhenTheTextIsNone) {
    set("Slot0", "soon");
    set("DurationSlot0", "long");
    EXPECT_EQ(support::failure_number([&] { times.start(grid::SlotNumber(0)); }), 13);
    EXPECT_EQ(support::failure_number([&] { times.start(grid::SlotNumber(0)); }), 13);
    EXPECT_EQ(support::failure_number([&] { times.duration(grid::SlotNumber(0)); }), 13);
}

} // namespace
