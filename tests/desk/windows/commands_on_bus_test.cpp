#include "contract/application_proxy.h"
#include "contract/contact_view_proxy.h"
#include "contract/names.h"
#include "desk/service/service.h"
#include "desk/windows/activity_dialog.h"
#include "desk/windows/clear_dialog.h"
#include "desk/windows/desk_window.h"
#include "desk/windows/open_toolbar_commands.h"
#include "desk_fixture.h"
#include "support/fake_mail_program.h"
#include "support/private_bus.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>

using namespace windows;

namespace {

// The whole desk on a bus of its own, and what another program calls it by.
class CommandsOnBusTest : public DeskTest {
protected:
    CommandsOnBusTest() {
        EXPECT_EQ(service.register_on(bus.connection()), service::Service::Registration::done);
        window.open(path);
        window.show();
    }

    // The answer, for which the desk's own events go on meanwhile.
    template <typename... Types>
    static QDBusPendingReply<Types...> answer(QDBusPendingReply<Types...> reply) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return reply.isFinished(); }, 10000));
        return reply;
    }
    static std::string refusal(QDBusPendingReply<> reply) {
        answer(reply);
        return reply.isError() ? reply.error().message().toStdString() : "";
    }
    QDBusPendingReply<> command(act::CommandNumber number) {
        return application.Command(static_cast<int>(number));
    }

    template <typename Dialog>
    Dialog* dialog() {
        const auto open = [this]() -> Dialog* {
            for (auto* found : window.findChildren<Dialog*>())
                if (found->isVisible())
                    return found;
            return nullptr;
        };
        EXPECT_TRUE(QTest::qWaitFor([&] { return open() != nullptr; }, 10000));
        return open();
    }
    // As the calendar does before it edits an activity.
    void select_activity(const std::string& id, int mask) {
        const auto record = *elsewhere()->activity(id);
        const auto contact = QString::fromStdString(record.contacts.front());
        EXPECT_EQ(answer(view.Goto(contact)).value(), contact);
        answer(view.SetActiveTab("Activities"));
        answer(view.SetFilter(mask, "1", QString::fromStdString(record.user)));
        const int rows = answer(view.GetRowCount()).value();
        for (int row = 0; row < rows; ++row)
            if (answer(view.GetField(1, row)).value().toStdString() == id)
                answer(view.SelectRow(row, true));
    }
    static void press_ok(QDialog& dialog) {
        QTest::keyClick(child<QLineEdit>(dialog, "regarding_edit"), Qt::Key_Return);
    }

    support::PrivateBus bus;
    support::FakeMailProgram mail_program;
    DeskWindow window{database, Exchange()};
    OpenToolbarCommands toolbar{database};
    service::Service service{window.desk(), toolbar, values::english_us()};
    QDBusConnection caller = bus.connection();
    ApplicationProxy application{contract::bus_name, contract::application_path, caller};
    ContactViewProxy view{contract::bus_name, contract::contact_view_path, caller};
};

} // namespace

TEST_F(CommandsOnBusTest, SchedulesForTheContactShownAndAnswersWhenTheActivityIsStored) {
    answer(view.Goto(QString::fromStdString(cedar)));
    auto reply = command(act::CommandNumber::schedule_activity);
    auto* schedule = dialog<ActivityDialog>();
    ASSERT_NE(schedule, nullptr);
    EXPECT_FALSE(reply.isFinished());
    EXPECT_EQ(answer(application.GetOpenDBName()).value().toStdString(), path);
    type(child<QLineEdit>(*schedule, "regarding_edit"), "New one");
    press_ok(*schedule);
    EXPECT_EQ(refusal(reply), "");
    store::ActivityQuery of_cedar;
    of_cedar.contact = cedar;
    of_cedar.from = at(3, 6);
    const auto found = elsewhere()->activities(of_cedar);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].regarding, "New one");
}

TEST_F(CommandsOnBusTest, EditsTheSelectedActivity) {
    select_activity(meeting, 232);
    auto reply = command(act::CommandNumber::edit_activity);
    auto* edit = dialog<ActivityDialog>();
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(child<QTabWidget>(*edit, "tabs")->currentIndex(), 0);
    retype(child<QLineEdit>(*edit, "regarding_edit"), "Other plan");
    press_ok(*edit);
    EXPECT_EQ(refusal(reply), "");
    EXPECT_EQ(elsewhere()->activity(meeting)->regarding, "Other plan");
}

TEST_F(CommandsOnBusTest, ShowsTheDetailsOfTheSelectedActivity) {
    select_activity(call, 228);
    auto reply = command(act::CommandNumber::activity_details);
    auto* edit = dialog<ActivityDialog>();
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(child<QTabWidget>(*edit, "tabs")->currentWidget()->objectName(), "details_tab");
    QTest::keyClick(edit, Qt::Key_Escape);
    EXPECT_EQ(refusal(reply), "");
}

