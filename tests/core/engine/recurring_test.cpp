#include "core/engine/recurring.h"

#include "engine_world.h"

#include <gtest/gtest.h>

namespace {

using support::EngineWorld;
using support::FakeActivityRecord;
using values::DateTime;
using Texts = std::vector<std::string>;
namespace field = act::activity_field;

class RecurringTest : public testing::Test {
protected:
    RecurringTest() { world_.open_week(); }

    const Texts& treat() {
        world_.act_data.calls.clear();
        world_.engine.placing.read_settings();
        world_.session.ActActivity->Rebuild();
        world_.engine.recurring.Treat_Recurring();
        return placed_ = world_.placed();
    }

    EngineWorld world_;
    Texts placed_;
};

TEST_F(RecurringTest, PlacesEveryOccurrenceOfASeriesInView) {
    world_.add_daily("Daily", DateTime::of(2023, 10, 3, 9, 0)).frequency = 3;
    EXPECT_EQ(treat(), (Texts{"1/2 Daily", "1/5 Daily", "1/8 Daily"}));
    EXPECT_EQ(world_.displayed(), EngineWorld::user_id("Daily"));
}

TEST_F(RecurringTest, MarksOccurrencesAsRecurringAndGivesThemTheLengthOfTheSeries) {
    world_.add_daily("Daily", DateTime::of(2024, 1, 10, 9, 0)).frequency = 30;
    world_.act_data.find(EngineWorld::user_id("Daily"))->fields[field::duration] = std::int64_t{90};
    treat();
    EXPECT_EQ(world_.only_record().Recurring, "1");
    EXPECT_EQ(world_.only_record().GoesBeyond, 1);
}

TEST_F(RecurringTest, ExpandsEachKind) {
    world_.add_daily("Daily", DateTime::of(2024, 1, 12, 8, 0));
    FakeActivityRecord& weekly = world_.add("Weekly", DateTime::of(2023, 12, 4, 9, 0));
    weekly.recurring_type = act::RecurrenceKind::weekly;
    weekly.days_of_week = 1 << 1 | 1 << 3;
    FakeActivityRecord& custom = world_.add("Custom", DateTime::of(2023, 12, 1, 10, 0));
    custom.recurring_type = act::RecurrenceKind::days_of_month;
    custom.days_of_month = 1 << 7;
    FakeActivityRecord& monthly = world_.add("Monthly", DateTime::of(2024, 1, 1, 11, 0));
    monthly.recurring_type = act::RecurrenceKind::weekdays_of_month;
    monthly.days_of_week = 1 << 2;
    monthly.weeks_of_month = 1 << 1;
    EXPECT_EQ(treat(), (Texts{"0/7 Daily", "0/8 Daily", "1/3 Weekly", "1/5 Weekly", "2/3 Custom", "3/4 Monthly"}));
}

TEST_F(RecurringTest, SkipsAnyOtherKind) {
    world_.add("Five", DateTime::of(2024, 1, 10, 9, 0)).recurring_type = static_cast<act::RecurrenceKind>(5);
    EXPECT_EQ(treat(), Texts{});
    EXPECT_TRUE(world_.box.shown.empty());
}

TEST_F(RecurringTest, SkipsPlainActivities) {
    world_.add("Plain", DateTime::of(2024, 1, 10, 9, 0));
    EXPECT_EQ(treat(), Texts{});
}

TEST_F(RecurringTest, ClearsTheDateScopeAndLeavesTheListAtItsEnd) {
    world_.add_daily("Daily", DateTime::of(2023, 10, 2, 9, 0));
    world_.session.ActActivity->SetDateScope(DateTime::of(2024, 1, 7), DateTime::of(2024, 1, 14));
    treat();
    EXPECT_EQ(world_.placed().size(), 7u);
    EXPECT_EQ(world_.act_data.calls.at(1), "Activity.ClearDateScope");
    EXPECT_TRUE(world_.session.ActActivity->isEOF());
}

TEST_F(RecurringTest, LeavesTheOtherFiltersInForce) {
    world_.add_daily("Call", DateTime::of(2024, 1, 10, 9, 0)).frequency = 30;
    world_.session.ActActivity->SetTypeFilter(act::ActivityType::call);
    EXPECT_EQ(treat(), Texts{});
}

TEST_F(RecurringTest, SkipsASeriesOfAUserWhoIsNotShown) {
    world_.add_daily("Daily", DateTime::of(2024, 1, 10, 9, 0));
    world_.users.UsersFilter = EngineWorld::user_id("Bob") + " ";
    EXPECT_EQ(treat(), Texts{});
    world_.users.UsersFilter = EngineWorld::user_id("Ann") + EngineWorld::user_id("Bob") + " ";
    EXPECT_EQ(treat().size(), 4u);
}

TEST_F(RecurringTest, SkipsASeriesThatBeginsOnTheLastShownDayAfterMidnight) {
    world_.add_daily("Late", DateTime::of(2024, 1, 13, 9, 0));
    EXPECT_EQ(treat(), Texts{});
}

TEST_F(RecurringTest, TreatsASeriesThatBeginsOnTheLastShownDayAtMidnight) {
    world_.set("Slots", "Slot0", "00:00 AM");
    world_.add_daily("Late", DateTime::of(2024, 1, 13));
    EXPECT_EQ(treat(), Texts{"0/8 Late"});
}

TEST_F(RecurringTest, SkipsASeriesThatEndedBeforeTheView) {
    world_.add_daily("Old", DateTime::of(2024, 1, 10, 9, 0)).until = DateTime::of(2024, 1, 6);
    EXPECT_EQ(treat(), Texts{}) << "although the start itself would be shown whatever the until date is";
    world_.act_data.activities.front().until = DateTime::of(2024, 1, 7);
    EXPECT_EQ(treat(), Texts{"1/5 Old"});
}

TEST_F(RecurringTest, SkipsASeriesWhoseStartIsNoDate) {
    world_.add_daily("Daily", DateTime::of(2024, 1, 10, 9, 0)).fields[field::start] = std::string("some day");
    world_.add_daily("Next", DateTime::of(2024, 1, 12, 9, 0)).frequency = 30;
    EXPECT_EQ(treat(), Texts{"1/7 Next"});
    EXPECT_TRUE(world_.box.shown.empty());
}

TEST_F(RecurringTest, ReadsAStartThatIsADateInText) {
    FakeActivityRecord& daily = world_.add_daily("Daily", DateTime());
    daily.fields[field::start] = std::string("1/12/2024 9:30:00 AM");
    EXPECT_EQ(treat(), (Texts{"1/7 Daily", "1/8 Daily"}));
}

TEST_F(RecurringTest, ADateInExceptionInfoGivesNoOccurrenceWhateverItsTime) {
    FakeActivityRecord& daily = world_.add_daily("Daily", DateTime::of(2024, 1, 10, 9, 0));
    daily.exceptions = {DateTime::of(2024, 1, 12, 17, 30), DateTime::of(2024, 1, 10)};
    EXPECT_EQ(treat(), (Texts{"1/6 Daily", "1/8 Daily"}));
}

TEST_F(RecurringTest, AMissingFifthWeekShowsTheBoxKeepsWhatWasPlacedAndGoesOnWithTheNextSeries) {
    FakeActivityRecord& monthly = world_.add("Fifth", DateTime::of(2024, 1, 8, 9, 0));
    monthly.recurring_type = act::RecurrenceKind::weekdays_of_month;
    monthly.days_of_week = 1 << 4 | 1 << 5; // January 2024 has no fifth Thursday and no fifth Friday
    monthly.weeks_of_month = 1 << 1 | 1 << 3 | 1 << 4;
    world_.add_daily("Next", DateTime::of(2024, 1, 12, 10, 0)).frequency = 30;
    EXPECT_EQ(treat(), (Texts{"1/6 Fifth", "2/7 Next"}));
    EXPECT_EQ(world_.failures(), Texts{"Error 13: 'Type mismatch'\rin modRefresh: Sub Treat_Monthly - Line # 20"});
}

TEST_F(RecurringTest, AFailureOfOnePlacingDoesNotEndTheWalk) {
    world_.add_daily("Daily", DateTime::of(2024, 1, 12, 9, 0)).fields[field::colour] = std::string("99999999999");
    world_.add_daily("Next", DateTime::of(2024, 1, 12, 10, 0));
    EXPECT_EQ(treat(), (Texts{"2/7 Next", "2/8 Next"}));
    // Both of its occurrences fail, for which there is one box.
    EXPECT_EQ(world_.failures(), Texts{"Error 6: 'Overflow'\rin modRefresh: Sub Treat_Activity - Line # 90"});
}

TEST_F(RecurringTest, ADurationThatIsMissingEndsTheWalk) {
    world_.add_daily("Daily", DateTime::of(2024, 1, 11, 9, 0)).fields.erase(field::duration);
    world_.add_daily("Next", DateTime::of(2024, 1, 12, 10, 0));
    EXPECT_EQ(treat(), Texts{});
    EXPECT_EQ(world_.failures(),
              Texts{"Error 13: 'Type mismatch'\rin modRefresh: Sub Treat_Recurring - Line # 70"});
}

// Exceptions that can't be read as dates.
class UnreadableExceptions : public act::ExceptionInfo {
    int Count() const override { return 1; }
    values::Value value(int) const override { return std::string("some day"); }
    void Add(DateTime) override {}
    void Remove(DateTime) override {}
};

class ActivityWithUnreadableExceptions : public support::FakeActivity {
public:
    using support::FakeActivity::FakeActivity;
    act::ExceptionInfo& ExceptionInfo() override { return exceptions_; }

private:
    UnreadableExceptions exceptions_;
};

TEST_F(RecurringTest, AnExceptionThatIsNoDateShowsItsOwnBoxAndTheOccurrenceStays) {
    world_.add_daily("Daily", DateTime::of(2024, 1, 12, 9, 0)).frequency = 30;
    world_.session.ActActivity = std::make_unique<ActivityWithUnreadableExceptions>(world_.act_data);
    EXPECT_EQ(treat(), Texts{"1/7 Daily"});
    EXPECT_EQ(world_.failures(),
              Texts{"Error 13: 'Type mismatch'\rin modRefresh: Function Exception - Line # 20"});
}

} // namespace
