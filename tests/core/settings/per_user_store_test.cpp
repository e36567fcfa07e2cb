#include "core/settings/per_user_store.h"

#include "support/failure_number.h"
#include "support/fake_user_store.h"

#include <gtest/gtest.h>

using settings::PerUserStore;
using support::failure_number;

namespace {

class PerUserStoreTest : public ::testing::Test {
protected:
    support::FakeUserStore store;
    PerUserStore values{store};
};

} // namespace

TEST_F(PerUserStoreTest, ReadsWhatWasWrittenElseTheDefault) {
    EXPECT_EQ(values.read("Settings", "WeeklyView", "1"), "1");
    values.write("Settings", "WeeklyView", "0");
    EXPECT_EQ(values.read("Settings", "WeeklyView", "1"), "0");
    values.write("Settings", "WeeklyView", "");
    EXPECT_EQ(values.read("Settings", "WeeklyView", "1"), "");
}

TEST_F(PerUserStoreTest, SharesItsTreeWithCRegSettings) {
    values.write("Off", "Monday", "1");
    settings::CRegSettings registry(store);
    EXPECT_EQ(registry.GetSetting("Off", "Monday"), "1");
    EXPECT_TRUE(registry.DeleteSetting("Off", ""));
    EXPECT_EQ(values.read("Off", "Monday", "DEF"), "DEF");
}

TEST_F(PerUserStoreTest, RemovingFailsWith5WhenThereIsNothing) {
    EXPECT_EQ(failure_number([&] { values.remove("Activity", "For"); }), 5);
    values.write("Activity", "For", "Zoe");
    EXPECT_EQ(failure_number([&] { values.remove("Activity", "Type"); }), 5);
    EXPECT_EQ(failure_number([&] { values.remove("Activity", "For"); }), 0);
    EXPECT_EQ(values.read("Activity", "For", "DEF"), "DEF");
}

TEST_F(PerUserStoreTest, RemovingAnEmptyNameDoesntRemoveTheSection) {
    values.write("Activity", "For", "Zoe");
    EXPECT_EQ(failure_number([&] { values.remove("Activity", ""); }), 5);
    EXPECT_EQ(values.read("Activity", "For"), "Zoe");
}

TEST_F(PerUserStoreTest, RemovesAWholeSectionOrFailsWith5) {
    EXPECT_EQ(failure_number([&] { values.remove_section("Exporting"); }), 5);
    values.write("Exporting", "Progress", "0");
    values.write("Exporting", "End", "1");
    values.remove_section("Exporting");
    EXPECT_EQ(values.read("Exporting", "Progress"), "");
    EXPECT_EQ(values.read("Exporting", "End"), "");
}

TEST_F(PerUserStoreTest, WritingFailsWith5WhenTheStoreCantBeWritten) {
    store.refuses_writes = true;
    EXPECT_EQ(failure_number([&] { values.write("Settings", "Left", "1"); }), 5);
}
