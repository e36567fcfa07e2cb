#include "adapters/qt/qt_files.h"
#include "adapters/qt/qt_shell.h"
#include "adapters/qt/qt_user_store.h"
#include "contract/application_proxy.h"
#include "contract/names.h"
#include "core/settings/per_user_store.h"
#include "desk/service/service.h"
#include "desk/windows/activity_dialog.h"
#include "desk/windows/activity_list.h"
#include "desk/windows/desk_fixture.h"
#include "desk/windows/desk_window.h"
#include "desk/windows/open_toolbar_commands.h"
#include "support/private_bus.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTabWidget>

using namespace windows;

namespace {

// The program itself, started as the calendar does, beside the whole desk on a bus of its own.
class ActivityWinTest : public DeskTest {
protected:
    ActivityWinTest() {
        qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8());
        EXPECT_EQ(service.register_on(bus.connection()), service::Service::Registration::done);
        window.open(path);
        window.show();
        values.write("Activity", "Type", "C");
        values.write("Activity", "Date", "4/12/2024");
        values.write("Activity", "Time", "3:15:00 PM");
        values.write("Activity", "Duration", "45");
        values.write("Activity", "Regarding", "From the calendar");
        values.write("Activity", "Priority", "H");
        values.write("Activity", "For", "Bert Cole");
    }

    std::unique_ptr<host::UserStore> make_user_store() {
        qputenv("XDG_CONFIG_HOME", folder.path().c_str());
        return qt::make_user_store(*files);
    }
    void start_companion() { EXPECT_TRUE(qt::make_shell()->start_companion("ActivityWin")); }
    QDBusPendingReply<> command(act::CommandNumber number) {
        return application.Command(static_cast<int>(number));
    }
    ActivityDialog* dialog() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return window.findChild<ActivityDialog*>() != nullptr; }, 10000));
        return window.findChild<ActivityDialog*>();
    }
    static QString regarding(const ActivityDialog& dialog) {
        return child<QLineEdit>(dialog, "regarding_edit")->text();
    }
    static void expect_filled(const ActivityDialog& dialog) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return !regarding(dialog).isEmpty(); }, 10000));
        EXPECT_EQ(child<QComboBox>(dialog, "type_box")->currentText(), "Call");
        EXPECT_EQ(child<QLineEdit>(dialog, "date_edit")->text(), "4/12/2024");
        EXPECT_EQ(child<QComboBox>(dialog, "time_edit")->currentText(), "3:15 PM");
        EXPECT_EQ(child<QSpinBox>(dialog, "duration_box")->value(), 45);
        EXPECT_EQ(regarding(dialog), "From the calendar");
        EXPECT_EQ(child<QComboBox>(dialog, "priority_box")->currentText(), "High");
        EXPECT_EQ(child<QComboBox>(dialog, "user_box")->currentText(), "Bert Cole");
    }

    support::PrivateBus bus;
    std::unique_ptr<host::Files> files = qt::make_files();
    std::unique_ptr<host::UserStore> user_store = make_user_store();
    settings::PerUserStore values{*user_store};
    DeskWindow window{database, Exchange()};
    OpenToolbarCommands toolbar{database};
    service::Service service{window.desk(), toolbar, values::english_us()};
    QDBusConnection caller = bus.connection();
    ApplicationProxy application{contract::bus_name, contract::application_path, caller};
};

} // namespace

TEST_F(ActivityWinTest, FillsTheDialogThatOpensBehindItAndTheActivityIsStoredSo) {
    start_companion();
    QTest::qWait(300);
    auto reply = command(act::CommandNumber::schedule_activity);
    auto* schedule = dialog();
    expect_filled(*schedule);
    QTest::keyClick(child<QLineEdit>(*schedule, "regarding_edit"), Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return reply.isFinished(); }));
    store::ActivityQuery that_day;
    that_day.from = at(4, 12);
    that_day.to = at(4, 13);
    const auto found = elsewhere()->activities(that_day);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].start, at(4, 12, 15, 15));
    EXPECT_EQ(found[0].user, bert);
    EXPECT_EQ(found[0].type, store::ActivityType::call);
}

TEST_F(ActivityWinTest, FillsTheDialogThatIsOpenAlready) {
    command(act::CommandNumber::schedule_activity);
    auto* schedule = dialog();
    start_companion();
    expect_filled(*schedule);
}

TEST_F(ActivityWinTest, ValuesThatCantBeReadLeaveTheFieldsAsTheyAre) {
    values.write("Activity", "Type", "X");
    values.write("Activity", "Date", "the day after");
    values.write("Activity", "Time", "late");
    values.write("Activity", "Duration", "-5");
    values.write("Activity", "Priority", "");
    values.write("Activity", "For", "Nobody Known");
    start_companion();
    command(act::CommandNumber::schedule_activity);
    auto* schedule = dialog();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !regarding(*schedule).isEmpty(); }, 10000));
    EXPECT_EQ(child<QComboBox>(*schedule, "type_box")->currentText(), "Meeting");
    EXPECT_EQ(child<QLineEdit>(*schedule, "date_edit")->text(), "3/6/2024");
    EXPECT_EQ(child<QComboBox>(*schedule, "time_edit")->currentText(), "10:30 AM");
    EXPECT_EQ(child<QSpinBox>(*schedule, "duration_box")->value(), 60);
    EXPECT_EQ(child<QComboBox>(*schedule, "user_box")->currentText(), "Anna Berg");
}

TEST_F(ActivityWinTest, BringsTheRecurringTabToTheFrontAndForgetsTheWord) {
    values.write("Activity", "RecurringEdit", "1");
    start_companion();
    window.desk().contact_view().go_to(cedar);
    window.desk().contact_view().select_activity(0, true);
    command(act::CommandNumber::edit_activity);
    auto* edit = dialog();
    auto* tabs = child<QTabWidget>(*edit, "tabs");
    EXPECT_TRUE(QTest::qWaitFor([&] { return tabs->currentWidget()->objectName() == "recurring_tab"; }, 10000));
    EXPECT_EQ(regarding(*edit), "Weekly round");
    EXPECT_EQ(values.read("Activity", "RecurringEdit"), "");
}

TEST_F(ActivityWinTest, LeavesTheNextDialogAloneOnceItsOwnWasRefused) {
    values.write("Activity", "RecurringEdit", "1");
    start_companion();
    QTest::qWait(1000);
    values.remove("Activity", "RecurringEdit");
    window.desk().contact_view().go_to(cedar);
    window.desk().contact_view().select_activity(0, true);
    command(act::CommandNumber::edit_activity);
    auto* edit = dialog();
    QTest::qWait(500);
    EXPECT_EQ(child<QTabWidget>(*edit, "tabs")->currentIndex(), 0);
}

TEST_F(ActivityWinTest, LeavesADialogAloneThatTheUserOpenedInTheDesk) {
    child<QAction>(window, "schedule_call")->trigger();
    start_companion();
    QTest::qWait(1000);
    EXPECT_EQ(regarding(*dialog()), "");
    QTest::keyClick(dialog(), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    command(act::CommandNumber::schedule_activity);
    expect_filled(*dialog());
}
