#include "desk/windows/activity_dialog.h"

#include "core/values/failure.h"
#include "desk/windows/colour_box.h"
#include "desk/windows/contact_chooser.h"
#include "desk_fixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>

using namespace windows;

namespace {

class ActivityDialogTest : public DeskTest {
protected:
    ActivityDialogTest() { database.open(path); }

    void edit(const store::Activity& activity) {
        dialog = std::make_unique<ActivityDialog>(database, activity, nullptr);
        dialog->show();
    }
    void edit(const std::string& id) { edit(*database.store().activity(id)); }
    template <typename Widget>
    Widget* part(const char* name) {
        return child<Widget>(*dialog, name);
    }
    void ok() { click(part<QDialogButtonBox>("buttons")->button(QDialogButtonBox::Ok)); }
    void ok_is_refused(const QString& sentence) {
        with_dialogs({[&](QWidget& box) {
                         EXPECT_EQ(child<QLabel>(box, "qt_msgbox_label")->text(), sentence);
                         QTest::keyClick(&box, Qt::Key_Return);
                     }},
                     [&] { ok(); });
        EXPECT_TRUE(dialog->isVisible());
    }
    store::Activity stored(const std::string& id) { return *elsewhere()->activity(id); }

    std::unique_ptr<ActivityDialog> dialog;
};

} // namespace

TEST_F(ActivityDialogTest, ShowsTheStoredRecord) {
    auto record = *database.store().activity(meeting);
    record.priority = store::Priority::high;
    record.colour = 0x0000ffu;
    record.group = friends;
    record.is_private = true;
    record.alarm = true;
    record.alarm_lead = 5;
    record.details = "Bring the plan.";
    edit(record);
    EXPECT_EQ(dialog->windowTitle(), "Edit Activity");
    EXPECT_EQ(part<QComboBox>("type_box")->currentText(), "Meeting");
    EXPECT_EQ(part<QLineEdit>("date_edit")->text(), "3/8/2024");
    EXPECT_EQ(part<QComboBox>("time_edit")->currentText(), "2:00 PM");
    EXPECT_EQ(part<QSpinBox>("duration_box")->value(), 60);
    EXPECT_EQ(part<ContactChooser>("contact_chooser")->contacts(), (std::vector{amber, birch}));
    EXPECT_EQ(part<QLineEdit>("regarding_edit")->text(), "Show the plan");
    EXPECT_EQ(part<QComboBox>("priority_box")->currentText(), "High");
    EXPECT_EQ(part<ColourBox>("colour_box")->colour(), 0x0000ffu);
    EXPECT_EQ(part<QComboBox>("user_box")->currentText(), "Bert Cole");
    EXPECT_EQ(part<QComboBox>("group_box")->currentText(), "Friends");
    EXPECT_TRUE(part<QCheckBox>("private_box")->isChecked());
    EXPECT_TRUE(part<QCheckBox>("alarm_box")->isChecked());
    EXPECT_EQ(part<QSpinBox>("alarm_lead_box")->value(), 5);
    EXPECT_EQ(part<QPlainTextEdit>("details_edit")->toPlainText(), "Bring the plan.");
}

TEST_F(ActivityDialogTest, OkWithoutAChangeKeepsTheRecord) {
    const auto before = stored(series);
    edit(series);
    ok();
    EXPECT_FALSE(dialog->isVisible());
    const auto after = stored(series);
    EXPECT_EQ(after.start, before.start);
    EXPECT_EQ(after.end, before.end);
    EXPECT_EQ(after.recurrence, before.recurrence);
    EXPECT_EQ(after.regarding, before.regarding);
    EXPECT_EQ(after.contacts, before.contacts);
    EXPECT_EQ(after.user, before.user);
    EXPECT_EQ(after.colour, before.colour);
}

// What the fields can't show: other blanks and line ends, long leads and durations, parts of a rule that its kind
// doesn't use, times of dates.
TEST_F(ActivityDialogTest, OkWithoutAChangeWritesNothing) {
    auto record = *database.store().activity(series);
    record.regarding = "Two\nlines";
    record.details = "10\u00a0km\r\nand back\u2028again\rand again";
    record.duration = 40000;
    record.end = record.start->plus_minutes(40000);
    record.alarm_lead = 40320;
    record.recurrence.until = at(2, 28, 15, 30);
    record.recurrence.weeks_of_month = 5;
    record.exceptions = {at(1, 10, 8, 30)};
    record.result = "Half done";
    database.store().update(record);
    for (const std::string& id : {call, meeting, old_task, series}) {
        const auto before = stored(id);
        edit(id);
        ok();
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_EQ(stored(id), before);
    }
}

