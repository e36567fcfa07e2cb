#include "desk/windows/clear_dialog.h"

#include "desk_fixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>

using namespace windows;

namespace {

class ClearDialogTest : public DeskTest {
protected:
    ClearDialogTest() { database.open(path); }

    void clear(const std::string& id) {
        dialog = std::make_unique<ClearDialog>(database, *database.store().activity(id), nullptr);
        dialog->show();
    }
    template <typename Widget>
    Widget* part(const char* name) {
        return child<Widget>(*dialog, name);
    }
    void ok() { click(part<QDialogButtonBox>("buttons")->button(QDialogButtonBox::Ok)); }
    void toggle_cleared() {
        auto* box = part<QCheckBox>("cleared_box");
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    }
    static std::function<void(QWidget&)> answer(QMessageBox::StandardButton button, const QString& question) {
        return [=](QWidget& box) {
            EXPECT_EQ(child<QLabel>(box, "qt_msgbox_label")->text(), question);
            click(dynamic_cast<QMessageBox&>(box).button(button));
        };
    }
    std::optional<store::Activity> stored(const std::string& id) { return elsewhere()->activity(id); }
    void change_elsewhere(const std::string& id) {
        auto other = elsewhere();
        auto theirs = *other->activity(id);
        theirs.regarding = "Theirs";
        other->update(theirs);
    }

    std::unique_ptr<ClearDialog> dialog;
};

} // namespace

TEST_F(ClearDialogTest, KeepsTheRecordAsClearedWithItsResult) {
    const auto before = *stored(call);
    clear(call);
    EXPECT_EQ(part<QLabel>("summary_label")->text(), "Call on 3/6/2024, 9:00 AM with Zoe Quinn");
    EXPECT_FALSE(part<QLabel>("series_label")->isVisible());
    QTest::keyClick(part<QComboBox>("result_box"), Qt::Key_End);
    retype(part<QLineEdit>("regarding_edit"), "Prices asked");
    type(part<QPlainTextEdit>("details_edit"), "Calls back on Friday");
    ok();
    EXPECT_FALSE(dialog->isVisible());
    const auto after = *stored(call);
    EXPECT_TRUE(after.cleared);
    EXPECT_EQ(after.result, "Left message");
    EXPECT_EQ(after.regarding, "Prices asked");
    EXPECT_EQ(after.details, "Calls back on Friday");
    EXPECT_EQ(after.start, before.start);
    EXPECT_EQ(after.end, before.end);
    EXPECT_EQ(after.contacts, before.contacts);
    EXPECT_EQ(after.user, before.user);
}

TEST_F(ClearDialogTest, EnterInALineClearsWithTheFirstResult) {
    clear(meeting);
    QTest::keyClick(part<QLineEdit>("regarding_edit"), Qt::Key_Return);
    EXPECT_TRUE(stored(meeting)->cleared);
    EXPECT_EQ(stored(meeting)->result, "Held");
}

TEST_F(ClearDialogTest, AClearedActivityCanBeOpenedAgain) {
    clear(old_task);
    EXPECT_TRUE(part<QCheckBox>("cleared_box")->isChecked());
    toggle_cleared();
    EXPECT_FALSE(part<QComboBox>("result_box")->isEnabled());
    ok();
    EXPECT_FALSE(stored(old_task)->cleared);
    EXPECT_EQ(stored(old_task)->result, "");
}

TEST_F(ClearDialogTest, AResultOfAnotherProgramIsKept) {
    auto record = *database.store().activity(old_task);
    record.result = "Postponed twice";
    database.store().update(record);
    clear(old_task);
    EXPECT_EQ(part<QComboBox>("result_box")->currentText(), "Postponed twice");
    ok();
    EXPECT_EQ(stored(old_task)->result, "Postponed twice");
}

