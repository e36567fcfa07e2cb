#include "desk/model/activity_filter.h"

#include "core/values/failure.h"
#include "desk/team_fixture.h"
#include "support/locales.h"

using namespace model;
using store::ActivityType;
using store::Priority;
using values::DateTime;

namespace {

const values::Locale& locale() { return values::english_us(); }

ActivityFilter everything() {
    ActivityFilter filter;
    filter.with_cleared = true;
    return filter;
}

class Filtered : public TeamTest {
protected:
    std::vector<std::string> ids(const ActivityFilter& filter, std::optional<std::string> of = std::nullopt) {
        std::vector<std::string> result;
        model::FilteredActivities found(*team, filter, now(), of);
        for (auto piece = found.next(2); !piece.empty(); piece = found.next(2))
            for (const auto& activity : piece)
                result.push_back(activity.id);
        EXPECT_EQ(static_cast<int>(result.size()), found.count());
        return result;
    }
    using Ids = std::vector<std::string>;
    const std::unique_ptr<store::Store> team = elsewhere();
};

} // namespace

TEST(ActivityFilterCodes, TheCalendarsMasksShowOneTypeWithAllPriorities) {
    const std::pair<int, ActivityType> masks[] = {
        {228, ActivityType::call}, {232, ActivityType::meeting}, {240, ActivityType::to_do}};
    for (const auto& [mask, type] : masks) {
        const auto filter = filter_of({mask, "1", ""}, locale());
        EXPECT_EQ(filter.types, std::set{type});
        EXPECT_EQ(filter.priorities, (std::set{Priority::high, Priority::medium, Priority::low}));
        EXPECT_FALSE(filter.with_cleared);
        EXPECT_TRUE(filter_of({mask + 2, "1", ""}, locale()).with_cleared);
    }
}

TEST(ActivityFilterCodes, WhatIsSetIsReadBackTheSame) {
    for (const act::ListFilter& codes :
         {act::ListFilter{228, "1", ""}, act::ListFilter{234, "6\\1/5/2024\\1/12/2024", "USER00000001"},
          act::ListFilter{36, "2", "USER00000001USER00000002"}, act::ListFilter{0, "3", ""},
          act::ListFilter{254, "4", "USER0000001 "}}) {
        const auto again = codes_of(filter_of(codes, locale()), locale());
        EXPECT_EQ(again.mask, codes.mask);
        EXPECT_EQ(again.dates, codes.dates);
        EXPECT_EQ(again.users, codes.users);
    }
}

TEST(ActivityFilterCodes, ARangeIsReadInTheShortDatesOfTheLocale) {
    const auto filter = filter_of({228, "6\\05.01.2024\\12.01.2024", ""}, support::german());
    EXPECT_EQ(filter.period, Period::range);
    EXPECT_EQ(filter.from, DateTime::of(2024, 1, 5));
    EXPECT_EQ(filter.to, DateTime::of(2024, 1, 12));
}

TEST(ActivityFilterCodes, DatesThatCantBeReadAreRefused) {
    for (const char* dates :
         {"", "5", "6", "6\\1/5/2024", "6\\1/5/2024\\soon", "7\\1/5/2024\\1/6/2024", "rubbish"})
        EXPECT_THROW(filter_of({228, dates, ""}, locale()), values::Failure) << dates;
}

TEST(ActivityFilterCodes, AUsersIdThatLostItsBlankGetsItBack) {
    EXPECT_EQ(filter_of({228, "1", "USER0000001"}, locale()).users, "USER0000001 ");
}

TEST_F(Filtered, WithoutALimitAllActivitiesComeByTheirStart) {
    EXPECT_EQ(ids(everything()), (Ids{series, old_task, call, meeting}));
}

TEST_F(Filtered, ClearedOnesAreLeftOutUnlessAskedFor) {
    EXPECT_EQ(ids(ActivityFilter()), (Ids{series, call, meeting}));
}

TEST_F(Filtered, TypesAndPrioritiesThatAreNotAskedForAreLeftOut) {
    auto filter = everything();
    filter.types = {ActivityType::call, ActivityType::to_do};
    EXPECT_EQ(ids(filter), (Ids{old_task, call}));
    filter.priorities = {Priority::high};
    EXPECT_EQ(ids(filter), Ids{});
}

TEST_F(Filtered, OfAContactOnlyThoseItTakesPartIn) {
    EXPECT_EQ(ids(everything(), birch), Ids{meeting});
    EXPECT_EQ(ids(everything(), amber), (Ids{old_task, call, meeting}));
    EXPECT_EQ(ids(everything(), dahlia), Ids{});
}

TEST_F(Filtered, OfOneUserOrOfSeveral) {
    auto filter = everything();
    filter.users = bert;
    EXPECT_EQ(ids(filter), Ids{meeting});
    filter.users = anna;
    EXPECT_EQ(ids(filter), (Ids{series, old_task, call}));
    filter.users = anna + bert;
    EXPECT_EQ(ids(filter), (Ids{series, old_task, call, meeting}));
}

TEST_F(Filtered, TodayHoldsTheDayItselfAndTheSeriesThatRunOnIt) {
    auto filter = everything();
    filter.period = Period::today;
    EXPECT_EQ(ids(filter), (Ids{series, call}));
}

TEST_F(Filtered, PastEndsBeforeTodayAndTheFutureBeginsWithIt) {
    auto filter = everything();
    filter.period = Period::past;
    EXPECT_EQ(ids(filter), (Ids{series, old_task}));
    filter.period = Period::future;
    EXPECT_EQ(ids(filter), (Ids{series, call, meeting}));
}

TEST_F(Filtered, ARangeHoldsBothItsDays) {
    auto filter = everything();
    filter.period = Period::range;
    filter.from = at(2, 1);
    filter.to = at(3, 6);
    EXPECT_EQ(ids(filter), (Ids{series, old_task, call}));
    filter.to = at(3, 5);
    EXPECT_EQ(ids(filter), (Ids{series, old_task}));
    filter.from = at(2, 2);
    EXPECT_EQ(ids(filter), Ids{series});
}

TEST_F(Filtered, ASeriesThatEndedBeforeThePeriodIsntInIt) {
    auto weekly = *team->activity(series);
    weekly.recurrence.until = at(2, 28);
    team->update(weekly);
    auto filter = everything();
    filter.period = Period::range;
    filter.from = at(2, 28);
    filter.to = at(2, 28);
    EXPECT_EQ(ids(filter), Ids{series});
    filter.from = filter.to = at(2, 29);
    EXPECT_EQ(ids(filter), Ids{});
}

TEST_F(Filtered, AnEarlierSeriesPassesTheOtherFiltersToo) {
    auto filter = everything();
    filter.period = Period::today;
    filter.types = {ActivityType::call};
    EXPECT_EQ(ids(filter), Ids{call});
    filter = everything();
    filter.period = Period::today;
    filter.users = bert;
    EXPECT_EQ(ids(filter), Ids{});
    filter.users.clear();
    EXPECT_EQ(ids(filter, cedar), Ids{series});
    EXPECT_EQ(ids(filter, amber), Ids{call});
}
