#include "called_desk.h"

#include "contract/contact_view_proxy.h"
#include "core/act/activity.h"

namespace {

class ContactViewObject : public CalledDesk<ContactViewProxy> {
protected:
    ContactViewObject() : CalledDesk(contract::contact_view_path) {
        on_bus.run([&] {
            desk.known_contacts = {"CONTACT00001", "CONTACT0002 "};
            store::Activity call, visit;
            call.id = "ACTIVITY0001";
            visit.id = "ACTIVITY002 ";
            visit.regarding = "Besuch in Zürich — 訪問";
            visit.start = store::DateTime::of(2024, 1, 5, 9);
            desk.activities = {call, visit};
        });
    }
};

TEST_F(ContactViewObject, ReadsAndSetsTheActiveTab) {
    EXPECT_EQ(proxy.GetActiveTab().value(), "Notes");
    EXPECT_EQ(refusal(proxy.SetActiveTab("Activities")), "");
    EXPECT_EQ(proxy.GetActiveTab().value(), "Activities");
}

TEST_F(ContactViewObject, PassesTheDesksOwnRefusalOn) {
    on_bus.run([&] { desk.refusal = "There is no tab \"Größe\"."; });
    EXPECT_EQ(refusal(proxy.SetActiveTab("Größe")), "There is no tab \"Größe\".");
}

TEST_F(ContactViewObject, LooksUpTheJoinedIdsThatTheDatabaseKnows) {
    EXPECT_EQ(refusal(proxy.CreateLookup("CONTACT00001UNKNOWN00001CONTACT0002 ")), "");
    EXPECT_EQ(proxy.GetCount().value(), 2);
    on_bus.run([&] { EXPECT_EQ(desk.lookup, (std::vector<std::string>{"CONTACT00001", "CONTACT0002 "})); });
}

TEST_F(ContactViewObject, LooksUpNobodyForAnEmptyList) {
    EXPECT_EQ(refusal(proxy.CreateLookup("")), "");
    EXPECT_EQ(proxy.GetCount().value(), 0);
}

TEST_F(ContactViewObject, TellsWhichContactIsShownAfterGoto) {
    EXPECT_EQ(proxy.Goto("CONTACT0002 ").value(), "CONTACT0002 ");
    EXPECT_EQ(proxy.Goto("UNKNOWN00001").value(), "CONTACT0002 ");
}

TEST_F(ContactViewObject, ReadsAndSetsTheThreeValuesOfTheFilter) {
    const QString dates = "6\\1/1/2024\\1/8/2024";
    EXPECT_EQ(refusal(proxy.SetFilter(230, dates, "USER0000001 ")), "");
    const auto filter = proxy.GetFilter();
    EXPECT_EQ(filter.argumentAt<0>(), 230);
    EXPECT_EQ(filter.argumentAt<1>(), dates);
    EXPECT_EQ(filter.argumentAt<2>(), "USER0000001 ");
}

TEST_F(ContactViewObject, ReadsTheRowsOfTheList) {
    EXPECT_EQ(proxy.GetRowCount().value(), 2);
    EXPECT_EQ(proxy.GetField(act::activity_field::id, 0).value(), "ACTIVITY0001");
    EXPECT_EQ(proxy.GetField(act::activity_field::id, 1).value(), "ACTIVITY002 ");
    EXPECT_EQ(proxy.GetField(act::activity_field::regarding, 1).value(), "Besuch in Zürich — 訪問");
    EXPECT_EQ(proxy.GetField(act::activity_field::start, 1).value(), "1/5/2024 9:00:00 AM");
}

TEST_F(ContactViewObject, SelectsARow) {
    EXPECT_EQ(refusal(proxy.SelectRow(1, true)), "");
    EXPECT_EQ(refusal(proxy.SelectRow(0, false)), "");
    on_bus.run([&] { EXPECT_EQ(desk.selected, (std::map<int, bool>{{1, true}, {0, false}})); });
}

TEST_F(ContactViewObject, RefusesRowsThatTheListDoesNotHave) {
    EXPECT_EQ(refusal(proxy.GetField(1, -1)), "The list of activities has no row -1.");
    EXPECT_EQ(refusal(proxy.GetField(1, 2)), "The list of activities has no row 2.");
    EXPECT_EQ(refusal(proxy.SelectRow(2, true)), "The list of activities has no row 2.");
    on_bus.run([&] { EXPECT_TRUE(desk.selected.empty()); });
}

TEST_F(ContactViewObject, RefusesEveryMemberWithoutADatabase) {
    on_bus.run([&] { desk.path.clear(); });
    const std::string sentence = "No database is open in the contact desk.";
    EXPECT_EQ(refusal(proxy.GetActiveTab()), sentence);
    EXPECT_EQ(refusal(proxy.SetActiveTab("Notes")), sentence);
    EXPECT_EQ(refusal(proxy.CreateLookup("")), sentence);
    EXPECT_EQ(refusal(proxy.GetCount()), sentence);
    EXPECT_EQ(refusal(proxy.Goto("CONTACT00001")), sentence);
    EXPECT_EQ(refusal(proxy.GetFilter()), sentence);
    EXPECT_EQ(refusal(proxy.SetFilter(228, "1", "")), sentence);
    EXPECT_EQ(refusal(proxy.GetRowCount()), sentence);
    EXPECT_EQ(refusal(proxy.GetField(1, 0)), sentence);
    EXPECT_EQ(refusal(proxy.SelectRow(0, true)), sentence);
}

} // namespace
