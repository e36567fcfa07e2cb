#include "desk/store/sample.h"

#include "desk/store/contact_fields.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

using store::Activity;
using store::RecurrenceKind;
using values::DateTime;

namespace {

const DateTime wednesday = DateTime::of(2024, 3, 13);
const DateTime monday = DateTime::of(2024, 3, 11);

class Sample : public testing::Test {
protected:
    void SetUp() override {
        store::fill_sample(database.store(), wednesday);
        activities = database.store().activities({});
    }
    std::vector<Activity> plain_ones(DateTime from, DateTime to) {
        std::vector<Activity> result;
        for (const Activity& activity : activities)
            if (activity.recurrence.kind == RecurrenceKind::none && *activity.start >= from &&
                *activity.start < to)
                result.push_back(activity);
        return result;
    }
    template <typename Test>
    int count(Test&& test) {
        return static_cast<int>(std::count_if(activities.begin(), activities.end(), test));
    }

    support::TemporaryDatabase database;
    std::vector<Activity> activities;
};

} // namespace

TEST_F(Sample, HasSixUsersSixtyContactsAndThreeGroups) {
    EXPECT_EQ(database.store().users().size(), 6u);
    EXPECT_EQ(database.store().users().front().name, "Anna Keller");
    EXPECT_EQ(database.store().contacts().size(), 60u);
    const auto groups = database.store().groups();
    ASSERT_EQ(groups.size(), 3u);
    for (const store::Group& group : groups)
        EXPECT_GE(group.contacts.size(), 10u) << group.name;
}

TEST_F(Sample, HasSomeThreeHundredActivitiesWithinFiveWeeksOfTheDay) {
    EXPECT_NEAR(static_cast<double>(activities.size()), 300, 60);
    for (const Activity& activity : plain_ones(DateTime(), DateTime::of(9999, 1, 1))) {
        EXPECT_GE(*activity.start, monday.plus_days(-35));
        EXPECT_LT(*activity.start, monday.plus_days(42));
    }
}

TEST_F(Sample, IsLivelyButNotSolidInTheWeekOfTheDay) {
    std::map<std::pair<std::string, std::int64_t>, int> minutes; // by user and day
    const auto week = plain_ones(monday, monday.plus_days(5));
    for (const Activity& activity : week)
        minutes[{activity.user, days_between(monday, *activity.start)}] += activity.duration;
    EXPECT_EQ(minutes.size(), 30u); // something for everybody on every day
    int total = 0;
    for (const auto& [user_and_day, sum] : minutes)
        total += sum;
    EXPECT_GT(total, 30 * 90);
    EXPECT_LT(total, 30 * 300); // of 540 minutes a day
}

TEST_F(Sample, MostlyStaysInTheUsualHoursOfWeekdaysOnQuartersOfAnHour) {
    const int outside = count([](const Activity& activity) {
        const int weekday = activity.start->weekday(), hour = activity.start->hour();
        return weekday == 1 || weekday == 7 || hour < 8 ||
               activity.end > activity.start->date().plus_minutes(17 * 60);
    });
    EXPECT_GT(outside, 0);
    EXPECT_LT(outside, static_cast<int>(activities.size()) / 10);
    EXPECT_EQ(count([](const Activity& activity) { return activity.start->minute() % 15 != 0; }), 0);
}

TEST_F(Sample, ShowsEveryKindOfRecord) {
    for (int type = 0; type <= 2; ++type)
        EXPECT_GT(count([=](const Activity& one) { return static_cast<int>(one.type) == type; }), 20) << type;
    for (int priority = 0; priority <= 2; ++priority)
        EXPECT_GT(count([=](const Activity& one) { return static_cast<int>(one.priority) == priority; }), 20);
    for (int kind = 1; kind <= 4; ++kind) {
        EXPECT_GE(count([=](const Activity& one) { return static_cast<int>(one.recurrence.kind) == kind; }), 2);
        EXPECT_GE(count([=](const Activity& one) {
                      return static_cast<int>(one.recurrence.kind) == kind && !one.exceptions.empty();
                  }),
                  1)
            << kind;
    }
    EXPECT_GT(count([](const Activity& one) { return one.contacts.size() > 1; }), 10);
    EXPECT_GT(count([](const Activity& one) { return !one.details.empty(); }), 20);
    EXPECT_GT(count([](const Activity& one) { return !one.group.empty(); }), 20);
    EXPECT_GT(count([](const Activity& one) { return one.alarm; }), 10);
    EXPECT_GT(count([](const Activity& one) { return one.duration >= 120; }), 10);
}