TEST_F(ActivityDialogTest, AChangeLeavesTheOtherFieldsAsTheyWereStored) {
    auto record = *database.store().activity(series);
    record.details = "10\u00a0km\r\nand back";
    record.alarm_lead = 40320;
    record.recurrence.until = at(2, 28, 15, 30);
    record.recurrence.weeks_of_month = 5;
    database.store().update(record);
    const auto before = stored(series);
    edit(series);
    retype(part<QLineEdit>("regarding_edit"), "Round");
    ok();
    auto after = stored(series);
    EXPECT_EQ(after.regarding, "Round");
    EXPECT_GT(after.revision, before.revision);
    after.regarding = before.regarding;
    after.revision = before.revision;
    after.edited = before.edited;
    EXPECT_EQ(after, before);
}

TEST_F(ActivityDialogTest, OkWithoutAChangeClosesAlsoWhereTheRuleBringsForthNothing) {
    auto record = *database.store().activity(series);
    record.recurrence.days_of_week = 0;
    record.recurrence.until = at(1, 1);
    database.store().update(record);
    const auto before = stored(series);
    edit(series);
    ok();
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(stored(series), before);
}

TEST_F(ActivityDialogTest, ALeadThatIsTypedReplacesOneThatIsTooLongToBeShown) {
    auto record = *database.store().activity(call);
    record.alarm = true;
    record.alarm_lead = 40320;
    database.store().update(record);
    edit(call);
    retype(part<QSpinBox>("alarm_lead_box"), "30");
    ok();
    EXPECT_EQ(stored(call).alarm_lead, 30);
}

TEST_F(ActivityDialogTest, StoresANewActivityAsItWasTyped) {
    auto blank = sample_activity(store::ActivityType::meeting, at(3, 6, 10, 30), "", anna, {cedar});
    edit(blank);
    EXPECT_EQ(dialog->windowTitle(), "Schedule Activity");
    QTest::keyClick(part<QComboBox>("type_box"), Qt::Key_Home);
    retype(part<QLineEdit>("date_edit"), "4/12/2024");
    retype(part<QComboBox>("time_edit")->lineEdit(), "3:15 pm");
    retype(part<QSpinBox>("duration_box"), "45");
    type(part<QLineEdit>("regarding_edit"), "Talk about the roof");
    QTest::keyClick(part<QComboBox>("priority_box"), Qt::Key_Home);
    QTest::keyClick(part<QComboBox>("user_box"), Qt::Key_End);
    QTest::keyClick(part<QComboBox>("group_box"), Qt::Key_End);
    QTest::keyClick(part<QCheckBox>("private_box"), Qt::Key_Space);
    part<QTabWidget>("tabs")->setCurrentIndex(1);
    type(part<QPlainTextEdit>("details_edit"), "Ask for");
    QTest::keyClick(part<QPlainTextEdit>("details_edit"), Qt::Key_Return);
    type(part<QPlainTextEdit>("details_edit"), "the price.");
    ok();
    EXPECT_FALSE(dialog->isVisible());
    store::ActivityQuery of_cedar;
    of_cedar.contact = cedar;
    of_cedar.from = at(4, 12);
    const auto found = elsewhere()->activities(of_cedar);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].type, store::ActivityType::call);
    EXPECT_EQ(found[0].start, at(4, 12, 15, 15));
    EXPECT_EQ(found[0].end, at(4, 12, 16, 0));
    EXPECT_EQ(found[0].duration, 45);
    EXPECT_EQ(found[0].regarding, "Talk about the roof");
    EXPECT_EQ(found[0].priority, store::Priority::high);
    EXPECT_EQ(found[0].user, bert);
    EXPECT_EQ(found[0].group, suppliers);
    EXPECT_TRUE(found[0].is_private);
    EXPECT_EQ(found[0].details, "Ask for\nthe price.");
}

