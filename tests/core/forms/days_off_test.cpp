#include "core/forms/days_off.h"

#include "core/values/text.h"
#include "days_off_world.h"
#include "support/locales.h"

namespace {

using support::Opened;
using values::DateTime;
using Lines = std::vector<std::string>;

class DaysOffTest : public support::DaysOffTest {};

TEST_F(DaysOffTest, OpensWithTheFilesHolidaysTheDaysOffAndToday) {
    have_holidays("12/25/2024=Christmas\r\n1/1/2024=New Year\r\n");
    have_settings("[DaysOff]\r\n1=1\r\n7=1\r\n3=0\r\n");
    start();
    Opened dialog(*this);
    EXPECT_EQ(dialog.form.rows, (Lines{"12/25/2024=Christmas", "1/1/2024=New Year"}));
    for (int weekday = 1; weekday <= 7; ++weekday)
        EXPECT_EQ(dialog.form.checked[weekday], weekday == 1 || weekday == 7) << weekday;
    EXPECT_EQ(dialog.form.date, DateTime::of(2024, 1, 10));
    EXPECT_TRUE(dialog.form.first_tab);
    EXPECT_TRUE(dialog.form.can_be_confirmed);
    dialog.procedures.cmdCancel_Click();
    EXPECT_FALSE(dialog.form.is_open);
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(DaysOffTest, WithoutAFileHaveNoHolidaysAndOKMakesIt) {
    start();
    Opened dialog(*this);
    EXPECT_TRUE(dialog.form.rows.empty());
    dialog.ok();
    EXPECT_FALSE(dialog.form.is_open);
    EXPECT_EQ(holidays_file(), "[Holidays]\r\n");
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(DaysOffTest, RefuseADateThatStandsInTheFileEvenWithAnotherDescription) {
    have_holidays("1/1/2024=New Year\r\n");
    start();
    Opened dialog(*this);
    dialog.add(1, 1, "Hangover");
    EXPECT_EQ(dialog.form.descriptions_asked, 0);
    EXPECT_EQ(dialog.form.rows, Lines{"1/1/2024=New Year"});
    dialog.procedures.cmdCancel_Click();
    EXPECT_TRUE(box.shown.empty()); // nothing counts as edited
}

TEST_F(DaysOffTest, TakeADateOfTheFileAgainOnceItWasDeletedInTheSameOpening) {
    have_holidays("1/1/2024=New Year\r\n");
    start();
    Opened dialog(*this);
    dialog.remove(0);
    EXPECT_TRUE(dialog.form.rows.empty());
    dialog.add(1, 1, "Hangover");
    dialog.ok();
    EXPECT_EQ(holidays_file(), "[Holidays]\r\n1/1/2024=Hangover\r\n");
}

TEST_F(DaysOffTest, TakeADateThatWasAddedDeletedAndAddedInOneOpening) {
    start();
    Opened dialog(*this);
    dialog.add(5, 1, "May Day");
    dialog.remove(0);
    dialog.add(5, 1, "Labour Day");
    dialog.ok();
    EXPECT_EQ(holidays_file(), "[Holidays]\r\n5/1/2024=Labour Day\r\n");
}

TEST_F(DaysOffTest, GiveADateThatIsAddedTwiceInOneOpeningTwoLines) {
    start();
    Opened dialog(*this);
    dialog.add(5, 1, "May Day");
    dialog.add(5, 1, "Labour Day");
    dialog.ok();
    EXPECT_EQ(holidays_file(), "[Holidays]\r\n5/1/2024=Labour Day\r\n5/1/2024=May Day\r\n");
}

TEST_F(DaysOffTest, PutANewHolidayInDateOrder) {
    have_holidays("1/1/2024=New Year\r\n12/25/2024=Christmas\r\n");
    start();
    Opened dialog(*this);
    dialog.add(5, 1, "May Day");
    EXPECT_EQ(dialog.form.rows, (Lines{"1/1/2024=New Year", "5/1/2024=May Day", "12/25/2024=Christmas"}));
}

TEST_F(DaysOffTest, AddNothingWhenNoDescriptionWasEverGivenButCountAsEdited) {
    start();
    Opened dialog(*this);
    dialog.pick(5, 1);
    dialog.procedures.cmdAdd_Click();
    EXPECT_TRUE(dialog.form.rows.empty());
    dialog.ok();
    EXPECT_EQ(boxes(), Lines{restart_message});
}

TEST_F(DaysOffTest, AddTheDateWithThePreviousDescriptionWhenTheNextOneIsCancelled) {
    start();
    Opened dialog(*this);
    dialog.add(5, 1, "May Day");
    dialog.form.description.reset();
    dialog.pick(5, 2);
    dialog.procedures.cmdAdd_Click();
    EXPECT_EQ(dialog.form.rows, (Lines{"5/1/2024=May Day", "5/2/2024=May Day"}));
}

TEST_F(DaysOffTest, AskBeforeDeletingWithNoAsTheDefaultAnswer) {
    have_holidays("1/1/2024=New Year\r\n");
    start();
    Opened dialog(*this);
    dialog.remove(0);
    ASSERT_EQ(box.shown.size(), 1U);
    const host::Message& question = box.shown[0];
    EXPECT_EQ(question.text, delete_question);
    EXPECT_EQ(question.title, "Orvanta");
    EXPECT_EQ(question.icon, host::Icon::critical);
    EXPECT_EQ(question.buttons, host::Buttons::yes_no);
    EXPECT_TRUE(question.second_is_default);
}

TEST_F(DaysOffTest, TellToRestartEvenWhenTheDeletionWasDeclined) {
    have_holidays("1/1/2024=New Year\r\n");
    start();
    Opened dialog(*this);
    box.answers = {host::Answer::no};
    dialog.remove(0);
    EXPECT_EQ(dialog.form.rows, Lines{"1/1/2024=New Year"});
    dialog.ok();
    EXPECT_EQ(boxes(), (Lines{delete_question, restart_message}));
    EXPECT_EQ(box.shown[1].title, "Orvanta");
    EXPECT_EQ(box.shown[1].icon, host::Icon::information);
    EXPECT_EQ(box.shown[1].buttons, host::Buttons::cancel_try_continue);
    EXPECT_EQ(holidays_file(), "[Holidays]\r\n1/1/2024=New Year\r\n");
}

TEST_F(DaysOffTest, ConfirmedWithoutEditsRewriteTheFileInTheSameFormAndSayNothing) {
    have_holidays("12/25/2024=Christmas\r\n1/1/2024=New Year\r\n");
    have_settings("[DaysOff]\r\n1=1\r\n");
    start();
    const std::string before = holidays_file();
    Opened dialog(*this);
    dialog.ok();
    EXPECT_EQ(holidays_file(), before);
    EXPECT_EQ(value_of("1"), "1");
    EXPECT_EQ(value_of("2"), "0");
    EXPECT_EQ(stored("ColWidth2"), "absent");
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(DaysOffTest, CancelledAfterAnEditTellToRestartAndWriteNothing) {
    have_holidays("1/1/2024=New Year\r\n");
    start();
    const std::string holidays_before = holidays_file(), settings_before = settings_file();
    Opened dialog(*this);
    dialog.add(5, 1, "May Day");
    dialog.form.set_chkday(1, true);
    dialog.procedures.cmdCancel_Click();
    EXPECT_EQ(boxes(), Lines{restart_message});
    EXPECT_EQ(holidays_file(), holidays_before);
    EXPECT_EQ(settings_file(), settings_before);
    EXPECT_EQ(calendar.grid.background.holidays.Holidays, "|1/1/2024|");
}

TEST_F(DaysOffTest, ReplaceTheHolidaysThatTheGridShowsAtItsNextPaintingOnly) {
    start();
    Opened dialog(*this);
    dialog.add(1, 9, "Founders' Day");
    dialog.ok();
    EXPECT_EQ(calendar.grid.background.holidays.Holidays, "|1/9/2024|");
    EXPECT_EQ(calendar.grid.msgSched.TextMatrix(0, 4), "Tuesday Jan. 9");
    calendar.grid.background.Refresh_Colors();
    EXPECT_EQ(calendar.grid.msgSched.TextMatrix(0, 4), "Founders' Day");
}

TEST_F(DaysOffTest, StoreWhatTheBoxesSayForTheNextStart) {
    start();
    Opened dialog(*this);
    dialog.form.set_chkday(1, true);
    dialog.form.set_chkday(7, true);
    dialog.ok();
    EXPECT_EQ(boxes(), Lines{restart_message});
    for (const char* weekday : {"1", "7"})
        EXPECT_EQ(value_of(weekday), "1");
    for (const char* weekday : {"2", "3", "4", "5", "6"})
        EXPECT_EQ(value_of(weekday), "0");
    EXPECT_EQ(layout().DaysOff(), "");
}

TEST_F(DaysOffTest, GiveADayThatComesBackItsStandardWidthOnce) {
    have_settings("[Settings]\r\nStdColWidth=2100\r\n[DaysOff]\r\n7=1\r\n");
    store("ColWidth8", "0");
    store("ColWidth2", "0");
    start();
    {
        Opened dialog(*this);
        dialog.form.set_chkday(7, false);
        dialog.ok();
    }
    EXPECT_EQ(stored("ColWidth8"), "2100");
    EXPECT_EQ(stored("ColWidth2"), "0");
    store("ColWidth8", "1234");
    Opened again(*this);
    again.ok();
    EXPECT_EQ(stored("ColWidth8"), "1234");
}

TEST_F(DaysOffTest, TouchNoWidthOfAWorkingDayThatIsChecked) {
    store("ColWidth2", "1500");
    start();
    Opened dialog(*this);
    dialog.form.set_chkday(1, true);
    dialog.ok();
    EXPECT_EQ(stored("ColWidth2"), "1500");
}

TEST_F(DaysOffTest, TakeTheCalendarsWidthWhereTheSettingsHaveNone) {
    have_settings("[DaysOff]\r\n1=1\r\n");
    start();
    calendar.grid.layout.StdColWidth(1950);
    calendar.grid.layout.OneRowPerUser(false);
    Opened dialog(*this);
    dialog.form.set_chkday(1, false);
    dialog.ok();
    EXPECT_EQ(stored("ColWidth1"), "1950");
}

TEST_F(DaysOffTest, MatchADayByTheTextOfItsDateAlone) {
    have_holidays("09.01.2024=Gründungstag\r\n");
    start();
    Opened dialog(*this, support::german());
    EXPECT_EQ(calendar.grid.msgSched.TextMatrix(0, 4), "Tuesday Jan. 9"); // in the United States no date of a day
    dialog.add(1, 9, "again");
    EXPECT_EQ(dialog.form.rows.size(), 1U); // in Germany it stands in the file
    dialog.add(1, 10, "Tag danach");
    EXPECT_EQ(dialog.form.rows[1], "10.01.2024=Tag danach");
}

} // namespace
