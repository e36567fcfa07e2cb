#include "desk/model/activity_values.h"

#include "support/locales.h"

#include <gtest/gtest.h>

using model::read_values;
using model::ReadValues;
using values::DateTime;

namespace {

const std::vector<store::User> users{{"U00000000001", "Anna Berg", "Administrator", "Enabled"},
                                     {"U00000000002", "Bert Cole", "Standard", "Disabled"}};

} // namespace

TEST(ReadValues, ReadsEachValueInTheMachinesForms) {
    EXPECT_EQ(
        read_values({"T", "4/12/2024", "3:15:00 PM", "45", "Roof", "M", "Bert Cole"}, users, values::english_us()),
        (ReadValues{store::ActivityType::to_do, DateTime::of(2024, 4, 12), DateTime::time_of_day(15, 15), 45,
                    "Roof", store::Priority::medium, "U00000000002"}));
    EXPECT_EQ(
        read_values({"C", "12.04.2024", "15:15:00", "45", "Roof", "H", "Anna Berg"}, users, support::german()),
        (ReadValues{store::ActivityType::call, DateTime::of(2024, 4, 12), DateTime::time_of_day(15, 15), 45,
                    "Roof", store::Priority::high, "U00000000001"}));
}

TEST(ReadValues, WhatIsEmptyIsAbsent) { EXPECT_EQ(read_values({}, users, values::english_us()), ReadValues()); }

TEST(ReadValues, WhatCantBeReadIsAbsent) {
    for (const char* bad : {"Q", "c", "-1", "32768", "1e99", "noon", "99/99/9999", "\xff\xfe", "  "}) {
        auto read = read_values({bad, bad, bad, bad, bad, bad, bad}, users, values::english_us());
        EXPECT_EQ(read.regarding, bad);
        read.regarding.reset();
        EXPECT_EQ(read, ReadValues()) << bad;
    }
}

TEST(ReadValues, MidnightIsATime) {
    EXPECT_EQ(read_values({.time = "12:00:00 AM"}, users, values::english_us()).time, DateTime());
}

TEST(ReadValues, ATimeAloneIsNoDate) {
    EXPECT_EQ(read_values({.date = "9:00:00 AM"}, users, values::english_us()).date, std::nullopt);
}

TEST(ReadValues, ANumberOfMinutesIsRounded) {
    EXPECT_EQ(read_values({.duration = " 30 "}, users, values::english_us()).duration, 30);
    EXPECT_EQ(read_values({.duration = "0"}, users, values::english_us()).duration, 0);
    EXPECT_EQ(read_values({.duration = "7.6"}, users, values::english_us()).duration, 8);
}