TEST_F(ActivityDialogTest, MakesASeriesOnItsRecurringTab) {
    edit(call);
    part<QTabWidget>("tabs")->setCurrentIndex(2);
    auto* kind = part<QComboBox>("kind_box");
    QTest::keyClick(kind, Qt::Key_Down);
    QTest::keyClick(kind, Qt::Key_Down);
    ok();
    EXPECT_EQ(stored(call).recurrence,
              (store::Recurrence{store::RecurrenceKind::weekly, 1, std::nullopt, 1 << 3, 0, 0}));
}

TEST_F(ActivityDialogTest, StoresTheExceptionsOfASeries) {
    edit(series);
    part<QTabWidget>("tabs")->setCurrentIndex(2);
    retype(part<QLineEdit>("exception_edit"), "1/10/2024");
    click(part<QPushButton>("add_exception_button"));
    ok();
    EXPECT_EQ(stored(series).exceptions, std::vector{at(1, 10)});
}

TEST_F(ActivityDialogTest, ARecordThatSomebodyElseChangedIsntOverwrittenAndTheDialogStays) {
    edit(call);
    retype(part<QLineEdit>("regarding_edit"), "Mine");
    auto other = elsewhere();
    auto theirs = *other->activity(call);
    theirs.regarding = "Theirs";
    other->update(theirs);
    with_dialogs({[](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); }}, [&] { ok(); });
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(part<QLineEdit>("regarding_edit")->text(), "Mine");
    EXPECT_EQ(stored(call).regarding, "Theirs");
}

TEST_F(ActivityDialogTest, ADoubleClickOnOkStoresANewActivityOnce) {
    edit(sample_activity(store::ActivityType::call, at(3, 6, 10, 30), "Once", anna, {cedar}));
    const auto before = elsewhere()->activities({}).size();
    ok();
    ok();
    EXPECT_EQ(elsewhere()->activities({}).size(), before + 1);
}

TEST_F(ActivityDialogTest, ANewActivityNeedsAContact) {
    edit(sample_activity(store::ActivityType::call, at(3, 6, 10, 30), "Alone", anna, {}));
    ok_is_refused("Choose at least one contact for the activity.");
    EXPECT_EQ(elsewhere()->activities({}).size(), 4u);
}

TEST_F(ActivityDialogTest, ADateOrATimeThatCantBeReadIsRefused) {
    edit(call);
    auto* date = part<QLineEdit>("date_edit");
    retype(date, "31/31/2024");
    ok_is_refused("\"31/31/2024\" is no date.");
    retype(date, "");
    QTest::keyClick(date, Qt::Key_Delete);
    ok_is_refused("Give the activity a date.");
    retype(date, "3/6/2024");
    retype(part<QComboBox>("time_edit")->lineEdit(), "noonish");
    ok_is_refused("\"noonish\" is no time of day.");
    EXPECT_EQ(stored(call).start, at(3, 6, 9, 0));
}

TEST_F(ActivityDialogTest, TheSecondsOfAStartStayUnlessAnotherTimeIsTyped) {
    auto record = *database.store().activity(call);
    record.start = DateTime::of(2024, 3, 6, 9, 0, 30);
    database.store().update(record);
    edit(call);
    ok();
    EXPECT_EQ(stored(call).start, record.start);
}

TEST_F(ActivityDialogTest, ARuleThatBringsForthNothingIsRefused) {
    edit(series);
    auto* wednesday = part<QCheckBox>("weekly_page_Wednesday");
    part<QTabWidget>("tabs")->setCurrentIndex(2);
    QTest::mouseClick(wednesday, Qt::LeftButton, {}, QPoint(8, wednesday->height() / 2));
    ok_is_refused("Choose at least one weekday on which the activity repeats.");
}

TEST_F(ActivityDialogTest, AnActivityThatCameWithoutADateKeepsNoneUntilItGetsOne) {
    auto record = *database.store().activity(call);
    record.start.reset();
    database.store().update(record);
    edit(call);
    EXPECT_EQ(part<QLineEdit>("date_edit")->text(), "");
    retype(part<QLineEdit>("regarding_edit"), "Someday");
    ok();
    EXPECT_EQ(stored(call).start, std::nullopt);
    EXPECT_EQ(stored(call).regarding, "Someday");
    edit(call);
    retype(part<QLineEdit>("date_edit"), "3/11/2024");
    retype(part<QComboBox>("time_edit")->lineEdit(), "8:00");
    ok();
    EXPECT_EQ(stored(call).start, at(3, 11, 8, 0));
}

