#include "core/engine/slot_table.h"

#include "engine_world.h"
#include "support/failure_number.h"

#include <gtest/gtest.h>

namespace {

using values::DateTime;

DateTime at(int hour, int minute, int second = 0) { return DateTime::of(2024, 1, 10, hour, minute, second); }

class SlotTableTest : public testing::Test {
protected:
    engine::SlotTable table(int count) {
        engine::SlotTable slots;
        slots.read(grid::SlotTimes(world_.ini, world_.here.locale), count);
        return slots;
    }
    support::EngineWorld world_;
};

TEST_F(SlotTableTest, AnActivityAtExactlyTheStartOfASlotLandsInIt) {
    EXPECT_EQ(table(9).slot_of(at(8, 0)), 0);
    EXPECT_EQ(table(9).slot_of(at(9, 0)), 1);
}

TEST_F(SlotTableTest, TheLastMinuteOfASlotBelongsToNoSlot) {
    EXPECT_EQ(table(9).slot_of(at(8, 58)), 0);
    EXPECT_EQ(table(9).slot_of(at(8, 59)), std::nullopt);
}

TEST_F(SlotTableTest, SecondsAreCutOff) {
    EXPECT_EQ(table(9).slot_of(at(8, 58, 59)), 0);
    EXPECT_EQ(table(9).slot_of(at(7, 59, 59)), std::nullopt);
}

TEST_F(SlotTableTest, ATimeBeforeTheFirstSlotFindsNone) {
    EXPECT_EQ(table(9).slot_of(at(0, 0)), std::nullopt);
    EXPECT_EQ(table(9).slot_of(at(7, 59)), std::nullopt);
}

TEST_F(SlotTableTest, ATimeInAGapFindsNone) {
    world_.set("Slots", "DurationSlot0", "30");
    EXPECT_EQ(table(9).slot_of(at(8, 28)), 0);
    EXPECT_EQ(table(9).slot_of(at(8, 29)), std::nullopt);
    EXPECT_EQ(table(9).slot_of(at(8, 45)), std::nullopt);
}

TEST_F(SlotTableTest, InTheLastSlotOnlyItsDurationLessAMinuteIsTheLimit) {
    world_.set("Slots", "DurationSlot8", "180");
    EXPECT_EQ(table(9).slot_of(at(16, 0)), 8);
    EXPECT_EQ(table(9).slot_of(at(18, 58)), 8);
    EXPECT_EQ(table(9).slot_of(at(18, 59)), std::nullopt);
}

TEST_F(SlotTableTest, ALongSlotEndsWhereTheNextBegins) {
    world_.set("Slots", "DurationSlot0", "600");
    EXPECT_EQ(table(9).slot_of(at(8, 59)), 0);
    EXPECT_EQ(table(9).slot_of(at(9, 0)), 1);
}

TEST_F(SlotTableTest, ADefaultStartPastMidnightIsFoundByNoActivity) {
    EXPECT_EQ(table(20).slot_of(at(0, 30)), std::nullopt);
    EXPECT_EQ(table(20).slot_of(at(23, 30)), 15);
}

TEST_F(SlotTableTest, AStartThatIsNoTimeFailsOnlyWhereItIsCompared) {
    world_.set("Slots", "Slot2", "soon");
    EXPECT_EQ(table(9).slot_of(at(8, 10)), 0);
    EXPECT_EQ(support::failure_number([&] { (void)table(9).slot_of(at(9, 10)); }), 13);
}

TEST_F(SlotTableTest, ADurationThatIsNoNumberFailsOnlyInItsSlot) {
    world_.set("Slots", "DurationSlot1", "long");
    EXPECT_EQ(table(9).slot_of(at(8, 10)), 0);
    EXPECT_EQ(support::failure_number([&] { (void)table(9).slot_of(at(9, 10)); }), 13);
}

TEST_F(SlotTableTest, AnEndAtTheStartOfASlotDoesNotCoverIt) {
    EXPECT_EQ(table(9).span(grid::SlotNumber(1), at(9, 0)), 0);
    EXPECT_EQ(table(9).span(grid::SlotNumber(1), at(9, 1)), 1);
    EXPECT_EQ(table(9).span(grid::SlotNumber(1), at(11, 0)), 2);
}

TEST_F(SlotTableTest, ASpanEndsWithTheLastSlot) {
    EXPECT_EQ(table(9).span(grid::SlotNumber(7), at(23, 0)), 2);
    EXPECT_EQ(table(9).span(grid::SlotNumber(9), at(23, 0)), 0);
}

TEST_F(SlotTableTest, AnEndPastMidnightCoversNothing) {
    EXPECT_EQ(table(9).span(grid::SlotNumber(1), at(0, 30)), 0);
}

} // namespace
