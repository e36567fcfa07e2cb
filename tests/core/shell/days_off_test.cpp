#include "shell/days_off.h"

#include "shell_world.h"
#include "values/text.h"

#include <gtest/gtest.h>

namespace {

using values::DateTime;
using Lines = std::vector<std::string>;

constexpr const char* path = "/program/holidays.dat";
constexpr const char* restart_message = "You will need to restart the program for the changes to take effect.";
constexpr const char* delete_question = "Do you really want to delete this item?";

// The form's controls as plain values. `description` is what the user types into frmDescr; without one they cancel
// it.
class FakeHolidaysForm : public shell::HolidaysForm {
public:
    void show_first_tab() override { first_tab = true; }
    bool chkday(int weekday) const override { return checked[weekday]; }
    void set_chkday(int weekday, bool to) override {
        if (checked[weekday] != to && chkday_Click)
            chkday_Click(weekday);
        checked[weekday] = to;
    }
    DateTime dtpHol() const override { return date; }
    void set_dtpHol(DateTime to) override { date = to; }
    void fill_lvwHol(std::span<const shell::Holiday> holidays) override {
        for (const shell::Holiday& holiday : holidays)
            insert_into_lvwHol(rows.size(), holiday);
    }
    void insert_into_lvwHol(std::size_t place, const shell::Holiday& holiday) override {
        rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(place), holiday.date + "=" + holiday.description);
    }
    void remove_from_lvwHol(std::size_t place) override {
        rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(place));
    }
    std::optional<std::size_t> selected_in_lvwHol() const override { return selected; }
    void set_cmdOK_enabled(bool enabled) override { can_be_confirmed = enabled; }
    void show_frmDescr(std::string& sDescr) override {
        ++descriptions_asked;
        if (description)
            sDescr = *description;
    }
    void unload() override {
        is_open = false;
        Form_Unload();
    }

    bool checked[8] = {};
    DateTime date;
    Lines rows;
    std::optional<std::size_t> selected;
    std::optional<std::string> description;
    int descriptions_asked = 0;
    bool first_tab = false, can_be_confirmed = false, is_open = true;
    std::function<void()> Form_Unload;
    std::function<void(int)> chkday_Click;
};

// One opening of the dialog.
struct Opened {
    explicit Opened(support::ShellWorld& world, const values::Locale& locale = values::english_us())
        : guarded(world.box, world.application), procedures({.form = form,
                                                             .file = world.calendar.holidays,
                                                             .background = world.calendar.grid.background,
                                                             .layout = world.calendar.grid.layout,
                                                             .ini = world.calendar.ini,
                                                             .user_store = world.calendar.user_store,
                                                             .locale = locale,
                                                             .clock = world.clock,
                                                             .box = world.box,
                                                             .application = world.application,
                                                             .guarded = guarded}) {
        form.Form_Unload = [this] { procedures.Form_Unload(); };
        form.chkday_Click = [this](int weekday) { procedures.chkday_Click(weekday); };
        procedures.Form_Load();
    }
    void pick(int month, int day) { form.date = DateTime::of(2024, month, day); }
    void add(int month, int day, const std::string& description) {
        pick(month, day);
        form.description = description;
        procedures.cmdAdd_Click();
    }
    void remove(std::size_t place) {
        form.selected = place;
        procedures.cmdDelete_Click();
    }
    void ok() { procedures.cmdOK_Click(); }

    FakeHolidaysForm form;
    host::Guard guarded;
    shell::DaysOff procedures;
};

class DaysOffTest : public ::testing::Test, protected support::ShellWorld {
protected:
    void have_holidays(const std::string& lines) { files.content[path] = "[Holidays]\r\n" + lines; }
    std::string holidays_file() { return files.content[path]; }
    std::string settings_file() { return files.content["/program/Orvanta.ini"]; }
    std::string value_of(const char* weekday) { return calendar.ini.GetKeyValue("DaysOff", weekday, "absent"); }
};

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

TEST_F(DaysOffTest, ShowTheFailureBoxForADateInTheListThatIsNoneAndAddNothing) {
    have_holidays("whenever=Party\r\n");
    start();
    Opened dialog(*this);
    dialog.add(5, 1, "May Day");
    EXPECT_EQ(dialog.form.rows, Lines{"whenever=Party"});
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_TRUE(box.shown[0].text.starts_with(
        "Error 13: 'Type mismatch'\rin frmHolidays: Sub cmdAdd_Click - Line # 40\r"));
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
    EXPECT_EQ(holidays_file(), "[Holidays]\r\n1/1/2024=New Year\r\n");
}