TEST_F(ActivityDialogTest, ASeriesNeedsADate) {
    auto record = *database.store().activity(series);
    record.start.reset();
    edit(record);
    retype(part<QLineEdit>("regarding_edit"), "Someday");
    ok_is_refused("An activity that repeats needs a date.");
}

TEST_F(ActivityDialogTest, AnEndThatDoesntFollowFromTheDurationStaysUnlessTheTimesChange) {
    auto record = *database.store().activity(call);
    record.end = at(3, 7, 12, 0);
    database.store().update(record);
    edit(call);
    ok();
    EXPECT_EQ(stored(call).end, at(3, 7, 12, 0));
    edit(call);
    retype(part<QSpinBox>("duration_box"), "30");
    ok();
    EXPECT_EQ(stored(call).end, at(3, 6, 9, 30));
}

TEST_F(ActivityDialogTest, IsFilledWithTheValuesOfAnotherProgramAndStoresThem) {
    edit(sample_activity(store::ActivityType::meeting, at(3, 6, 10, 30), "", anna, {cedar}));
    EXPECT_TRUE(dialog->is_new());
    dialog->fill({"T", "4/12/2024", "8:45:00 AM", "20", "Buy tiles", "H", "Bert Cole"});
    part<QTabWidget>("tabs")->setCurrentIndex(2);
    QTest::keyClick(part<QComboBox>("kind_box"), Qt::Key_End);
    ok();
    store::ActivityQuery of_cedar;
    of_cedar.contact = cedar;
    of_cedar.from = at(4, 12);
    const auto found = elsewhere()->activities(of_cedar);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].type, store::ActivityType::to_do);
    EXPECT_EQ(found[0].start, at(4, 12, 8, 45));
    EXPECT_EQ(found[0].end, at(4, 12, 9, 5));
    EXPECT_EQ(found[0].duration, 20);
    EXPECT_EQ(found[0].regarding, "Buy tiles");
    EXPECT_EQ(found[0].priority, store::Priority::high);
    EXPECT_EQ(found[0].user, bert);
}

TEST_F(ActivityDialogTest, ShowsItsTabsByName) {
    edit(call);
    EXPECT_FALSE(dialog->is_new());
    dialog->show_tab("Recurring");
    EXPECT_EQ(part<QTabWidget>("tabs")->currentIndex(), 2);
    EXPECT_THROW(dialog->show_tab("Weather"), values::Failure);
    EXPECT_EQ(part<QTabWidget>("tabs")->currentIndex(), 2);
}

TEST_F(ActivityDialogTest, FurtherContactsAreAddedAndRemoved) {
    edit(meeting);
    auto* contacts = part<QListWidget>("contacts_list");
    ASSERT_EQ(contacts->count(), 2);
    with_dialogs({[&](QWidget& picker) {
                     type(child<QLineEdit>(picker, "search_edit"), "Cedar");
                     auto* table = child<QTableView>(picker, "contact_table");
                     QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                                       table->visualRect(table->model()->index(0, 0)).center());
                     QTest::keyClick(table, Qt::Key_Return);
                 }},
                 [&] { click(part<QPushButton>("add_contacts_button")); });
    ok();
    EXPECT_EQ(stored(meeting).contacts, (std::vector{amber, birch, cedar}));
    edit(meeting);
    contacts = part<QListWidget>("contacts_list");
    contacts->setCurrentRow(1);
    click(part<QPushButton>("remove_contact_button"));
    ok();
    EXPECT_EQ(stored(meeting).contacts, (std::vector{amber, cedar}));
}

TEST_F(ActivityDialogTest, CancelStoresNothing) {
    edit(call);
    retype(part<QLineEdit>("regarding_edit"), "Never mind");
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(stored(call).regarding, "Ask for prices");
}

TEST_F(ActivityDialogTest, TabGoesThroughTheFieldsInReadingOrder) {
    edit(call);
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    part<QComboBox>("type_box")->setFocus();
    QStringList names;
    for (int field = 0; field < 14; ++field) {
        const QWidget* widget = QApplication::focusWidget();
        const auto* button = qobject_cast<const QPushButton*>(widget);
        names << (button && widget->objectName().isEmpty() ? button->text().remove('&') : widget->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(
        names.join(" ").toStdString(),
        "type_box duration_box date_edit time_edit contacts_list add_contacts_button "
        "remove_contact_button regarding_edit priority_box colour_box user_box group_box private_box alarm_box");
}
