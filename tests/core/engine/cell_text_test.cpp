#include "core/engine/cell_text.h"

#include "engine_world.h"

#include <gtest/gtest.h>

namespace {

using support::EngineWorld;
using values::DateTime;
namespace field = act::activity_field;

class CellTextTest : public testing::Test {
protected:
    CellTextTest() {
        activity_ = &world_.add("Meet", DateTime::of(2024, 1, 10, 9, 5));
        world_.open_week();
    }

    // The extra field of a line in the weekly view.
    void have_field(int line, const std::string& number, const std::string& label = "",
                    const std::string& new_line = "0") {
        const std::string i = std::to_string(line);
        world_.set("Fields", "WeeklyField" + i, number);
        world_.set("Fields", "WeeklyLabel" + i, label);
        world_.set("Fields", "WeeklyNewLine" + i, new_line);
    }
    std::map<int, values::Value>& contact() { return world_.act_data.contacts["contact-----"]; }
    std::string text() {
        world_.engine.cell_text.read_settings();
        return world_.engine.cell_text.GetContactInfo("contact-----", EngineWorld::user_id("Meet"));
    }

    EngineWorld world_;
    support::FakeActivityRecord* activity_;
};

TEST_F(CellTextTest, BeginsWithTheContactFieldOnDisplay) {
    contact()[25] = std::string("Smith Ltd");
    EXPECT_EQ(text(), "Chris Smith");
    world_.engine.cell_text.DisplayContactField = 25;
    EXPECT_EQ(text(), "Smith Ltd");
}

TEST_F(CellTextTest, AppendsExtraFieldsOnTheLineOrOnANewOne) {
    contact()[27] = std::string("Manager");
    contact()[30] = std::string("555-1234");
    have_field(0, "27", "", "1");
    have_field(1, "30");
    EXPECT_EQ(text(), "Chris Smith\rManager, 555-1234");
}

TEST_F(CellTextTest, PutsALabelAndABlankBeforeTheValue) {
    contact()[27] = std::string("Manager");
    have_field(0, "27", "Title:", "1");
    EXPECT_EQ(text(), "Chris Smith\rTitle: Manager");
}

TEST_F(CellTextTest, OnlyTheTextOneBeginsANewLine) {
    contact()[27] = std::string("Manager");
    have_field(0, "27", "", "01");
    EXPECT_EQ(text(), "Chris Smith, Manager");
}

TEST_F(CellTextTest, AnEmptyValueLeavesItsLabelOut) {
    contact()[30] = std::string("555-1234");
    have_field(0, "27", "Title:", "1");
    have_field(1, "30");
    EXPECT_EQ(text(), "Chris Smith, 555-1234");
}

TEST_F(CellTextTest, TheFieldNoneShowsNothing) {
    have_field(0, "0", "Label");
    EXPECT_EQ(text(), "Chris Smith");
}

TEST_F(CellTextTest, TheDefaultsAreFourFieldsOfTheContact) {
    world_.ini.DeleteSection("Fields");
    contact()[27] = std::string("a");
    contact()[30] = std::string("b");
    contact()[31] = std::string("c");
    contact()[35] = std::string("d");
    EXPECT_EQ(text(), "Chris Smith\ra\rb, c\rd");
}

TEST_F(CellTextTest, AnEmptyFirstFieldGivesATextThatBeginsWithTheSeparator) {
    contact().erase(26);
    contact()[27] = std::string("Manager");
    have_field(0, "27", "", "1");
    EXPECT_EQ(text(), "\rManager");
    have_field(0, "27", "", "0");
    EXPECT_EQ(text(), ", Manager");
}

TEST_F(CellTextTest, ThereIsNoSeventhExtraField) {
    contact()[27] = std::string("Manager");
    contact()[28] = std::string("Sales");
    have_field(5, "27");
    have_field(6, "28");
    EXPECT_EQ(text(), "Chris Smith, Manager");
}

TEST_F(CellTextTest, TheDailyViewHasFieldsOfItsOwn) {
    contact()[27] = std::string("Manager");
    world_.set("Fields", "DailyField0", "27");
    EXPECT_EQ(text(), "Chris Smith");
    world_.calendar.layout.NumDays(1);
    EXPECT_EQ(text(), "Chris Smith\rManager");
}

TEST_F(CellTextTest, NineHundredAndAThousandAreContactFields) {
    contact()[900] = std::string("low");
    contact()[1000] = std::string("high");
    activity_->fields[0] = std::string("activity's low");
    activity_->fields[100] = std::string("activity's high");
    have_field(0, "900");
    have_field(1, "1000");
    EXPECT_EQ(text(), "Chris Smith, low, high");
}

TEST_F(CellTextTest, NineHundredAndOneToNineHundredAndNinetyNineAreActivityFields) {
    activity_->fields[99] = std::string("last");
    activity_->fields[1] = EngineWorld::user_id("Meet");
    have_field(0, "901");
    have_field(1, "999");
    EXPECT_EQ(text(), "Chris Smith, " + EngineWorld::user_id("Meet") + ", last");
}

TEST_F(CellTextTest, AFieldThatNobodyCanHaveShowsNothing) {
    have_field(0, "99999999999999");
    have_field(1, "-5");
    have_field(2, "abc");
    EXPECT_EQ(text(), "Chris Smith");
    EXPECT_TRUE(world_.box.shown.empty());
}

TEST_F(CellTextTest, ShowsThePriorityByItsName) {
    have_field(0, "926");
    EXPECT_EQ(text(), "Chris Smith, Low");
    activity_->fields[field::priority] = std::int64_t{0};
    EXPECT_EQ(text(), "Chris Smith, High");
    activity_->fields[field::priority] = std::int64_t{1};
    EXPECT_EQ(text(), "Chris Smith, Medium");
}

TEST_F(CellTextTest, APriorityWithoutANameFails) {
    have_field(0, "926");
    activity_->fields[field::priority] = std::int64_t{3};
    EXPECT_EQ(text(), "");
    EXPECT_EQ(world_.failures(),
              std::vector<std::string>{
                  "Error 9: 'Subscript out of range'\rin modRefresh: Function GetContactInfo - Line # 40"});
}

TEST_F(CellTextTest, ShowsRegardingAndDetails) {
    activity_->fields[field::regarding] = std::string("Offer");
    activity_->fields[field::details] = std::string("Bring a pen");
    have_field(0, "927");
    have_field(1, "945", "", "1");
    EXPECT_EQ(text(), "Chris Smith, Offer\rBring a pen");
}

TEST_F(CellTextTest, ShowsDateAndTimeOfTheStart) {
    have_field(0, "928");
    have_field(1, "929");
    EXPECT_EQ(text(), "Chris Smith, 1/10/2024, 09:05 AM");
}

TEST_F(CellTextTest, AStartThatIsNoDateIsShownAsItStands) {
    activity_->fields[field::start] = std::string("some day");
    have_field(0, "928");
    EXPECT_EQ(text(), "Chris Smith, some day");
}

TEST_F(CellTextTest, ShowsTheUserByName) {
    have_field(0, "937", "For");
    EXPECT_EQ(text(), "Chris Smith, For Ann");
    activity_->fields[field::scheduled_for] = std::string("nobody------");
    EXPECT_EQ(text(), "Chris Smith");
}

TEST_F(CellTextTest, AUserIdThatLostItsBlankIsFoundAllTheSame) {
    world_.act_data.users.push_back({.id = "Carol------ ", .name = "Carol", .security = "", .access = ""});
    activity_->fields[field::scheduled_for] = std::string("Carol------");
    have_field(0, "937");
    EXPECT_EQ(text(), "Chris Smith, Carol");
}

TEST_F(CellTextTest, ShowsTheGroupByName) {
    world_.act_data.groups["group-------"] = {{1, std::string("group-------")}, {25, std::string("Customers")}};
    activity_->fields[field::group] = std::string("group-------");
    have_field(0, "939");
    EXPECT_EQ(text(), "Chris Smith, Customers");
}

TEST_F(CellTextTest, AGroupThatIsNotThereHasNoName) {
    world_.act_data.groups["group-------"] = {{1, std::string("another id--")}, {25, std::string("Customers")}};
    EXPECT_EQ(world_.engine.cell_text.GetGroupName("group-------"), "");
    EXPECT_EQ(world_.engine.cell_text.GetGroupName("missing-----"), "");
}

TEST_F(CellTextTest, BringsPhoneNumbersOfAContactIntoTheirForm) {
    contact()[30] = std::string("+1 (555) 123-4567");
    contact()[32] = std::string("+1 555 123 4567");
    have_field(0, "30");
    have_field(1, "32");
    EXPECT_EQ(text(), "Chris Smith, (555) 123-4567, +1 555 123 4567");
}

TEST_F(CellTextTest, LeavesPhoneNumbersOfAnActivityAlone) {
    activity_->fields[field::regarding] = std::string("+1 (555) 123-4567");
    have_field(0, "927");
    EXPECT_EQ(text(), "Chris Smith, +1 (555) 123-4567");
}

TEST_F(CellTextTest, AContactThatIsNotThereGivesAnEmptyText) {
    world_.engine.cell_text.read_settings();
    EXPECT_EQ(world_.engine.cell_text.GetContactInfo("missing-----", EngineWorld::user_id("Meet")), "");
}

TEST_F(CellTextTest, LeavesBothObjectsOnTheirRecords) {
    text();
    EXPECT_EQ(world_.session.ActContact->Data(26), values::Value(std::string("Chris Smith")));
    EXPECT_EQ(world_.session.ActActivity->Data(field::id), values::Value(EngineWorld::user_id("Meet")));
}

} // namespace