TEST_F(CommandsOnBusTest, ClearsTheSelectedActivityAndOpensItAgain) {
    select_activity(call, 228);
    auto reply = command(act::CommandNumber::clear_activity);
    press_ok(*dialog<ClearDialog>());
    EXPECT_EQ(refusal(reply), "");
    EXPECT_TRUE(elsewhere()->activity(call)->cleared);
    select_activity(call, 228 + 2);
    reply = command(act::CommandNumber::clear_activity);
    auto* clear = dialog<ClearDialog>();
    QTest::keyClick(child<QWidget>(*clear, "cleared_box"), Qt::Key_Space);
    press_ok(*clear);
    EXPECT_EQ(refusal(reply), "");
    EXPECT_FALSE(elsewhere()->activity(call)->cleared);
}

TEST_F(CommandsOnBusTest, SendsTheSelectedActivity) {
    mail_program.install(0);
    select_activity(call, 228);
    EXPECT_EQ(refusal(command(act::CommandNumber::send_activity)), "");
    EXPECT_EQ(mail_program.given().value(2), "Call: Ask for prices");
}

TEST_F(CommandsOnBusTest, SendingWithoutAMailProgramAnswersWhenItsBoxHasClosed) {
    select_activity(call, 228);
    auto reply = command(act::CommandNumber::send_activity);
    auto* box = dialog<QMessageBox>();
    ASSERT_NE(box, nullptr);
    EXPECT_FALSE(reply.isFinished());
    QTest::keyClick(box, Qt::Key_Escape);
    EXPECT_EQ(refusal(reply), "");
}

TEST_F(CommandsOnBusTest, BringsUpTheContactView) {
    window.showMinimized();
    EXPECT_EQ(refusal(command(act::CommandNumber::show_contact_view)), "");
    EXPECT_FALSE(window.isMinimized());
    EXPECT_EQ(child<QStackedWidget>(window, "views")->currentWidget()->objectName(), "contact_view");
}

TEST_F(CommandsOnBusTest, WithoutASelectedActivityTheCommandsFail) {
    answer(view.Goto(QString::fromStdString(dahlia)));
    for (const auto number : {act::CommandNumber::edit_activity, act::CommandNumber::clear_activity,
                              act::CommandNumber::activity_details, act::CommandNumber::send_activity})
        EXPECT_EQ(refusal(command(number)), "No activity is selected.");
}

TEST_F(CommandsOnBusTest, ADialogThatTheWindowManagerClosesAnswersToo) {
    select_activity(call, 228);
    auto edited = command(act::CommandNumber::edit_activity);
    dialog<ActivityDialog>()->close();
    EXPECT_EQ(refusal(edited), "");
    auto cleared = command(act::CommandNumber::clear_activity);
    dialog<ClearDialog>()->close();
    EXPECT_EQ(refusal(cleared), "");
    EXPECT_FALSE(elsewhere()->activity(call)->cleared);
}

TEST_F(CommandsOnBusTest, TheDatabaseClosingTakesTheDialogWithItAndAnswers) {
    for (const auto number : {act::CommandNumber::schedule_activity, act::CommandNumber::clear_activity,
                              act::CommandNumber::send_activity}) {
        window.open(path);
        select_activity(call, 228);
        auto reply = command(number);
        auto* open = dialog<QDialog>();
        ASSERT_NE(open, nullptr);
        database.close();
        EXPECT_EQ(refusal(reply), "");
        EXPECT_TRUE(QTest::qWaitFor([&] { return window.findChildren<QDialog*>().isEmpty(); }));
    }
    EXPECT_FALSE(elsewhere()->activity(call)->cleared);
}

TEST_F(CommandsOnBusTest, TheDialogsAnswerOnlyToTheirOwnCommand) {
    select_activity(call, 228);
    auto first = command(act::CommandNumber::edit_activity);
    auto* edit = dialog<ActivityDialog>();
    EXPECT_EQ(refusal(command(act::CommandNumber::schedule_activity)),
              "The contact desk is still busy with another command.");
    EXPECT_FALSE(first.isFinished());
    QTest::keyClick(edit, Qt::Key_Escape);
    EXPECT_EQ(refusal(first), "");
}

TEST_F(CommandsOnBusTest, ACommandIsRefusedWhileTheUserHasADialogOfTheirOwn) {
    answer(view.Goto(QString::fromStdString(cedar)));
    child<QAction>(window, "schedule_call")->trigger();
    EXPECT_EQ(refusal(command(act::CommandNumber::schedule_activity)),
              "Another activity is being worked on already. Close its dialog first.");
}

TEST_F(CommandsOnBusTest, TheListHoldsWhatAContactTakesPartInAsAFurtherOne) {
    answer(view.Goto(QString::fromStdString(birch)));
    answer(view.SetFilter(232, "6\\3/8/2024\\3/9/2024", QString::fromStdString(bert)));
    ASSERT_EQ(answer(view.GetRowCount()).value(), 1);
    EXPECT_EQ(answer(view.GetField(1, 0)).value().toStdString(), meeting);
}

TEST_F(CommandsOnBusTest, ALookupIsCountedInTheWindow) {
    answer(view.CreateLookup(QString::fromStdString(birch + "NOBODY000000" + cedar)));
    EXPECT_EQ(answer(view.GetCount()).value(), 2);
    EXPECT_EQ(child<QLabel>(window, "record_count")->text(), "2 of 4 contacts");
}
