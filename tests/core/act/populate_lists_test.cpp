#include "core/act/populate_lists.h"

#include "support/fake_act_server.h"
#include "support/fake_message_box.h"
#include "support/fake_window.h"

#include <gtest/gtest.h>

namespace {

using Texts = std::vector<std::string>;

class PopulateListsTest : public testing::Test {
protected:
    PopulateListsTest() { session.Create_Database(); }

    Texts texts() const {
        Texts all;
        for (int index = 0; index < list.ListCount(); ++index)
            all.push_back(list.List(index));
        return all;
    }
    std::vector<int> numbers() const {
        std::vector<int> all;
        for (int index = 0; index < list.ListCount(); ++index)
            all.push_back(list.ItemData(index));
        return all;
    }

    support::FakeMessageBox box;
    host::ApplicationInfo application{.title = "Orvanta", .support_address = "help@example.org"};
    support::FakeWindow window;
    host::Guard guarded{box, application, window};
    support::FakeActData data;
    support::FakeApplicationState state;
    support::FakeServer server{data, state};
    act::Session session{server, guarded};
    act::ListPopulator lists{session, guarded};
    act::ItemList list;
};

class PopulateUsers : public PopulateListsTest {
protected:
    PopulateUsers() {
        data.users = {{"ANN---------", "Ann", "Administrator", "Enabled"},
                      {"BOB---------", "Bob", "Standard", "Enabled"},
                      {"CEM---------", "Cem", "Standard", "Disabled"}};
    }
};

TEST_F(PopulateUsers, ListsAllUsersWhenBothTextsAreEmpty) {
    lists.Populate_cboUsers(list, {});
    EXPECT_EQ(texts(), (Texts{"Ann", "Bob", "Cem"}));
    EXPECT_EQ(numbers(), (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(PopulateUsers, BeginsWithAnEmptyEntryWhenAsked) {
    list.AddItem("from before");
    lists.Populate_cboUsers(list, {.with_empty_entry = true});
    EXPECT_EQ(texts(), (Texts{"", "Ann", "Bob", "Cem"}));
    EXPECT_EQ(list.ItemData(0), 0);
}

TEST_F(PopulateUsers, TakesThoseWhoseSecurityHoldsTheText) {
    lists.Populate_cboUsers(list, {.security = "Stand"});
    EXPECT_EQ(texts(), (Texts{"Bob", "Cem"}));
    EXPECT_EQ(numbers(), (std::vector<int>{2, 3}));
}

TEST_F(PopulateUsers, LetsTheAccessTextOverruleTheSecurityText) {
    lists.Populate_cboUsers(list, {.security = "Standard", .access = "Enabled"});
    EXPECT_EQ(texts(), (Texts{"Ann", "Bob"}));
}

TEST_F(PopulateUsers, SelectsTheTopItemOrTheEntryOfThatName) {
    lists.Populate_cboUsers(list, {.select = "vbTopItem"});
    EXPECT_EQ(list.ListIndex(), 0);
    lists.Populate_cboUsers(list, {.select = "Cem"});
    EXPECT_EQ(list.ListIndex(), 2);
    lists.Populate_cboUsers(list, {.select = "Dora"});
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(PopulateUsers, FindsAUsersNameAndPositionByTheId) {
    std::string id = "BOB---------";
    EXPECT_EQ(lists.GetUserDetails(id), (std::array<std::string, 2>{"Bob", "2"}));
    std::string unknown = "DORA--------";
    EXPECT_EQ(lists.GetUserDetails(unknown), (std::array<std::string, 2>{"", ""}));
}

TEST_F(PopulateUsers, TakesAnIdOf11CharactersForTheOneWithABlankBehindIt) {
    data.users[1].id = "BOB-------- ";
    std::string id = "BOB--------";
    EXPECT_EQ(lists.GetUserDetails(id), (std::array<std::string, 2>{"Bob", "2"}));
    EXPECT_EQ(id, "BOB-------- ");
}

TEST_F(PopulateUsers, ShowsTheFailureBoxWithoutASession) {
    session.ActUsers.release();
    std::string id = "BOB---------";
    EXPECT_EQ(lists.GetUserDetails(id), (std::array<std::string, 2>{"", ""}));
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_NE(box.shown[0].text.find("Error 91: "), std::string::npos);
    EXPECT_NE(box.shown[0].text.find("in modPopulateACTLists: Function GetUserDetails - Line # 20"),
              std::string::npos);
}

class PopulateFields : public PopulateListsTest {
protected:
    PopulateFields() {
        data.fields = {
            {25, "Company", "1", false}, {}, {26, "Contact", "1", false},    {27, "Title", "2", true},
            {28, "Picture", "7", false}, {}, {202, "Edited by", "1", false}, {204, "Region", "1", false}};
    }
    void populate(act::PopupMode mode, const std::string& select = "") {
        list.Clear();
        lists.Populate_cboFields(list, std::string(act::offered_field_types), mode, "", select);
    }
};

TEST_F(PopulateFields, OffersTheFieldsOfAcceptedTypesPastTheGaps) {
    populate(act::PopupMode::any);
    EXPECT_EQ(texts(), (Texts{"Company", "Contact", "Title", "Region"})); // the last one is reached too
    EXPECT_EQ(numbers(), (std::vector<int>{25, 26, 27, 204}));
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(PopulateFields, LetsThePopupModeDecideAmongAcceptedTypes) {
    populate(act::PopupMode::only_with);
    EXPECT_EQ(texts(), (Texts{"Title"}));
    populate(act::PopupMode::only_without);
    EXPECT_EQ(texts(), (Texts{"Company", "Contact", "Region"}));
}

TEST_F(PopulateFields, NeverOffersATypeOutsideTheListWhateverThePopupMode) {
    for (const auto mode : {act::PopupMode::any, act::PopupMode::only_with, act::PopupMode::only_without})
        EXPECT_FALSE(lists.Include_Field(28, std::string(act::offered_field_types), mode, ""));
    EXPECT_FALSE(lists.Include_Field(27, "|1|", act::PopupMode::only_with, ""));
}

TEST_F(PopulateFields, ComparesTypesWholeNotAsPartsOfOthers) {
    EXPECT_FALSE(lists.Include_Field(25, "|14|15|", act::PopupMode::any, ""));
    EXPECT_TRUE(lists.Include_Field(25, "|14|1|", act::PopupMode::any, ""));
}

TEST_F(PopulateFields, RefusesTheTwoFieldsThatAreNobodysToShow) {
    EXPECT_FALSE(lists.Include_Field(202, "|1|", act::PopupMode::any, ""));
    data.fields.push_back({203, "Created by", "1", false});
    EXPECT_FALSE(lists.Include_Field(203, "|1|", act::PopupMode::any, ""));
}

TEST_F(PopulateFields, SelectsByTheFieldsIdOrTheTopItem) {
    populate(act::PopupMode::any, "26");
    EXPECT_EQ(list.ListIndex(), 1);
    populate(act::PopupMode::any, "vbTopItem");
    EXPECT_EQ(list.ListIndex(), 0);
    populate(act::PopupMode::any, "99");
    EXPECT_EQ(list.ListIndex(), -1);
}

// Fields of which the store refuses some positions outright, where others give -1.
class FieldsWithRejectedPositions : public act::Fields {
public:
    int Count() const override { return 2; }
    int ID(int position) const override {
        if (position % 3 != 2)
            throw values::Failure(values::FailureNumber::automation);
        return position;
    }
    std::string Label(int id) const override { return "Field " + std::to_string(id); }
    std::string Type(int) const override { return "1"; }
    bool HasPopupList(int) const override { return false; }
};

TEST_F(PopulateFields, GoesOnPastPositionsThatTheStoreRejects) {
    FieldsWithRejectedPositions rejecting;
    session.ActFields = rejecting;
    populate(act::PopupMode::any);
    EXPECT_EQ(texts(), (Texts{"Field 2", "Field 5"}));
    EXPECT_TRUE(box.shown.empty());
}

class FieldsThatAreNeverFound : public FieldsWithRejectedPositions {
public:
    int ID(int) const override { throw values::Failure(values::FailureNumber::automation); }
};

TEST_F(PopulateFields, EndsWithTheFailureBoxWhenTheCountIsNeverReached) {
    FieldsThatAreNeverFound none;
    session.ActFields = none;
    populate(act::PopupMode::any);
    EXPECT_EQ(list.ListCount(), 0);
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_NE(box.shown[0].text.find("Error 6: "), std::string::npos);
}

TEST_F(PopulateListsTest, ListsTheActivityFieldsInTheOrderShown) {
    lists.Populate_cboActyFields(list);
    EXPECT_EQ(texts(),
              (Texts{"__None", "_Activity Date", "_Activity Details", "_Activity Time", "_Activity Priority",
                     "_Activity Regarding", "_Activity Scheduled For", "_Activity Group"}));
    EXPECT_EQ(numbers(), (std::vector<int>{0, 928, 945, 929, 926, 927, 937, 939}));
}

} // namespace
