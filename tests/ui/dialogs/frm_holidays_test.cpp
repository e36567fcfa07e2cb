#include "ui/dialogs/frm_holidays.h"

#include "core/shell/shell_world.h"
#include "support/with_dialogs.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>
#include <gtest/gtest.h>

namespace {

constexpr const char* path = "/program/holidays.dat";
constexpr const char* restart_message = "You will need to restart the program for the changes to take effect.";
constexpr const char* delete_question = "Do you really want to delete this item?";
using Lines = std::vector<std::string>;

class FrmHolidays : public ::testing::Test, protected support::ShellWorld {
protected:
    void open(const std::string& holidays = {}) {
        if (!holidays.empty())
            files.content[path] = "[Holidays]\r\n" + holidays;
        start();
        form = std::make_unique<ui::frmHolidays>(calendar.here(), calendar.settings,
                                                 calendar.grid.background.holidays, calendar.grid.layout, nullptr);
        form->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
    }
    template <typename Control>
    Control* control(const char* name) {
        auto* found = form->findChild<Control*>(name);
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    void click(const char* button) { QTest::mouseClick(control<QPushButton>(button), Qt::LeftButton); }
    // On the box itself, not on the empty room behind its caption.
    void tick(const char* box) {
        auto* found = control<QCheckBox>(box);
        QTest::mouseClick(found, Qt::LeftButton, {}, QPoint(8, found->height() / 2));
    }
    void show_holidays() {
        QTabBar* bar = control<QTabWidget>("mstHolidays")->tabBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
    }
    void type_date(const char* date) {
        auto* dtpHol = control<QLineEdit>("dtpHol");
        QTest::keyClick(dtpHol, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(dtpHol, date);
    }
    void add(const char* date, const char* description) {
        type_date(date);
        with_dialogs({[&](QWidget& frmDescr) {
                         QTest::keyClicks(frmDescr.findChild<QLineEdit*>("txtDescr"), description);
                         QTest::keyClick(&frmDescr, Qt::Key_Return);
                     }},
                     [&] { click("cmdAdd"); });
    }
    void select(int row) {
        auto* list = control<QTreeWidget>("lvwHol");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualItemRect(list->topLevelItem(row)).center());
    }
    Lines rows() {
        Lines lines;
        const auto* list = control<QTreeWidget>("lvwHol");
        for (int row = 0; row < list->topLevelItemCount(); ++row)
            lines.push_back(list->topLevelItem(row)->text(0).toStdString() + "=" +
                            list->topLevelItem(row)->text(1).toStdString());
        return lines;
    }

    std::unique_ptr<ui::frmHolidays> form;
};

TEST_F(FrmHolidays, HasItsControlsByNameAndCaption) {
    open("1/1/2024=New Year\r\n");
    EXPECT_EQ(form->windowTitle(), "Days Off");
    const auto* mstHolidays = control<QTabWidget>("mstHolidays");
    EXPECT_EQ(mstHolidays->tabText(0), "Weekly Days Off");
    EXPECT_EQ(mstHolidays->tabText(1), "Holidays");
    EXPECT_EQ(mstHolidays->currentIndex(), 0);
    EXPECT_EQ(control<QGroupBox>("fraDaysOff")->title(), "Days off:");
    for (int weekday = 1; weekday <= 7; ++weekday)
        EXPECT_EQ(control<QCheckBox>(("chkday_" + std::to_string(weekday)).c_str())->text().toStdString(),
                  values::english_us().weekdays[static_cast<std::size_t>(weekday - 1)]);
    const QTreeWidgetItem* titles = control<QTreeWidget>("lvwHol")->headerItem();
    EXPECT_EQ(titles->columnCount(), 2);
    EXPECT_EQ(titles->text(0), "Date");
    EXPECT_EQ(titles->text(1), "Description");
    EXPECT_EQ(control<QPushButton>("cmdAdd")->text(), "&Add");
    EXPECT_EQ(control<QPushButton>("cmdDelete")->text(), "&Delete");
    EXPECT_EQ(control<QLineEdit>("dtpHol")->text(), "1/10/2024");
}

TEST_F(FrmHolidays, AddsTypedHolidaysInDateOrder) {
    open("1/1/2024=New Year\r\n12/25/2024=Christmas\r\n");
    show_holidays();
    add("5/1/2024", "May Day");
    EXPECT_EQ(rows(), (Lines{"1/1/2024=New Year", "5/1/2024=May Day", "12/25/2024=Christmas"}));
    click("cmdOK");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(files.content[path],
              "[Holidays]\r\n1/1/2024=New Year\r\n5/1/2024=May Day\r\n12/25/2024=Christmas\r\n");
    EXPECT_EQ(boxes(), Lines{restart_message});
}

TEST_F(FrmHolidays, TakesADateAsItWasTyped) {
    open();
    show_holidays();
    add("11/26/2027", "Thanksgiving");
    add("2/29/2028", "Leap day");
    add("2026-12-31", "New Year's Eve");
    EXPECT_EQ(rows(), (Lines{"12/31/2026=New Year's Eve", "11/26/2027=Thanksgiving", "2/29/2028=Leap day"}));
}

TEST_F(FrmHolidays, AddsNothingForATextThatIsNoDate) {
    open();
    show_holidays();
    type_date("2/30/2024");
    click("cmdAdd");
    type_date(" ");
    click("cmdAdd");
    EXPECT_EQ(boxes(),
              (Lines{"Error 440: '\"2/30/2024\" is no date.'", "Error 13: 'Give the date of the holiday.'"}));
    EXPECT_EQ(rows(), Lines{});
    EXPECT_TRUE(form->isVisible());
}

TEST_F(FrmHolidays, KeepsThePreviousDescriptionWhenTheNextIsCancelled) {
    open();
    show_holidays();
    add("5/1/2024", "May Day");
    QTest::keyClick(control<QLineEdit>("dtpHol"), Qt::Key_Up);
    with_dialogs({[](QWidget& frmDescr) { QTest::keyClick(&frmDescr, Qt::Key_Escape); }},
                 [&] { click("cmdAdd"); });
    ASSERT_EQ(rows().size(), 2U);
    EXPECT_TRUE(rows()[1].ends_with("=May Day"));
}

TEST_F(FrmHolidays, DeletesTheSelectedHolidayAfterAsking) {
    open("1/1/2024=New Year\r\n5/1/2024=May Day\r\n");
    show_holidays();
    select(1);
    QTest::keyClick(form.get(), Qt::Key_D, Qt::AltModifier);
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return !box.shown.empty(); })); // a button pressed by its key goes down first
    EXPECT_EQ(rows(), Lines{"1/1/2024=New Year"});
    EXPECT_EQ(boxes(), Lines{delete_question});
}

