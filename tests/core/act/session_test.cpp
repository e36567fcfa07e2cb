#include "core/act/session.h"

#include "support/fake_act_server.h"
#include "support/fake_message_box.h"
#include "support/fake_window.h"

#include <gtest/gtest.h>

namespace {

class SessionTest : public testing::Test {
protected:
    support::FakeMessageBox box;
    host::ApplicationInfo application{
        .title = "Orvanta", .major = 1, .minor = 0, .revision = 0, .support_address = "help@example.org"};
    support::FakeWindow window;
    host::Guard guarded{box, application, window};
    support::FakeActData data;
    support::FakeApplicationState state;
    support::FakeServer server{data, state};
    act::Session session{server, guarded};
};

TEST_F(SessionTest, BuildsEveryObjectInOrderAndShowsNothing) {
    session.Create_Database();
    EXPECT_EQ(data.calls, (std::vector<std::string>{"create application", "Application.OpenFile()",
                                                    "Application.Views", "Views.Create(CV, 2)", "create database",
                                                    "Database.OpenEx()", "Database.Contact", "Database.Activity",
                                                    "Database.Users", "Contact.Fields", "Database.Group"}));
    EXPECT_TRUE(box.shown.empty());
    EXPECT_TRUE(session.ActApp);
    EXPECT_TRUE(session.ActViews);
    EXPECT_TRUE(session.ActContactView);
    EXPECT_TRUE(session.ActDatabase);
    EXPECT_TRUE(session.ActContact);
    EXPECT_TRUE(session.ActActivity);
    EXPECT_TRUE(session.ActUsers);
    EXPECT_TRUE(session.ActFields);
    EXPECT_TRUE(session.ActGroup);
}

TEST_F(SessionTest, LeavesTheObjectThatFailedAndTheLaterOnesUnset) {
    data.failing = {"Database.Activity"};
    session.Create_Database();
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_EQ(box.shown[0].title, "Orvanta error");
    EXPECT_EQ(box.shown[0].text, "Error 440: 'Automation error'\rin frmMain: Sub Create_Database - Line # 80\r"
                                 "Orvanta: 1.0.0\r\rPlease contact help@example.org with this error message.");
    EXPECT_TRUE(session.ActContact);
    EXPECT_FALSE(session.ActActivity);
    EXPECT_FALSE(session.ActUsers);
    EXPECT_FALSE(session.ActFields);
    EXPECT_FALSE(session.ActGroup);
}

TEST_F(SessionTest, ReleasesTheApplicationAndThenClosesTheDatabase) {
    session.Create_Database();
    data.calls.clear();
    session.Release();
    EXPECT_EQ(data.calls, (std::vector<std::string>{"Application released", "Database.Close"}));
    EXPECT_FALSE(session.ActApp);
}

TEST_F(SessionTest, ReleasesTheApplicationAlsoWhereThereIsNoDatabase) {
    data.failing = {"create database"};
    session.Create_Database();
    ASSERT_TRUE(session.ActApp);
    data.calls.clear();
    session.Release();
    EXPECT_EQ(data.calls, std::vector<std::string>{"Application released"});
    EXPECT_FALSE(session.ActContactView);
    session.Release(); // nothing is left
    EXPECT_EQ(data.calls.size(), 1U);
}

TEST_F(SessionTest, TakesANewActivityListInPlaceOfTheOld) {
    session.Create_Database();
    data.add_activity("ACTIVITY0001", values::DateTime::of(2024, 1, 10, 9), "USER00000001");
    EXPECT_TRUE(session.ActActivity->isEOF());
    session.ActActivity = session.ActDatabase->Activity();
    EXPECT_FALSE(session.ActActivity->isEOF());
}

} // namespace