TEST_F(ClearDialogTest, ClearsAndLeavesWhatNobodyTypedIntoAsItWasStored) {
    auto record = *database.store().activity(call);
    record.regarding = "Two\nlines";
    record.details = "10\u00a0km\r\nand back";
    database.store().update(record);
    clear(call);
    ok();
    EXPECT_TRUE(stored(call)->cleared);
    EXPECT_EQ(stored(call)->regarding, "Two\nlines");
    EXPECT_EQ(stored(call)->details, "10\u00a0km\r\nand back");
}

TEST_F(ClearDialogTest, OkWithoutAChangeOfAClearedActivityWritesNothing) {
    const auto before = stored(old_task);
    clear(old_task);
    ok();
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(stored(old_task), before);
}

TEST_F(ClearDialogTest, CancelLeavesTheActivityAsItWas) {
    clear(call);
    retype(part<QLineEdit>("regarding_edit"), "Never mind");
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_FALSE(stored(call)->cleared);
    EXPECT_EQ(stored(call)->regarding, "Ask for prices");
}

TEST_F(ClearDialogTest, ErasesAfterAYes) {
    const QString question = "Erase the activity \"Ask for prices\"? It can't be brought back.";
    clear(call);
    with_dialogs({answer(QMessageBox::No, question)}, [&] { click(part<QPushButton>("erase_button")); });
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(stored(call).has_value());
    with_dialogs({answer(QMessageBox::Yes, question)}, [&] { click(part<QPushButton>("erase_button")); });
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_FALSE(stored(call).has_value());
}

TEST_F(ClearDialogTest, ASecondClickOnAButtonDoesNothingMore) {
    clear(call);
    ok();
    change_elsewhere(call);
    ok();
    click(part<QPushButton>("erase_button"));
    EXPECT_EQ(stored(call)->regarding, "Theirs");
}

TEST_F(ClearDialogTest, AsksBeforeItClearsAWholeSeries) {
    const QString question = "Clear the whole series \"Weekly round\"?";
    clear(series);
    EXPECT_TRUE(part<QLabel>("series_label")->isVisible());
    with_dialogs({answer(QMessageBox::No, question)}, [&] { ok(); });
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(stored(series)->cleared);
    with_dialogs({answer(QMessageBox::Yes, question)}, [&] { ok(); });
    EXPECT_TRUE(stored(series)->cleared);
    clear(series);
    toggle_cleared();
    ok();
    EXPECT_FALSE(stored(series)->cleared);
}

TEST_F(ClearDialogTest, ARecordThatSomebodyElseChangedIsntOverwrittenAndTheDialogStays) {
    clear(call);
    retype(part<QLineEdit>("regarding_edit"), "Mine");
    change_elsewhere(call);
    with_dialogs({[](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); }}, [&] { ok(); });
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(part<QLineEdit>("regarding_edit")->text(), "Mine");
    EXPECT_EQ(stored(call)->regarding, "Theirs");
    EXPECT_FALSE(stored(call)->cleared);
}

TEST_F(ClearDialogTest, ARecordThatSomebodyElseChangedIsntErased) {
    clear(call);
    change_elsewhere(call);
    with_dialogs(
        {answer(QMessageBox::Yes, "Erase the activity \"Ask for prices\"? It can't be brought back."),
         answer(QMessageBox::Ok, "Somebody else has changed the activity meanwhile. It hasn't been erased.")},
        [&] { click(part<QPushButton>("erase_button")); });
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(stored(call).has_value());
}

TEST_F(ClearDialogTest, TabsGoFromTheMarkThroughTheFieldsToTheButtons) {
    clear(call);
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    part<QCheckBox>("cleared_box")->setFocus();
    std::string names;
    for (int step = 0; step < 6; ++step) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const auto* button = qobject_cast<QPushButton*>(QApplication::focusWidget());
        const QString name =
            button ? QString(button->text()).remove('&') : QApplication::focusWidget()->objectName();
        names += name.toStdString() + " | ";
    }
    EXPECT_EQ(names, "result_box | regarding_edit | details_edit | OK | Cancel | Erase Activity... | ");
}