TEST_F(FrmHolidays, HasTheFirstHolidaySelectedWhenItOpens) {
    open("1/1/2024=New Year\r\n5/1/2024=May Day\r\n");
    show_holidays();
    click("cmdDelete");
    EXPECT_EQ(rows(), Lines{"5/1/2024=May Day"});
}

TEST_F(FrmHolidays, ShowsTheFailureBoxForADeletionInAnEmptyList) {
    open();
    show_holidays();
    click("cmdDelete");
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_TRUE(box.shown[0].text.starts_with("Error 91: "));
    add("5/1/2024", "May Day");
    click("cmdDelete"); // the only one there is
    EXPECT_EQ(rows(), Lines{});
}

TEST_F(FrmHolidays, StoresTheTickedDays) {
    open();
    tick("chkday_1");
    tick("chkday_7");
    click("cmdOK");
    EXPECT_EQ(boxes(), Lines{restart_message});
    EXPECT_EQ(calendar.settings.ini.GetKeyValue("DaysOff", "1", ""), "1");
    EXPECT_EQ(calendar.settings.ini.GetKeyValue("DaysOff", "4", ""), "0");
    EXPECT_EQ(calendar.settings.ini.GetKeyValue("DaysOff", "7", ""), "1");
}

TEST_F(FrmHolidays, TellsToRestartHoweverItIsClosedAfterAnEdit) {
    const std::function<void()> ways[] = {[&] { click("cmdCancel"); },
                                          [&] { QTest::keyClick(form.get(), Qt::Key_Escape); },
                                          [&] { static_cast<QWidget*>(form.get())->close(); }};
    for (const auto& close : ways) {
        box.shown.clear();
        open();
        tick("chkday_3");
        close();
        EXPECT_FALSE(form->isVisible());
        EXPECT_EQ(boxes(), Lines{restart_message});
        EXPECT_FALSE(files.content.contains(path));
    }
}

TEST_F(FrmHolidays, ClosesWithoutAWordWhenNothingWasEdited) {
    open("1/1/2024=New Year\r\n");
    click("cmdOK");
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(FrmHolidays, StaysOpenWhenTheFileCantBeWritten) {
    open("1/1/2024=New Year\r\n");
    files.read_only.insert(path);
    click("cmdOK");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(boxes(), Lines{"Error 75: 'Path/File access error'"});
    EXPECT_EQ(rows(), Lines{"1/1/2024=New Year"});
}

TEST_F(FrmHolidays, CanOnlyBeCancelledAfterABrokenFile) {
    open("1/1/2024=New Year\r\nno date\r\n");
    EXPECT_EQ(rows(), Lines{"1/1/2024=New Year"});
    EXPECT_FALSE(control<QPushButton>("cmdOK")->isEnabled());
    QTest::keyClick(form.get(), Qt::Key_Return);
    EXPECT_TRUE(form->isVisible());
    click("cmdCancel");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(files.content[path], "[Holidays]\r\n1/1/2024=New Year\r\nno date\r\n");
}

} // namespace
