#include "desk/import/zone_file.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>

namespace {

using importing::Zone;
using values::DateTime;

const auto free_of_charge = [](std::size_t) {};

std::string number(std::int64_t value, int size) {
    std::string bytes;
    for (int i = size - 1; i >= 0; --i)
        bytes += static_cast<char>(static_cast<std::uint64_t>(value) >> (i * 8));
    return bytes;
}

std::string head(char version, std::int64_t times, std::int64_t types, std::int64_t leaps = 0) {
    return "TZif" + std::string(1, version) + std::string(15, '\0') + number(0, 4) + number(0, 4) +
           number(leaps, 4) + number(times, 4) + number(types, 4) + number(4, 4);
}

// An hour ahead, from 1 January 2000 two, and then by a rule.
std::string file(const std::string& rule) {
    constexpr std::int64_t in_2000 = 946684800;
    const std::string types = number(3600, 4) + std::string(2, '\0') + number(7200, 4) + std::string("\1\0", 2);
    return head('2', 0, 1) + number(0, 4) + std::string(2, '\0') + std::string("UTC\0", 4) + head('2', 1, 2) +
           number(in_2000, 8) + std::string(1, '\1') + types + std::string("ABC\0", 4) + "\n" + rule + "\n";
}

std::int64_t minutes_ahead(const std::optional<Zone>& zone, DateTime utc) {
    return (zone->wall_clock(utc).seconds() - utc.seconds()) / 60;
}

TEST(ZoneFile, HasItsChangesAndThenGoesByItsRule) {
    const auto zone = importing::zone_in_file(file("CET-1CEST,M3.5.0,M10.5.0/3"), free_of_charge);
    ASSERT_TRUE(zone);
    EXPECT_EQ(minutes_ahead(zone, DateTime::of(1999, 12, 31, 23, 59)), 60);
    EXPECT_EQ(minutes_ahead(zone, DateTime::of(2000, 1, 1)), 120);
    EXPECT_EQ(minutes_ahead(zone, DateTime::of(2024, 3, 31, 0, 59)), 60);
    EXPECT_EQ(minutes_ahead(zone, DateTime::of(2024, 3, 31, 1)), 120);
    EXPECT_EQ(minutes_ahead(zone, DateTime::of(2500, 10, 31, 0, 59)), 120);
    EXPECT_EQ(minutes_ahead(zone, DateTime::of(2500, 10, 31, 1)), 60);
}

TEST(ZoneFile, ItsRuleMayHaveOddNamesLengthsAndHours) {
    const auto zone = importing::zone_in_file(file("<+1030>-10:30<+11>-11,M10.1.0/-1,M4.1.0/26"), free_of_charge);
    ASSERT_TRUE(zone);
    EXPECT_EQ(minutes_ahead(zone, DateTime::of(2024, 7, 1)), 630);
    EXPECT_EQ(minutes_ahead(zone, DateTime::of(2024, 10, 5, 12, 29)), 630); // at 23:00 on the day before
    EXPECT_EQ(minutes_ahead(zone, DateTime::of(2024, 10, 5, 12, 30)), 660);
    EXPECT_EQ(minutes_ahead(zone, DateTime::of(2024, 4, 7, 14, 59)), 660); // at 2:00 on the day after
    EXPECT_EQ(minutes_ahead(zone, DateTime::of(2024, 4, 7, 15)), 630);
}

TEST(ZoneFile, StaysAsItIsWithoutARuleThatCanBeRead) {
    for (const char* rule :
         {"", "ABC", "ABC-2", "CET-1CEST", "CET-1CEST,J80,J300", "CET-1CEST,M13.5.0,M10.5.0",
          "CET-1CEST,M3.6.0,M10.5.0", "CET-1CEST,M3.5.7,M10.5.0", "CET-1CEST,M3.5.0", "<CET-1"}) {
        const auto zone = importing::zone_in_file(file(rule), free_of_charge);
        ASSERT_TRUE(zone) << rule;
        EXPECT_EQ(minutes_ahead(zone, DateTime::of(2024, 1, 1)), 120) << rule;
    }
}

TEST(ZoneFile, IsAbsentInAnythingElse) {
    const std::string right = file("ABC-2");
    std::string old = right;
    old[44 + 6 + 4 + 4] = '\0'; // the second block's version
    std::string without_such_type = right;
    without_such_type[44 + 6 + 4 + 44 + 8] = '\2';
    const std::string leaping =
        head('2', 0, 1) + std::string(10, '\0') + head('2', 0, 1, 1) + std::string(40, '\0');
    for (const std::string& bytes : {std::string(), std::string("root:x:0:0"), old, without_such_type, leaping})
        EXPECT_FALSE(importing::zone_in_file(bytes, free_of_charge));
    for (std::size_t size = 0; size + 7 < right.size(); ++size)
        EXPECT_FALSE(importing::zone_in_file(right.substr(0, size), free_of_charge)) << size;
}

TEST(ZoneFile, ADamagedOneIsReadWithoutHarm) {
    std::mt19937 random(8536);
    for (int round = 0; round < 5000; ++round) {
        std::string bytes = file("CET-1CEST,M3.5.0,M10.5.0/3");
        for (unsigned i = random() % 4 + 1; i > 0; --i)
            bytes[random() % bytes.size()] = static_cast<char>(random());
        if (const auto zone = importing::zone_in_file(bytes, free_of_charge)) {
            EXPECT_NO_THROW(zone->utc(DateTime::of(2024, 3, 31, 2, 30)));
        }
    }
}

} // namespace