TEST_F(Sample, SchedulesNobodyTwiceInAnActivity) {
    for (const Activity& activity : activities)
        EXPECT_EQ(std::set(activity.contacts.begin(), activity.contacts.end()).size(), activity.contacts.size())
            << activity.regarding;
    EXPECT_GT(count([](const Activity& activity) { return activity.contacts.size() > 3; }), 0);
}

TEST_F(Sample, ClearsMuchOfThePastButNothingToCome) {
    const auto is_past = [](const Activity& one) {
        return one.recurrence.kind == RecurrenceKind::none && *one.start < wednesday;
    };
    const int past = count(is_past);
    const int cleared = count([](const Activity& one) { return one.cleared; });
    EXPECT_GT(cleared, past / 2);
    EXPECT_LT(cleared, past);
    EXPECT_EQ(count([&](const Activity& one) { return one.cleared && !is_past(one); }), 0);
}

TEST_F(Sample, HasOverlappingActivitiesOfOneUserInTheWeekOfTheDay) {
    const auto week = plain_ones(monday, monday.plus_days(5));
    int overlaps = 0;
    for (const Activity& one : week)
        for (const Activity& other : week)
            overlaps +=
                one.id < other.id && one.user == other.user && *one.start < other.end && *other.start < one.end;
    EXPECT_GE(overlaps, 3);
}

TEST_F(Sample, UsesColoursThatCanBeReadOnALightGround) {
    std::set<std::uint32_t> colours;
    for (const Activity& activity : activities)
        if (activity.colour) {
            const std::uint32_t blue = *activity.colour >> 16, green = *activity.colour >> 8 & 255;
            const std::uint32_t red = *activity.colour & 255;
            EXPECT_LT(299 * red + 587 * green + 114 * blue, 110u * 1000) << *activity.colour;
            colours.insert(*activity.colour);
        }
    EXPECT_GE(colours.size(), 5u);
}

TEST_F(Sample, HasPhoneNumbersInBothForms) {
    int international = 0, local = 0;
    for (store::Contact& contact : database.store().contacts()) {
        const std::string& phone = contact.fields[store::contact_field::phone];
        international += phone.starts_with("+1 (");
        local += phone.starts_with("(");
        EXPECT_NE(phone.find(") 555-01"), std::string::npos) << phone;
        EXPECT_NE(contact.fields[store::contact_field::e_mail].find(".example"), std::string::npos);
    }
    EXPECT_GT(international, 10);
    EXPECT_GT(local, 10);
}

TEST_F(Sample, HasNotesOfThePast) {
    int notes = 0;
    for (const store::Contact& contact : database.store().contacts())
        for (const store::Note& note : database.store().notes(contact.id)) {
            EXPECT_LT(note.written, wednesday);
            ++notes;
        }
    EXPECT_GE(notes, 30);
}

TEST_F(Sample, IsTheSameForTheSameDay) {
    support::TemporaryDatabase other;
    store::fill_sample(other.store(), wednesday.plus_minutes(500));
    const auto others = other.store().activities({});
    ASSERT_EQ(others.size(), activities.size());
    for (std::size_t i = 0; i < others.size(); ++i) {
        EXPECT_EQ(others[i].id, activities[i].id);
        EXPECT_EQ(others[i].start, activities[i].start);
        EXPECT_EQ(others[i].regarding, activities[i].regarding);
        EXPECT_EQ(others[i].contacts, activities[i].contacts);
    }
}

TEST_F(Sample, FollowsTheDay) {
    support::TemporaryDatabase other;
    store::fill_sample(other.store(), wednesday.plus_days(700));
    const auto others = other.store().activities({});
    EXPECT_EQ(others.size(), activities.size());
    EXPECT_GT(*others.front().start, wednesday.plus_days(600));
}
