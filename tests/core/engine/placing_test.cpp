#include "core/engine/placing.h"

#include "engine_world.h"

#include <gtest/gtest.h>

namespace {

using support::EngineWorld;
using values::DateTime;
namespace field = act::activity_field;

constexpr int wednesday = 5; // the column of 10 January

class PlacingTest : public testing::Test {
protected:
    PlacingTest() {
        activity_ = &world_.add("Meet", DateTime::of(2024, 1, 10, 9, 0));
        world_.open_week();
    }

    void treat(DateTime date, int duration = 60, bool recurring = false) {
        world_.engine.placing.read_settings();
        world_.session.ActActivity->MoveFirst();
        world_.engine.placing.Treat_Activity(
            date, duration, recurring ? engine::Placing::Kind::of_series : engine::Placing::Kind::single);
    }
    std::string colour() {
        treat(DateTime::of(2024, 1, 10, 9, 0));
        return world_.only_record().ForeColor;
    }

    EngineWorld world_;
    support::FakeActivityRecord* activity_;
};

TEST_F(PlacingTest, GivesTheSlotAllThatTheGridNeeds) {
    activity_->fields[field::type] = std::int64_t{1};
    activity_->fields[field::colour] = std::string("255");
    treat(DateTime::of(2024, 1, 10, 9, 0), 121);
    ASSERT_EQ(world_.placed(), std::vector<std::string>{"1/5 Meet"});
    const grid::SlotRecord record = world_.only_record();
    EXPECT_EQ(record.ActivityID, EngineWorld::user_id("Meet"));
    EXPECT_EQ(record.ContactID, "contact-----");
    EXPECT_EQ(record.Recurring, "0");
    EXPECT_EQ(record.Cleared, "0");
    EXPECT_EQ(record.BackColor, "");
    EXPECT_EQ(record.ForeColor, "255");
    EXPECT_EQ(record.Type, "2");
    EXPECT_EQ(record.Text, "Chris Smith");
    EXPECT_EQ(record.Detail, "Ann||1/10/2024 9:00:00 AMChris Smith");
    EXPECT_EQ(record.HasDetails, "0");
    EXPECT_EQ(record.GoesBeyond, 2);
}

TEST_F(PlacingTest, MarksOccurrencesClearedActivitiesAndDetails) {
    activity_->fields[field::cleared] = std::string("1");
    activity_->fields[field::details] = std::string("Bring a pen");
    treat(DateTime::of(2024, 1, 10, 9, 0), 60, true);
    const grid::SlotRecord record = world_.only_record();
    EXPECT_EQ(record.Recurring, "1");
    EXPECT_EQ(record.Cleared, "1");
    EXPECT_EQ(record.HasDetails, "1");
}

TEST_F(PlacingTest, SortsAnOccurrenceByTheStartOfItsSeries) {
    treat(DateTime::of(2024, 1, 12, 11, 0), 60, true);
    EXPECT_EQ(world_.placed(), std::vector<std::string>{"3/7 Meet"});
    EXPECT_EQ(world_.only_record().Detail, "Ann||1/10/2024 9:00:00 AMChris Smith");
}

TEST_F(PlacingTest, AnActivityAtTheLastMinuteOfASlotOrInAGapIsDropped) {
    world_.set("Slots", "DurationSlot2", "30");
    treat(DateTime::of(2024, 1, 10, 8, 59));
    treat(DateTime::of(2024, 1, 10, 10, 45));
    EXPECT_TRUE(world_.placed().empty());
    EXPECT_EQ(world_.displayed(), "");
    EXPECT_TRUE(world_.box.shown.empty());
}

TEST_F(PlacingTest, AnHourFromEightHasNoFurtherSlotsAndAMinuteMoreHasOne) {
    treat(DateTime::of(2024, 1, 10, 8, 0), 60);
    EXPECT_EQ(world_.only_record().GoesBeyond, 0);
    world_.calendar.layout.Slots(grid::SlotNumber(0), wednesday).ClearCells();
    treat(DateTime::of(2024, 1, 10, 8, 0), 61);
    EXPECT_EQ(world_.only_record().GoesBeyond, 1);
}

TEST_F(PlacingTest, AnActivityThatRunsPastMidnightHasNoFurtherSlots) {
    treat(DateTime::of(2024, 1, 10, 15, 0), 10 * 60);
    EXPECT_EQ(world_.only_record().GoesBeyond, 0);
}

TEST_F(PlacingTest, AnIdStandsOnceInDisplayedIDs) {
    treat(DateTime::of(2024, 1, 10, 9, 0), 60, true);
    treat(DateTime::of(2024, 1, 11, 9, 0), 60, true);
    EXPECT_EQ(world_.displayed(), EngineWorld::user_id("Meet"));
    EXPECT_EQ(world_.placed(), (std::vector<std::string>{"1/5 Meet", "1/6 Meet"}));
}

TEST_F(PlacingTest, SeesAtTheNextRefreshWhatChangedOfTheActivityPlacedLast) {
    treat(DateTime::of(2024, 1, 10, 9, 0));
    world_.calendar.layout.Slots(grid::SlotNumber(1), wednesday).ClearCells();
    world_.act_data.contacts["contact-----"][26] = std::string("Chris Jones");
    activity_->fields[field::type] = std::int64_t{2};
    treat(DateTime::of(2024, 1, 10, 9, 0));
    EXPECT_EQ(world_.only_record().Text, "Chris Jones");
    EXPECT_EQ(world_.only_record().Detail, "Ann||1/10/2024 9:00:00 AMChris Jones");
    EXPECT_EQ(world_.only_record().Type, "3");
}

TEST_F(PlacingTest, ComposesATextAnewThatWasEmpty) {
    world_.act_data.contacts.erase("contact-----");
    treat(DateTime::of(2024, 1, 10, 9, 0));
    EXPECT_EQ(world_.only_record().Text, "");
    world_.calendar.layout.Slots(grid::SlotNumber(1), wednesday).ClearCells();
    world_.act_data.contacts["contact-----"][26] = std::string("Chris Smith");
    world_.engine.placing.Treat_Activity(DateTime::of(2024, 1, 10, 9, 0), 60, engine::Placing::Kind::single);
    EXPECT_EQ(world_.only_record().Text, "Chris Smith");
    EXPECT_EQ(world_.only_record().Detail, "Ann||1/10/2024 9:00:00 AMChris Smith");
}

TEST_F(PlacingTest, ADateOutsideTheGridShowsTheBox) {
    treat(DateTime::of(2024, 1, 14, 9, 0));
    EXPECT_EQ(world_.failures(),
              std::vector<std::string>{
                  "Error 9: 'Subscript out of range'\rin modRefresh: Sub Treat_Activity - Line # 140"});
}

TEST_F(PlacingTest, TakesTheActivitysOwnColour) {
    activity_->fields[field::colour] = std::string("16711680");
    EXPECT_EQ(colour(), "16711680");
}

TEST_F(PlacingTest, AnOwnColourThatIsNoNumberIsBlack) {
    activity_->fields[field::colour] = std::string("blue");
    EXPECT_EQ(colour(), "0");
}

TEST_F(PlacingTest, AnOwnColourInHexadecimalIsANumber) {
    activity_->fields[field::colour] = std::string("&HFF");
    EXPECT_EQ(colour(), "255");
}

TEST_F(PlacingTest, AnOwnColourBeyondAllColoursShowsTheBoxAndPlacesNothing) {
    activity_->fields[field::colour] = std::string("99999999999");
    treat(DateTime::of(2024, 1, 10, 9, 0));
    EXPECT_EQ(world_.failures(),
              std::vector<std::string>{"Error 6: 'Overflow'\rin modRefresh: Sub Treat_Activity - Line # 90"});
    EXPECT_TRUE(world_.placed().empty());
    EXPECT_EQ(world_.displayed(), "");
}

TEST_F(PlacingTest, TakesTheOneColourOfModeOne) {
    world_.engine.placing.ShowActyColorsMode = 1;
    world_.engine.placing.FixedActyColor = "&HFFC0C0";
    EXPECT_EQ(colour(), "16761024");
}

TEST_F(PlacingTest, TakesTheUsersColourInModeTwo) {
    world_.engine.placing.ShowActyColorsMode = 2;
    world_.set("Colors", "Ann", "12345");
    EXPECT_EQ(colour(), "12345");
}

TEST_F(PlacingTest, AUserWithoutAKeyIsBlackInModeTwo) {
    world_.engine.placing.ShowActyColorsMode = 2;
    world_.set("Colors", "Bob", "12345");
    EXPECT_EQ(colour(), "0");
}

TEST_F(PlacingTest, AUsersColourThatIsNoNumberGoesIntoTheRecordAsItStands) {
    world_.engine.placing.ShowActyColorsMode = 2;
    world_.set("Colors", "Ann", "dark red");
    EXPECT_EQ(colour(), "dark red");
    EXPECT_TRUE(world_.box.shown.empty());
    EXPECT_EQ(world_.displayed(), EngineWorld::user_id("Meet"));
}

TEST_F(PlacingTest, AChangeOfAUsersColourIsSeenByTheNextRefresh) {
    world_.engine.placing.ShowActyColorsMode = 2;
    EXPECT_EQ(colour(), "0");
    world_.calendar.layout.Slots(grid::SlotNumber(1), wednesday).ClearCells();
    world_.set("Colors", "Ann", "77");
    EXPECT_EQ(colour(), "77");
}

TEST_F(PlacingTest, AnyOtherModeIsBlack) {
    activity_->fields[field::colour] = std::string("255");
    world_.engine.placing.ShowActyColorsMode = 3;
    EXPECT_EQ(colour(), "0");
}

TEST_F(PlacingTest, AnUnknownUserHasNoNameInTheSortText) {
    activity_->fields[field::scheduled_for] = std::string("nobody------");
    treat(DateTime::of(2024, 1, 10, 9, 0));
    EXPECT_EQ(world_.only_record().Detail, "||1/10/2024 9:00:00 AMChris Smith");
}

TEST_F(PlacingTest, ATypeThatIsMissingShowsTheBox) {
    activity_->fields.erase(field::type);
    treat(DateTime::of(2024, 1, 10, 9, 0));
    EXPECT_EQ(world_.failures(), std::vector<std::string>{
                                     "Error 13: 'Type mismatch'\rin modRefresh: Sub Treat_Activity - Line # 40"});
}

TEST_F(PlacingTest, ASlotWhoseStartIsNoTimeShowsTheBoxForEachActivityThatMeetsIt) {
    world_.set("Slots", "Slot2", "soon");
    treat(DateTime::of(2024, 1, 10, 8, 0));
    EXPECT_TRUE(world_.box.shown.empty());
    treat(DateTime::of(2024, 1, 10, 9, 0));
    EXPECT_EQ(world_.failures(), std::vector<std::string>{
                                     "Error 13: 'Type mismatch'\rin modRefresh: Sub Treat_Activity - Line # 80"});
}

TEST_F(PlacingTest, TakesTheSlotsAsTheyWereWhenTheRefreshBegan) {
    treat(DateTime::of(2024, 1, 10, 8, 30));
    world_.set("Slots", "DurationSlot0", "20");
    world_.engine.placing.Treat_Activity(DateTime::of(2024, 1, 11, 8, 30), 60, engine::Placing::Kind::single);
    EXPECT_EQ(world_.placed(), (std::vector<std::string>{"0/5 Meet", "0/6 Meet"}));
    treat(DateTime::of(2024, 1, 12, 8, 30));
    EXPECT_EQ(world_.placed(), (std::vector<std::string>{"0/5 Meet", "0/6 Meet"}));
}

} // namespace
