#include "desk/windows/activity_commands.h"

#include "core/values/failure.h"
#include "desk/windows/activity_dialog.h"
#include "desk/windows/clear_dialog.h"
#include "desk_fixture.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>

using namespace windows;

namespace {

class ActivityCommandsTest : public DeskTest {
protected:
    ActivityCommandsTest() : lookup(database), commands(database, lookup, window) {
        database.open(path);
        window.show();
    }
    ActivityDialog* dialog() { return window.findChild<ActivityDialog*>(); }
    void press(Qt::Key key) {
        QTest::keyClick(child<QLineEdit>(*dialog(), "regarding_edit"), key);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    Lookup lookup;
    QWidget window;
    ActivityCommands commands;
    int finished = 0;
    std::function<void()> count = [this] { ++finished; };
};

} // namespace

TEST_F(ActivityCommandsTest, SchedulesWithTheShownContactAtTheNextHalfHour) {
    lookup.go_to(cedar);
    commands.schedule(store::ActivityType::call, count);
    ASSERT_NE(dialog(), nullptr);
    EXPECT_EQ(child<QLineEdit>(*dialog(), "date_edit")->text(), "3/6/2024");
    EXPECT_EQ(child<QComboBox>(*dialog(), "time_edit")->currentText(), "10:30 AM");
    EXPECT_EQ(child<QSpinBox>(*dialog(), "duration_box")->value(), 15);
    EXPECT_EQ(child<QComboBox>(*dialog(), "user_box")->currentText(), "Anna Berg");
    type(child<QLineEdit>(*dialog(), "regarding_edit"), "Ring up");
    EXPECT_EQ(finished, 0);
    press(Qt::Key_Return);
    EXPECT_EQ(finished, 1);
    store::ActivityQuery query;
    query.contact = cedar;
    query.from = at(3, 6);
    const auto found = elsewhere()->activities(query);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].regarding, "Ring up");
}

TEST_F(ActivityCommandsTest, WhatWasStoredIsShownWhenTheCommandHasFinished) {
    int changes = 0;
    QObject::connect(&database, &OpenDatabase::changed, [&] { ++changes; });
    commands.edit(call, ActivityDialog::Tab::general, [&] { EXPECT_EQ(changes, 1); });
    retype(child<QLineEdit>(*dialog(), "regarding_edit"), "Other prices");
    press(Qt::Key_Return);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(elsewhere()->activity(call)->regarding, "Other prices");
}

TEST_F(ActivityCommandsTest, CancelFinishesToo) {
    commands.edit(call, ActivityDialog::Tab::general, count);
    press(Qt::Key_Escape);
    EXPECT_EQ(finished, 1);
    EXPECT_FALSE(commands.is_under_way());
}

TEST_F(ActivityCommandsTest, BeginsOnTheTabThatIsAskedFor) {
    commands.edit(call, ActivityDialog::Tab::details, count);
    EXPECT_EQ(child<QTabWidget>(*dialog(), "tabs")->currentIndex(), 1);
    EXPECT_EQ(dialog()->focusWidget()->objectName(), "details_edit");
    commands.close_dialog();
    EXPECT_EQ(finished, 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    commands.edit(series, ActivityDialog::Tab::recurring, count);
    EXPECT_EQ(child<QTabWidget>(*dialog(), "tabs")->currentIndex(), 2);
    EXPECT_EQ(dialog()->focusWidget()->objectName(), "kind_box");
}

TEST_F(ActivityCommandsTest, ClearsInADialogOfItsOwn) {
    commands.clear(call, count);
    auto* clear = window.findChild<ClearDialog*>();
    ASSERT_NE(clear, nullptr);
    EXPECT_THROW(commands.edit(meeting, ActivityDialog::Tab::general, count), values::Failure);
    QTest::keyClick(child<QLineEdit>(*clear, "regarding_edit"), Qt::Key_Return);
    EXPECT_EQ(finished, 1);
    EXPECT_TRUE(elsewhere()->activity(call)->cleared);
}

TEST_F(ActivityCommandsTest, TheDatabaseClosingClosesTheDialogWithoutStoring) {
    commands.edit(call, ActivityDialog::Tab::general, count);
    retype(child<QLineEdit>(*dialog(), "regarding_edit"), "Too late");
    database.close();
    EXPECT_EQ(finished, 1);
    EXPECT_FALSE(commands.is_under_way());
    EXPECT_EQ(elsewhere()->activity(call)->regarding, "Ask for prices");
}

TEST_F(ActivityCommandsTest, ASecondDialogIsRefusedWhileOneIsOpen) {
    commands.edit(call, ActivityDialog::Tab::general, count);
    EXPECT_TRUE(commands.is_under_way());
    EXPECT_THROW(commands.edit(meeting, ActivityDialog::Tab::general, count), values::Failure);
    EXPECT_THROW(commands.schedule(store::ActivityType::call, count), values::Failure);
    EXPECT_THROW(commands.remove(call), values::Failure);
    press(Qt::Key_Escape);
    EXPECT_EQ(finished, 1);
    EXPECT_NO_THROW(commands.edit(meeting, ActivityDialog::Tab::general, count));
}

TEST_F(ActivityCommandsTest, WithoutAnActivityThereIsNothingToEdit) {
    EXPECT_THROW(commands.edit("", ActivityDialog::Tab::general, count), values::Failure);
    EXPECT_THROW(commands.edit("NOTHING00000", ActivityDialog::Tab::general, count), values::Failure);
    EXPECT_EQ(finished, 0);
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(ActivityCommandsTest, WithoutADatabaseNothingOpens) {
    database.close();
    EXPECT_THROW(commands.schedule(store::ActivityType::call, count), values::Failure);
    EXPECT_THROW(commands.edit(call, ActivityDialog::Tab::general, count), values::Failure);
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(ActivityCommandsTest, DeletesAfterAYes) {
    const auto answer = [](QMessageBox::StandardButton button) {
        return [button](QWidget& box) { click(dynamic_cast<QMessageBox&>(box).button(button)); };
    };
    with_dialogs({answer(QMessageBox::No)}, [&] { commands.remove(call); });
    EXPECT_TRUE(elsewhere()->activity(call).has_value());
    with_dialogs({answer(QMessageBox::Yes)}, [&] { commands.remove(call); });
    EXPECT_FALSE(elsewhere()->activity(call).has_value());
}
