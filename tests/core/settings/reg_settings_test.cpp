#include "core/settings/reg_settings.h"

#include "support/fake_user_store.h"

#include <gtest/gtest.h>

using settings::CRegSettings;
using Rows = std::vector<std::array<std::string, 2>>;

namespace {

class CRegSettingsTest : public ::testing::Test {
protected:
    support::FakeUserStore store;
    CRegSettings values{store};
};

} // namespace

TEST_F(CRegSettingsTest, KeepsValuesBelowCompanyApplicationAndSection) {
    EXPECT_TRUE(values.SaveSetting("Settings", "Left", "100"));
    EXPECT_EQ(store.read("Software\\" + values.Company() + "\\Orvanta\\Settings", "Left"), "100");
    EXPECT_TRUE(values.SaveSetting("", "Top", "200"));
    EXPECT_EQ(store.read("Software\\" + values.Company() + "\\Orvanta", "Top"), "200");
}

TEST_F(CRegSettingsTest, GetSettingGivesTheDefaultOnlyForAnAbsentValue) {
    EXPECT_EQ(values.GetSetting("Settings", "Left", "DEF"), "DEF");
    EXPECT_EQ(values.GetSetting("Settings", "Left"), "");
    values.SaveSetting("Settings", "Left", "");
    EXPECT_EQ(values.GetSetting("Settings", "Left", "DEF"), "");
}

TEST_F(CRegSettingsTest, AnAsteriskIsTheValueWithoutAName) {
    EXPECT_TRUE(values.SaveSetting("Settings", "*", "nameless"));
    EXPECT_EQ(store.read("Software\\" + values.Company() + "\\Orvanta\\Settings", ""), "nameless");
    EXPECT_EQ(values.GetSetting("Settings", "*", "DEF"), "nameless");
    EXPECT_TRUE(values.DeleteSetting("Settings", "*"));
    EXPECT_EQ(values.GetSetting("Settings", "*", "DEF"), "DEF");
}

TEST_F(CRegSettingsTest, DeleteSettingDeletesOneValueOrTheWholeSection) {
    values.SaveSetting("Off", "Monday", "1");
    values.SaveSetting("Off", "Friday", "1");
    values.SaveSetting("Settings", "Left", "1");
    EXPECT_TRUE(values.DeleteSetting("Off", "Monday"));
    EXPECT_FALSE(values.DeleteSetting("Off", "Monday"));
    EXPECT_EQ(values.GetAllSettings("Off"), (Rows{{"Friday", "1"}}));
    EXPECT_TRUE(values.DeleteSetting("Off", ""));
    EXPECT_FALSE(values.DeleteSetting("Off", ""));
    EXPECT_EQ(values.GetAllSettings("Off"), Rows{});
    EXPECT_EQ(values.GetSetting("Settings", "Left"), "1");
}

TEST_F(CRegSettingsTest, DeleteSettingWithoutAnyNameDeletesNothing) {
    values.SaveSetting("Settings", "Left", "1");
    EXPECT_FALSE(values.DeleteSetting("", ""));
    EXPECT_EQ(values.GetSetting("Settings", "Left"), "1");
}

TEST_F(CRegSettingsTest, GetAllSettingsGivesNamesAndValues) {
    values.SaveSetting("Activity", "Type", "M");
    values.SaveSetting("Activity", "Date", "1/5/2024");
    EXPECT_EQ(values.GetAllSettings("Activity"), (Rows{{"Type", "M"}, {"Date", "1/5/2024"}}));
    EXPECT_EQ(values.GetAllSettings("Nothing"), Rows{});
}

TEST_F(CRegSettingsTest, CompanyAndAppNameAreStoredTrimmedAndEmptyTextsRestoreThem) {
    const std::string company = values.Company();
    EXPECT_FALSE(company.empty());
    EXPECT_EQ(values.AppName(), "Orvanta");
    values.set_Company("  Some Makers ");
    values.set_AppName(" Other ");
    EXPECT_EQ(values.Company(), "Some Makers");
    EXPECT_EQ(values.AppName(), "Other");
    values.SaveSetting("s", "a", "1");
    EXPECT_EQ(store.read("Software\\Some Makers\\Other\\s", "a"), "1");
    values.set_Company("");
    values.set_AppName("");
    EXPECT_EQ(values.Company(), company);
    EXPECT_EQ(values.AppName(), "Orvanta");
    EXPECT_EQ(values.GetSetting("s", "a", "DEF"), "DEF");
}

TEST_F(CRegSettingsTest, SaveSettingIsFalseWhenTheStoreCantBeWritten) {
    store.refuses_writes = true;
    EXPECT_FALSE(values.SaveSetting("Settings", "Left", "1"));
}
