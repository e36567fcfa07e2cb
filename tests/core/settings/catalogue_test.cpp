#include "core/settings/catalogue.h"

#include "core/values/text_forms.h"
#include "support/failure_number.h"
#include "support/fake_message_box.h"
#include "support/fake_user_store.h"
#include "support/fake_window.h"
#include "support/locales.h"
#include "support/plain_files.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <stdexcept>

using namespace settings;
using values::DateTime;
using values::english_us;

namespace {

class CatalogueTest : public ::testing::Test {
protected:
    CatalogueTest() { ini.SettingsFile = folder.file("Orvanta.ini"); }

    support::TemporaryFolder folder;
    support::PlainFiles files;
    support::FakeMessageBox box;
    host::ApplicationInfo application;
    support::FakeWindow window;
    host::Guard guarded{box, application, window};
    IniLib ini{files, guarded};
    support::FakeUserStore store;
    PerUserStore per_user{store};
};

template <typename SomeKey>
std::string whole(const SomeKey& key) {
    return std::string(key.section) + "/" + std::string(key.name) + "=" + std::string(key.default_value);
}

} // namespace

TEST_F(CatalogueTest, WithoutASettingsFileThereAreNineSlotsFrom8InStepsOfAnHour) {
    EXPECT_EQ(read(ini, keys::slots_count), "9");
    for (int slot = 0; slot < 9; ++slot) {
        EXPECT_EQ(values::parse_date(read(ini, keys::slot_start(slot, english_us())), english_us()),
                  DateTime::time_of_day(8 + slot, 0));
        EXPECT_EQ(read(ini, keys::slot_duration(slot)), "60");
    }
}

TEST_F(CatalogueTest, WithoutASettingsFileThereAreFourRowsNoDaysOffAndAllUsers) {
    EXPECT_EQ(read(ini, keys::cells_per_slot), "4");
    EXPECT_EQ(read(ini, keys::one_row_per_user), "1");
    for (int weekday = 1; weekday <= 7; ++weekday)
        EXPECT_EQ(read(ini, keys::day_off(weekday)), "0");
    EXPECT_EQ(read(ini, keys::filter_all), "1");
    EXPECT_EQ(read(ini, keys::filter_users), "");
}

TEST_F(CatalogueTest, TheTimeSlotDialogHasADefaultOfItsOwn) {
    EXPECT_EQ(read(ini, keys::slots_count_in_dialog), "8");
    write(ini, keys::slots_count, "12");
    EXPECT_EQ(read(ini, keys::slots_count), "12");
    EXPECT_EQ(read(ini, keys::slots_count_in_dialog), "12");
}

TEST_F(CatalogueTest, TheSizesOfTheViewsAreAbsentUntilTheyAreWritten) {
    EXPECT_EQ(whole(keys::view_std_col_width(daily)), "Settings/DailyStdColWidth=");
    EXPECT_EQ(whole(keys::view_std_row_height(daily)), "Settings/DailyStdRowHeight=");
    EXPECT_EQ(whole(keys::view_std_col_width(weekly)), "Settings/WeeklyStdColWidth=");
    EXPECT_EQ(whole(keys::view_std_row_height(weekly)), "Settings/WeeklyStdRowHeight=");
    EXPECT_EQ(read(ini, keys::view_std_col_width(daily), "1800"), "1800");
    write(ini, keys::view_std_col_width(daily), "2000");
    EXPECT_EQ(read(ini, keys::view_std_col_width(daily), "1800"), "2000");
}

TEST_F(CatalogueTest, SlotsFromMidnightOnStartOnTheNextDay) {
    EXPECT_EQ(keys::slot_start(15, english_us()).default_value, "11:00:00 PM");
    EXPECT_EQ(keys::slot_start(16, english_us()).default_value, "12/31/1899");
    EXPECT_EQ(keys::slot_start(17, english_us()).default_value, "12/31/1899 1:00:00 AM");
    EXPECT_EQ(keys::slot_start(31, support::german()).default_value, "31.12.1899 15:00:00");
}