TEST_F(DaysOffTest, ShowTheFailureBoxForADeletionWithNothingSelected) {
    start();
    Opened dialog(*this);
    dialog.procedures.cmdDelete_Click();
    ASSERT_EQ(box.shown.size(), 1U);
    EXPECT_TRUE(box.shown[0].text.starts_with("Error 91: "));
    EXPECT_TRUE(values::contains(box.shown[0].text, "in frmHolidays: Sub cmdDelete_Click - Line # 10"));
    dialog.procedures.cmdCancel_Click();
    EXPECT_EQ(box.shown.size(), 1U);
}

TEST_F(DaysOffTest, LeaveAnItemWithoutADateAlone) {
    have_holidays("=Never\r\n");
    start();
    Opened dialog(*this);
    dialog.remove(0);
    EXPECT_EQ(dialog.form.rows, Lines{"=Never"});
    EXPECT_TRUE(box.shown.empty());
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
    EXPECT_EQ(calendar.grid.background.Holidays, "|1/1/2024|");
}

TEST_F(DaysOffTest, ReplaceTheHolidaysThatTheGridShowsAtItsNextPaintingOnly) {
    start();
    Opened dialog(*this);
    dialog.add(1, 9, "Founders' Day");
    dialog.ok();
    EXPECT_EQ(calendar.grid.background.Holidays, "|1/9/2024|");
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
    EXPECT_EQ(layout().DaysOff, "");
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
    calendar.grid.layout.StdColWidth = 1950;
    calendar.grid.layout.FixedCols = 1;
    Opened dialog(*this);
    dialog.form.set_chkday(1, false);
    dialog.ok();
    EXPECT_EQ(stored("ColWidth1"), "1950");
}

TEST_F(DaysOffTest, MatchADayByTheTextOfItsDateAlone) {
    have_holidays("09.01.2024=Gründungstag\r\n");
    start();
    Opened dialog(*this, values::german());
    EXPECT_EQ(calendar.grid.msgSched.TextMatrix(0, 4), "Tuesday Jan. 9"); // in the United States no date of a day
    dialog.add(1, 9, "again");
    EXPECT_EQ(dialog.form.rows.size(), 1U); // in Germany it stands in the file
    dialog.add(1, 10, "Tag danach");
    EXPECT_EQ(dialog.form.rows[1], "10.01.2024=Tag danach");
}

TEST_F(DaysOffTest, OfAFileWithALineWithoutAnEqualsSignShowWhatStandsBeforeItAndCantBeConfirmed) {
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

TEST_F(DaysOffTest, OfAFileOfTenMegabytesShowTheFailureBoxAndCantBeConfirmed) {
    start();
    files.content[path] = std::string(10 * 1024 * 1024, '=');
    Opened dialog(*this);
    EXPECT_EQ(boxes(), Lines{"Error 75: 'Path/File access error'"});
    EXPECT_FALSE(dialog.form.can_be_confirmed);
}

TEST_F(DaysOffTest, KeepNULsAndTheLastLineWithoutItsEnd) {
    have_holidays(std::string("1/1/2024=N\0w\r\n5/1/2024=May Day", 30));
    start();
    Opened dialog(*this);
    dialog.ok();
    EXPECT_EQ(holidays_file(), "[Holidays]\r\n" + std::string("1/1/2024=N\0w\r\n5/1/2024=May Day\r\n", 32));
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(DaysOffTest, StayOpenAndLoseNothingWhenTheFileCantBeWritten) {
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
    EXPECT_EQ(calendar.grid.background.Holidays, "|1/1/2024|");
    EXPECT_EQ(dialog.form.rows, (Lines{"1/1/2024=New Year", "5/1/2024=May Day"}));
    files.read_only.clear();
    dialog.ok();
    EXPECT_FALSE(dialog.form.is_open);
    EXPECT_TRUE(values::contains(holidays_file(), "May Day"));
    EXPECT_EQ(value_of("1"), "1");
}

TEST_F(DaysOffTest, StayOpenWhenTheSettingsOrTheWidthsCantBeWritten) {
    have_settings("[DaysOff]\r\n1=1\r\n");
    start();
    Opened dialog(*this);
    files.read_only.insert("/program/Orvanta.ini");
    dialog.ok();
    files.read_only.clear();
    user_store.refuses_writes = true;
    dialog.form.set_chkday(1, false);
    dialog.ok();
    EXPECT_TRUE(dialog.form.is_open);
    EXPECT_EQ(boxes(),
              (Lines{"Error 75: 'Path/File access error'", "Error 5: 'Invalid procedure call or argument'"}));
}

TEST_F(DaysOffTest, TakeAnySettingButOneForAWorkingDay) {
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
