#include "adapters/qt/zone_names.h"

#include <gtest/gtest.h>

TEST(ZoneNames, WindowsNamesLeadToTheZonesMainPlace) {
    EXPECT_EQ(qt::zone_name_from_windows("W. Europe Standard Time"), "Europe/Berlin");
    EXPECT_EQ(qt::zone_name_from_windows("Eastern Standard Time"), "America/New_York");
}

TEST(ZoneNames, ThereIsNoneForANameThatWindowsDoesntHave) {
    EXPECT_EQ(qt::zone_name_from_windows("Europe/Berlin"), "");
    EXPECT_EQ(qt::zone_name_from_windows(""), "");
}
