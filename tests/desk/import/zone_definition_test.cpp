#include "desk/import/zone_definition.h"

#include <gtest/gtest.h>

namespace {

using importing::content_of;
using importing::Zone;
using values::DateTime;

const std::string offsets = "TZOFFSETFROM:+0100\nTZOFFSETTO:+0200\n";

std::optional<Zone> zone_of(const std::string& parts, std::size_t* units = nullptr) {
    const auto components = content_of("BEGIN:VTIMEZONE\nTZID:Here\n" + parts + "END:VTIMEZONE\n").components;
    return importing::zone_of(components.at(0), [&](std::size_t more) {
        if (units)
            *units += more;
    });
}

std::string part(const std::string& lines) { return "BEGIN:DAYLIGHT\n" + lines + "END:DAYLIGHT\n"; }

int hours_ahead(const std::optional<Zone>& zone, DateTime utc) {
    return static_cast<int>((zone->wall_clock(utc).seconds() - utc.seconds()) / 3600);
}

TEST(ZoneDefinition, TakesRulesDatesAndTheStartItself) {
    const auto zone =
        zone_of(part("DTSTART:20200101T000000\n" + offsets + "RRULE:FREQ=YEARLY;UNTIL=20220101T000000Z\n") +
                part("DTSTART:20200701T000000\nTZOFFSETFROM:+0200\nTZOFFSETTO:+0100\n"
                     "RDATE:20210701T000000,20220630T220000Z\n"));
    ASSERT_TRUE(zone);
    EXPECT_EQ(hours_ahead(zone, DateTime::of(2019, 1, 1)), 1);
    for (const int year : {2020, 2021})
        EXPECT_EQ(hours_ahead(zone, DateTime::of(year, 3, 1)), 2) << year;
    for (const int year : {2020, 2021, 2022, 2023})
        EXPECT_EQ(hours_ahead(zone, DateTime::of(year, 8, 1)), 1) << year;
    EXPECT_EQ(hours_ahead(zone, DateTime::of(2022, 3, 1)), 2); // 2022 began an hour before the rule's end
}

TEST(ZoneDefinition, MayBeginInTheYear1) {
    const auto zone = zone_of(part("DTSTART:00010101T000000\n" + offsets));
    ASSERT_TRUE(zone);
    EXPECT_EQ(hours_ahead(zone, DateTime::of(1900, 1, 1)), 2);
}

TEST(ZoneDefinition, OneThatIsMadeForThisCenturyTakesLittleWork) {
    std::size_t units = 0;
    EXPECT_TRUE(
        zone_of(part("DTSTART:19700329T020000\n" + offsets + "RRULE:FREQ=YEARLY;BYMONTH=3;BYDAY=-1SU\n"), &units));
    EXPECT_LT(units, 30000u);
}

class NoZone : public testing::TestWithParam<std::string> {};

TEST_P(NoZone, IsAbsent) { EXPECT_FALSE(zone_of(GetParam())); }

INSTANTIATE_TEST_SUITE_P(
    ZoneDefinition, NoZone,
    testing::Values("", part(""), part("DTSTART:20200101T000000\n"), part(offsets),
                    part("DTSTART:20200101T000000\nTZOFFSETTO:0200\n"),
                    part("DTSTART:20200101T000000\nTZOFFSETTO:+02:00\n"), part("DTSTART:once\n" + offsets),
                    part("DTSTART:20200101T000000\n" + offsets + "RRULE:FREQ=NEVER\n"),
                    part("DTSTART:20200101T000000\n" + offsets + "RDATE:20200101T000000,soon\n"),
                    // One good part doesn't make up for a bad one.
                    part("DTSTART:20200101T000000\n" + offsets) + part("DTSTART:once\n" + offsets)));

} // namespace