TEST_F(CatalogueTest, ReadsAndWritesThePerUserStore) {
    EXPECT_EQ(read(per_user, keys::weekly_view), "1");
    write(per_user, keys::weekly_view, "0");
    EXPECT_EQ(read(per_user, keys::weekly_view), "0");
    EXPECT_EQ(read(per_user, keys::window_left, "480"), "480");
    write(per_user, keys::old_row_height(150), "300");
    remove(per_user, keys::old_row_height(150));
    EXPECT_EQ(support::failure_number([&] { remove(per_user, keys::old_row_height(150)); }), 5);
    EXPECT_EQ(read(per_user, keys::fixed_col_width(0)), "1000");
    EXPECT_EQ(read(per_user, keys::fixed_col_width(1)), "1300");
}

TEST(Catalogue, NamesTheSettings) {
    EXPECT_EQ(whole(keys::first_day), "Settings/1stday=1");
    EXPECT_EQ(whole(keys::display_contact), "Settings/DisplayContact=1");
    EXPECT_EQ(whole(keys::display_contact_in_export), "Settings/DisplayContact=0");
    EXPECT_EQ(whole(keys::std_col_width), "Settings/StdColWidth=1800");
    EXPECT_EQ(whole(keys::std_row_height), "Settings/StdRowHeight=820");
    EXPECT_EQ(whole(keys::coll_col_width), "Settings/CollColWidth=180");
    EXPECT_EQ(whole(keys::span_text), "Settings/SpanText=( Continued )");
    EXPECT_EQ(whole(keys::check_recurring), "Settings/CheckRecurring=1");
    EXPECT_EQ(whole(keys::auto_refresh), "Settings/AutoRefresh=15");
    EXPECT_EQ(whole(keys::auto_refresh_prompt), "Settings/AutoRefreshPrompt=1");
    EXPECT_EQ(whole(keys::show_icons), "Settings/ShowIcons=1");
    EXPECT_EQ(whole(keys::show_acty_colors), "Settings/ShowActyColors=0");
    EXPECT_EQ(whole(keys::pm), "Settings/PM=12:00:00PM");
    EXPECT_EQ(whole(keys::acty_type), "Settings/ActyType=M");
    EXPECT_EQ(whole(keys::acty_priority), "Settings/ActyPriority=L");
    EXPECT_EQ(whole(keys::acty_regarding), "Settings/ActyRegarding=");
}

TEST(Catalogue, NamesTheColours) {
    const char* const defaults[] = {"&H00FFFFFF", "&HC0E0FF", "&H0", "&HFFC0C0", "&H40C0"};
    for (std::size_t i = 0; i < keys::color.size(); ++i)
        EXPECT_EQ(whole(keys::color[i]), "Settings/Color" + std::to_string(i) + "=" + defaults[i]);
    EXPECT_EQ(whole(keys::user_color("Zoë Lee")), "Colors/Zoë Lee=0");
}

TEST(Catalogue, NumbersKeysDirectlyBehindTheWord) {
    EXPECT_EQ(whole(keys::slot_start(3, english_us())), "Slots/Slot3=11:00:00 AM");
    EXPECT_EQ(whole(keys::slot_duration(31)), "Slots/DurationSlot31=60");
    EXPECT_EQ(whole(keys::use_slot(0)), "Slots/UseSlot0=1");
    EXPECT_EQ(whole(keys::day_off(7)), "DaysOff/7=0");
    EXPECT_EQ(whole(keys::inactive_ranges("Freitag")), "Off/Freitag=");
    EXPECT_EQ(whole(keys::filter_type(0)), "Filter/Type0=1");
    EXPECT_EQ(whole(keys::filter_priority(2)), "Filter/Priority2=1");
    EXPECT_EQ(whole(keys::filter_show_cleared), "Filter/ShowCleared=0");
}

TEST(Catalogue, NamesTheExtraFieldsOfBothViews) {
    EXPECT_EQ(whole(keys::extra_field(daily, 0)), "Fields/DailyField0=27");
    EXPECT_EQ(whole(keys::extra_field(weekly, 3)), "Fields/WeeklyField3=35");
    EXPECT_EQ(whole(keys::extra_field(daily, 5)), "Fields/DailyField5=");
    EXPECT_EQ(whole(keys::extra_field_label(weekly, 1)), "Fields/WeeklyLabel1=");
    EXPECT_EQ(whole(keys::extra_field_new_line(weekly, 2)), "Fields/WeeklyNewLine2=0");
    EXPECT_EQ(whole(keys::extra_field_new_line(daily, 3)), "Fields/DailyNewLine3=1");
    EXPECT_EQ(whole(keys::exported_label(1)), "Fields/Label1=");
    EXPECT_THROW(keys::extra_field(weekly, keys::extra_fields), std::out_of_range);
}

