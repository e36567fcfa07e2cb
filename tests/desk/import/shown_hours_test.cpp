#include "desk/import/shown_hours.h"

#include "core/settings/catalogue.h"
#include "core/values/text_forms.h"

#include <gtest/gtest.h>

namespace {

using values::DateTime;

bool is_shown(int hour, int minute) {
    return importing::is_in_shown_hours(DateTime::of(2024, 3, 11, hour, minute));
}

TEST(ShownHours, AreTheCalendarsOwnDefaults) {
    const auto locale = values::english_us();
    EXPECT_EQ(settings::keys::slots_count.default_value, std::to_string(importing::slot_count));
    for (int slot = 0; slot < importing::slot_count; ++slot) {
        EXPECT_EQ(settings::keys::slot_duration(slot).default_value, std::to_string(importing::slot_minutes));
        const int start = importing::first_slot + slot * importing::slot_minutes;
        const std::string text = settings::keys::slot_start(slot, locale).default_value;
        EXPECT_EQ(values::parse_date(text, locale), DateTime::time_of_day(start / 60, start % 60)) << text;
    }
}

TEST(ShownHours, AreTheSlotsWithoutTheirLastMinutes) {
    EXPECT_FALSE(is_shown(0, 0));
    EXPECT_FALSE(is_shown(7, 59));
    EXPECT_TRUE(is_shown(8, 0));
    EXPECT_TRUE(is_shown(8, 58));
    EXPECT_FALSE(is_shown(8, 59));
    EXPECT_TRUE(is_shown(16, 30));
    EXPECT_FALSE(is_shown(17, 0));
}

} // namespace
