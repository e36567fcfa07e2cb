#include "desk/import/zones.h"

#include <gtest/gtest.h>

namespace {

using importing::Component;
using importing::content_of;
using importing::MachineZones;
using importing::Work;
using importing::Zone;
using importing::Zones;
using values::DateTime;

std::string zone(const std::string& name, const std::string& lines) {
    return "BEGIN:VTIMEZONE\nTZID:" + name + "\n" + lines + "END:VTIMEZONE\n";
}

std::string one_offset(const std::string& offset) {
    return "BEGIN:STANDARD\nDTSTART:19700101T000000\nTZOFFSETTO:" + offset + "\nEND:STANDARD\n";
}

std::string parts(int count, const std::string& rule) {
    std::string text;
    for (int i = 0; i < count; ++i)
        text += "BEGIN:STANDARD\nDTSTART:19700101T00" + std::to_string(10 + i % 50) +
                "00\nTZOFFSETFROM:+0000\nTZOFFSETTO:+0100\nRRULE:" + rule + "\nEND:STANDARD\n";
    return text;
}

class ZonesOf : public testing::Test {
protected:
    const Zone* find(const std::string& definitions, const std::string& name) {
        calendar = content_of("BEGIN:VCALENDAR\n" + definitions + "END:VCALENDAR\n").components.at(0);
        zones.emplace(calendar, machine, work);
        return zones->find(name);
    }
    static std::int64_t hours_ahead(const Zone* zone) {
        const DateTime summer = DateTime::of(2024, 7, 1, 12);
        return zone ? (zone->wall_clock(summer).seconds() - summer.seconds()) / 3600 : -100;
    }

    Work work{1'000'000'000};
    MachineZones machine{[](const std::string& name) { return name == "Tokyo Time" ? "Asia/Tokyo" : ""; }, work};
    Component calendar{};
    std::optional<Zones> zones;
};

TEST_F(ZonesOf, TheCalendarsOwnComesFirst) {
    EXPECT_EQ(hours_ahead(find(zone("Asia/Tokyo", one_offset("+0300")), "Asia/Tokyo")), 3);
    EXPECT_EQ(hours_ahead(find(zone("A\\, B\\;C", one_offset("+0300")), "A, B;C")), 3);
}

TEST_F(ZonesOf, TheMachinesFollowsByItsNameAMakerInFrontOrAnotherName) {
    for (const char* name : {"Asia/Tokyo", "/example.org/20050126_1/Asia/Tokyo", "Tokyo Time"})
        EXPECT_EQ(hours_ahead(find("", name)), 9) << name;
    EXPECT_EQ(hours_ahead(find("", "America/Argentina/Buenos_Aires")), -3);
    EXPECT_EQ(hours_ahead(find("", "/example.org/UTC")), 0);
    EXPECT_TRUE(zones->take_unknown().empty());
}

TEST_F(ZonesOf, WhatNobodyKnowsIsRememberedOnce) {
    const std::string slashes(1000, '/');
    for (const std::string& name :
         {std::string("Nowhere"), std::string("../../../etc/passwd"), std::string("/etc/passwd"), slashes,
          std::string(100000, 'Z'), std::string(), std::string("Europe")}) {
        EXPECT_EQ(find("", name), nullptr) << name.substr(0, 50);
        EXPECT_EQ(zones->take_unknown(), std::set{name});
        EXPECT_TRUE(zones->take_unknown().empty());
    }
}

TEST_F(ZonesOf, ADefinitionThatCantBeUsedGivesWayToTheMachines) {
    EXPECT_EQ(hours_ahead(find(zone("Asia/Tokyo", ""), "Asia/Tokyo")), 9);
    EXPECT_EQ(hours_ahead(find(zone("Tokyo Time", "BEGIN:STANDARD\nEND:STANDARD\n"), "Tokyo Time")), 9);
    EXPECT_EQ(find(zone("Nowhere", one_offset("later")), "Nowhere"), nullptr);
}

TEST_F(ZonesOf, ADefinitionOfTooManyChangesTakesOnlyItsShareAndOnlyOnce) {
    for (const std::string& lines :
         {parts(1, "FREQ=SECONDLY"), parts(1, "FREQ=MINUTELY"), parts(200, "FREQ=DAILY")}) {
        const std::size_t before = work.spent();
        EXPECT_EQ(hours_ahead(find(zone("Asia/Tokyo", lines), "Asia/Tokyo")), 9);
        EXPECT_LT(work.spent() - before, 3'200'000u);
        const std::size_t once = work.spent();
        EXPECT_EQ(hours_ahead(zones->find("Asia/Tokyo")), 9);
        EXPECT_EQ(work.spent(), once);
    }
}

} // namespace