TEST(Catalogue, NamesTheExportOptionsOfATemplate) {
    EXPECT_EQ(whole(keys::excel_template), "Excel/Template=");
    EXPECT_EQ(whole(keys::export_template("report")), "report/Template=");
    EXPECT_EQ(whole(keys::export_date_row("report")), "report/DateRow=1");
    EXPECT_EQ(whole(keys::export_time_col("report")), "report/TimeCol=1");
    EXPECT_EQ(whole(keys::export_colors("report")), "report/ExportColors=1");
    EXPECT_EQ(whole(keys::export_fore_colors("report")), "report/ExportForeColors=0");
    EXPECT_EQ(whole(keys::export_borders("report")), "report/Borders=1");
    EXPECT_EQ(whole(keys::export_sizes("report")), "report/ExportSizes=0");
    EXPECT_EQ(whole(keys::export_tooltip("report")), "report/Tooltip=0");
    EXPECT_EQ(whole(keys::export_top_left_row("report")), "report/TopLeftRow=1");
    EXPECT_EQ(whole(keys::export_top_left_col("report")), "report/TopLeftCol=A");
}

TEST(Catalogue, NamesThePrintSettingsAndWherePageSetupDiffers) {
    EXPECT_EQ(whole(keys::print_range), "Print/Range=All");
    EXPECT_EQ(whole(keys::print_orientation), "Print/Orientation=False");
    EXPECT_EQ(whole(keys::print_margin(2)), "Print/Margin2=0.25");
    EXPECT_EQ(whole(keys::print_limit(0)), "Print/Limit0=-1");
    EXPECT_EQ(whole(keys::title_text(1)), "Print/TitleText1=");
    EXPECT_EQ(whole(keys::title_text_in_page_setup(0)), "Print/TitleText0=");
    EXPECT_EQ(whole(keys::title_text_in_page_setup(1)), "Print/TitleText1=Page &[Page]");
    EXPECT_EQ(whole(keys::title_font_name(0)), "Print/FontName0=Arial");
    EXPECT_EQ(whole(keys::title_font_size(1)), "Print/FontSize1=14");
    EXPECT_EQ(whole(keys::title_font_size_in_page_setup(0)), "Print/FontSize0=14");
    EXPECT_EQ(whole(keys::title_font_size_in_page_setup(1)), "Print/FontSize1=10");
    EXPECT_EQ(whole(keys::title_font_italic(0)), "Print/FontItalic0=False");
    EXPECT_EQ(whole(keys::title_font_bold(0)), "Print/FontBold0=False");
    EXPECT_EQ(whole(keys::title_font_underline(0)), "Print/FontUnderline0=False");
    EXPECT_EQ(whole(keys::title_font_strike_through(1)), "Print/FontStrikeThrough1=False");
    EXPECT_EQ(whole(keys::title_font_fore_color(1)), "Print/FontForeColor1=0");
}

TEST(Catalogue, NamesThePerUserValues) {
    EXPECT_EQ(whole(keys::settings_file), "Settings/SettingsFile=");
    EXPECT_EQ(whole(keys::window_state), "Settings/WindowState=0");
    EXPECT_EQ(whole(keys::mini_cal_top), "Settings/MiniCalTop=500");
    EXPECT_EQ(whole(keys::row_height(weekly, 4)), "Settings/RowHeightWeekly4=");
    EXPECT_EQ(whole(keys::old_row_height(4)), "Settings/RowHeight4=");
    EXPECT_EQ(whole(keys::col_width(2)), "Settings/ColWidth2=");
    EXPECT_EQ(whole(keys::activity_recurring_edit), "Activity/RecurringEdit=");
    EXPECT_EQ(whole(keys::exporting_stopped), "Exporting/Stopped=0");
}
