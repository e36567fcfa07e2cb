#include "core/values/text.h"
#include "days_off_world.h"

// Broken files and settings, and what can't be written.
namespace {

using support::Opened;
using values::DateTime;
using Lines = std::vector<std::string>;

class BrokenDaysOff : public support::DaysOffTest {};

TEST_F(BrokenDaysOff, ShowTheFailureBoxForADateInTheListThatIsNoneAndAddNothing) {
    have_holidays("whenever=Party\r\n");
    start();
    Opened dialog(*this);
    dialog.add(5, 1, "May Day");
    EXPECT_EQ(dialog.form.rows, Lines{"whenever=Party"});
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_TRUE(box.shown[0].text.starts_with(
        "Error 13: 'Type mismatch'\rin frmHolidays: Sub cmdAdd_Click - Line # 40\r"));
}

TEST_F(BrokenDaysOff, ShowTheFailureBoxForADeletionWithNothingSelected) {
    start();
    Opened dialog(*this);
    dialog.procedures.cmdDelete_Click();
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_TRUE(box.shown[0].text.starts_with("Error 91: "));
    EXPECT_TRUE(values::contains(box.shown[0].text, "in frmHolidays: Sub cmdDelete_Click - Line # 10"));
    dialog.procedures.cmdCancel_Click();
    EXPECT_EQ(box.shown.size(), 1U);
}

TEST_F(BrokenDaysOff, LeaveAnItemWithoutADateAlone) {
    have_holidays("=Never\r\n");
    start();
    Opened dialog(*this);
    dialog.remove(0);
    EXPECT_EQ(dialog.form.rows, Lines{"=Never"});
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(BrokenDaysOff, OfAFileWithALineWithoutAnEqualsSignShowWhatStandsBeforeItAndCantBeConfirmed) {
    for (const char* line : {"5/1/2024", ""}) {
        box.shown.clear();
        have_holidays("1/1/2024=New Year\r\n" + std::string(line) + "\r\n12/25/2024=Christmas\r\n");
        start();
        box.shown.clear(); // an empty line fails in Get_Holidays too
        Opened dialog(*this);
        ASSERT_EQ(box.shown.size(), 1U);
        EXPECT_TRUE(box.shown[0].text.starts_with(
            "Error 9: 'Subscript out of range'\rin frmHolidays: Sub Form_Load - Line # 20\r"));
        EXPECT_EQ(dialog.form.rows, Lines{"1/1/2024=New Year"});
        EXPECT_FALSE(dialog.form.can_be_confirmed);
        dialog.form.set_chkday(2, true); // still loading
        dialog.procedures.cmdCancel_Click();
        EXPECT_EQ(box.shown.size(), 1U);
        EXPECT_TRUE(values::contains(holidays_file(), "Christmas"));
    }
}

TEST_F(BrokenDaysOff, OfAFileOfTenMegabytesShowTheFailureBoxAndCantBeConfirmed) {
    start();
    files.content[path] = std::string(10 * 1024 * 1024, '=');
    Opened dialog(*this);
    EXPECT_EQ(boxes(), Lines{"Error 75: 'Path/File access error'"});
    EXPECT_FALSE(dialog.form.can_be_confirmed);
}

TEST_F(BrokenDaysOff, KeepNULsAndTheLastLineWithoutItsEnd) {
    have_holidays(std::string("1/1/2024=N\0w\r\n5/1/2024=May Day", 30));
    start();
    Opened dialog(*this);
    dialog.ok();
    EXPECT_EQ(holidays_file(), "[Holidays]\r\n" + std::string("1/1/2024=N\0w\r\n5/1/2024=May Day\r\n", 32));
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(BrokenDaysOff, StayOpenAndLoseNothingWhenTheFileCantBeWritten) {
    have_holidays("1/1/2024=New Year\r\n");
    start();
    const std::string before = holidays_file(), settings_before = settings_file();
    files.read_only.insert(path);
    Opened dialog(*this);
    dialog.add(5, 1, "May Day");
    dialog.form.set_chkday(1, true);
    dialog.ok();
    EXPECT_TRUE(dialog.form.is_open);
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_TRUE(box.shown[0].text.starts_with(
        "Error 75: 'Path/File access error'\rin frmHolidays: Sub cmdOK_Click - Line # 10\r"));
    EXPECT_EQ(holidays_file(), before);
    EXPECT_EQ(settings_file(), settings_before);
    EXPECT_EQ(calendar.grid.background.holidays.Holidays, "|1/1/2024|");
    EXPECT_EQ(dialog.form.rows, (Lines{"1/1/2024=New Year", "5/1/2024=May Day"}));
    files.read_only.clear();
    dialog.ok();
    EXPECT_FALSE(dialog.form.is_open);
    EXPECT_TRUE(values::contains(holidays_file(), "May Day"));
    EXPECT_EQ(value_of("1"), "1");
}

TEST_F(BrokenDaysOff, CloseWithOneSentenceInARunWhenTheSettingsCantBeWritten) {
    have_settings("[DaysOff]\r\n1=1\r\n");
    start();
    files.read_only.insert("/program/Orvanta.ini");
    for (int opening = 0; opening < 2; ++opening) {
        Opened dialog(*this);
        dialog.form.set_chkday(3, true);
        dialog.ok();
        EXPECT_FALSE(dialog.form.is_open);
    }
    const std::string restart = "You will need to restart the program for the changes to take effect.";
    EXPECT_EQ(boxes(),
              (Lines{"The settings file \"/program/Orvanta.ini\" can't be written. What was changed in it "
                     "is lost.",
                     restart, restart}));
    EXPECT_EQ(settings_file(), "[DaysOff]\r\n1=1\r\n");
}

TEST_F(BrokenDaysOff, StayOpenWhenTheWidthsCantBeWritten) {
    have_settings("[DaysOff]\r\n1=1\r\n");
    start();
    Opened dialog(*this);
    user_store.refuses_writes = true;
    dialog.form.set_chkday(1, false);
    dialog.ok();
    EXPECT_TRUE(dialog.form.is_open);
    EXPECT_EQ(boxes(), (Lines{"Error 5: 'Invalid procedure call or argument'"}));
}

TEST_F(BrokenDaysOff, TakeAnySettingButOneForAWorkingDay) {
    have_settings("[DaysOff]\r\n1=yes\r\n2=\r\n3=99999999999999999999\r\n4=1.0\r\n5= 1\r\n");
    start();
    Opened dialog(*this);
    EXPECT_FALSE(dialog.form.checked[1]);
    EXPECT_FALSE(dialog.form.checked[2]);
    EXPECT_FALSE(dialog.form.checked[3]);
    EXPECT_TRUE(dialog.form.checked[4]);
    EXPECT_TRUE(dialog.form.checked[5]);
    EXPECT_TRUE(box.shown.empty());
}

} // namespace
