#pragma once

#include "core/settings/ini_lib.h"
#include "core/settings/per_user_store.h"
#include "core/values/locale.h"

#include <array>
#include <string>
#include <string_view>

// Every key that the program reads or writes, with the default that its readers pass. Where readers pass different
// defaults, there is a key for each.
namespace settings {

enum class Place { settings_file, per_user_store };

template <Place place, typename Text>
struct BasicKey {
    std::string_view section;
    Text name;
    Text default_value{};
};

using Key = BasicKey<Place::settings_file, std::string_view>;
using NumberedKey = BasicKey<Place::settings_file, std::string>; // its name or default is put together
using UserKey = BasicKey<Place::per_user_store, std::string_view>;
using NumberedUserKey = BasicKey<Place::per_user_store, std::string>;

template <typename Text>
std::string read(const IniLib& ini, const BasicKey<Place::settings_file, Text>& key,
                 std::string_view default_value) {
    return ini.GetKeyValue(key.section, key.name, default_value);
}
template <typename Text>
std::string read(const IniLib& ini, const BasicKey<Place::settings_file, Text>& key) {
    return read(ini, key, key.default_value);
}
template <typename Text>
bool write(IniLib& ini, const BasicKey<Place::settings_file, Text>& key, std::string_view value) {
    return ini.WriteKeyValue(key.section, key.name, value);
}

template <typename Text>
std::string read(const PerUserStore& store, const BasicKey<Place::per_user_store, Text>& key,
                 const std::string& default_value) {
    return store.read(std::string(key.section), std::string(key.name), default_value);
}
template <typename Text>
std::string read(const PerUserStore& store, const BasicKey<Place::per_user_store, Text>& key) {
    return read(store, key, std::string(key.default_value));
}
template <typename Text>
void write(PerUserStore& store, const BasicKey<Place::per_user_store, Text>& key, const std::string& value) {
    store.write(std::string(key.section), std::string(key.name), value);
}
template <typename Text>
void remove(PerUserStore& store, const BasicKey<Place::per_user_store, Text>& key) {
    store.remove(std::string(key.section), std::string(key.name));
}

namespace sections {
inline constexpr std::string_view settings = "Settings"; // in both stores
inline constexpr std::string_view slots = "Slots";
inline constexpr std::string_view days_off = "DaysOff";
inline constexpr std::string_view off = "Off"; // in both stores
inline constexpr std::string_view filter = "Filter";
inline constexpr std::string_view colors = "Colors";
inline constexpr std::string_view fields = "Fields";
inline constexpr std::string_view excel = "Excel";
inline constexpr std::string_view print = "Print";
inline constexpr std::string_view holidays = "Holidays"; // in the holidays file
inline constexpr std::string_view activity = "Activity"; // in the per-user store, as is the next
inline constexpr std::string_view exporting = "Exporting";
} // namespace sections

// The views' words in keys.
inline constexpr std::string_view daily = "Daily";
inline constexpr std::string_view weekly = "Weekly";

namespace keys {

inline constexpr Key first_day{sections::settings, "1stday", "1"};               // 1 Sunday to 7
inline constexpr Key display_contact{sections::settings, "DisplayContact", "1"}; // 25 more is a field number
inline constexpr Key display_contact_in_export{sections::settings, "DisplayContact", "0"};
inline constexpr Key std_col_width{sections::settings, "StdColWidth", "1800"}; // twips, as are all sizes here
inline constexpr Key std_row_height{sections::settings, "StdRowHeight", "820"};
inline constexpr Key coll_col_width{sections::settings, "CollColWidth", "180"};
inline constexpr Key span_text{sections::settings, "SpanText", "( Continued )"};
inline constexpr Key one_row_per_user{sections::settings, "OneRowPerUser", "1"};
inline constexpr Key cells_per_slot{sections::settings, "CellsPerSlot", "4"};
inline constexpr Key check_recurring{sections::settings, "CheckRecurring", "1"};
inline constexpr Key auto_refresh{sections::settings, "AutoRefresh", "15"}; // minutes, 0 for never
inline constexpr Key auto_refresh_prompt{sections::settings, "AutoRefreshPrompt", "1"};
inline constexpr Key show_icons{sections::settings, "ShowIcons", "1"};
// 0 the activity's colour, 1 the one of color_2, 2 the user's
inline constexpr Key show_acty_colors{sections::settings, "ShowActyColors", "0"};
inline constexpr Key color_0{sections::settings, "Color0", "&H00FFFFFF"}; // even slots
inline constexpr Key color_1{sections::settings, "Color1", "&HC0E0FF"};   // odd slots
inline constexpr Key color_2{sections::settings, "Color2", "&H0"};        // the one colour of activities
inline constexpr Key color_3{sections::settings, "Color3", "&HFFC0C0"};   // holidays and inactive slots
inline constexpr Key color_4{sections::settings, "Color4", "&H40C0"};     // user names in column 1
inline constexpr std::array color = {color_0, color_1, color_2, color_3, color_4};
inline constexpr std::string_view color_2_after_reset = "&H000000FF"; // what the settings dialog's reset sets
inline constexpr Key pm{sections::settings, "PM", "12:00:00PM"};      // the first time of the afternoon
inline constexpr Key acty_type{sections::settings, "ActyType", "M"};  // "C", "M" or "T"
inline constexpr Key acty_priority{sections::settings, "ActyPriority", "L"}; // "H", "M" or "L"
inline constexpr Key acty_regarding{sections::settings, "ActyRegarding"};
// The sizes of a view, absent until the settings dialog is first saved; readers pass the current size.
NumberedKey view_std_col_width(std::string_view view);
NumberedKey view_std_row_height(std::string_view view);

inline constexpr int most_slots = 32; // numbered from 0
inline constexpr Key slots_count{sections::slots, "SlotsCount", "9"};
inline constexpr Key slots_count_in_dialog{sections::slots, "SlotsCount", "8"};
// The default is 8:00 and an hour more for each slot in the locale's default text form; from slot 16 it has the
// next day's date.
NumberedKey slot_start(int slot, const values::Locale& locale);
NumberedKey slot_duration(int slot); // minutes
NumberedKey use_slot(int slot);

NumberedKey day_off(int weekday); // 1 Sunday to 7
// The inactive ranges of a weekday, by its full name in the locale.
NumberedKey inactive_ranges(const std::string& weekday_name);

inline constexpr Key filter_users{sections::filter, "Users"}; // ids joined without a separator
inline constexpr Key filter_all{sections::filter, "All", "1"};
inline constexpr Key filter_show_cleared{sections::filter, "ShowCleared", "0"};
NumberedKey filter_type(int type);         // 0 calls, 1 meetings, 2 to-dos
NumberedKey filter_priority(int priority); // 0 high, 1 medium, 2 low

NumberedKey user_color(const std::string& user_name);

inline constexpr int extra_fields = 6; // lines of each view, numbered from 0
// The default field ids and new-line flags: six of the daily, then six of the weekly view.
inline constexpr std::array<std::string_view, 12> ExtraFieldDefaults = {"27", "30", "31", "35", "", "",
                                                                        "27", "30", "31", "35", "", ""};
inline constexpr std::array<std::string_view, 12> ExtraFieldNewLines = {"1", "1", "0", "1", "0", "0",
                                                                        "1", "1", "0", "1", "0", "0"};
NumberedKey extra_field(std::string_view view, int line);
NumberedKey extra_field_label(std::string_view view, int line);
NumberedKey extra_field_new_line(std::string_view view, int line);
NumberedKey exported_label(int line); // read by the export; nobody writes it

inline constexpr Key excel_template{sections::excel, "Template"}; // readers pass the shipped template's path

// The options of an export stand in a section named after the template's file, without folder and ending.
inline constexpr std::string_view shipped_template = "orvanta_template.xlt";
constexpr Key export_template(std::string_view name) { return {name, "Template"}; }
constexpr Key export_date_row(std::string_view name) { return {name, "DateRow", "1"}; }
constexpr Key export_time_col(std::string_view name) { return {name, "TimeCol", "1"}; }
constexpr Key export_colors(std::string_view name) { return {name, "ExportColors", "1"}; }
constexpr Key export_fore_colors(std::string_view name) { return {name, "ExportForeColors", "0"}; }
constexpr Key export_borders(std::string_view name) { return {name, "Borders", "1"}; }
constexpr Key export_sizes(std::string_view name) { return {name, "ExportSizes", "0"}; }
constexpr Key export_tooltip(std::string_view name) { return {name, "Tooltip", "0"}; }
constexpr Key export_top_left_row(std::string_view name) { return {name, "TopLeftRow", "1"}; }
constexpr Key export_top_left_col(std::string_view name) { return {name, "TopLeftCol", "A"}; }

inline constexpr Key print_range{sections::print, "Range", "All"};
inline constexpr Key print_orientation{sections::print, "Orientation", "False"}; // "True" is portrait
// Page Setup writes margins 0 and 1, printing reads 1 and 2: the two don't meet, as users know it.
NumberedKey print_margin(int number); // inches
// The most data rows of a page (0) and the number of data columns (1), "-1" for none.
NumberedKey print_limit(int number);
// The titles: 0 the header, 1 the footer. Two defaults differ in Page Setup.
NumberedKey title_text(int title);
NumberedKey title_text_in_page_setup(int title);
NumberedKey title_font_name(int title);
NumberedKey title_font_size(int title); // points
NumberedKey title_font_size_in_page_setup(int title);
NumberedKey title_font_italic(int title);
NumberedKey title_font_bold(int title);
NumberedKey title_font_underline(int title);
NumberedKey title_font_strike_through(int title);
NumberedKey title_font_fore_color(int title);

inline constexpr UserKey settings_file{sections::settings, "SettingsFile"};
inline constexpr UserKey weekly_view{sections::settings, "WeeklyView", "1"};
inline constexpr UserKey window_state{sections::settings, "WindowState", "0"};
// The window's place in twips; readers pass defaults from the screen's size.
inline constexpr UserKey window_left{sections::settings, "Left"};
inline constexpr UserKey window_top{sections::settings, "Top"};
inline constexpr UserKey window_width{sections::settings, "Width"};
inline constexpr UserKey window_height{sections::settings, "Height"};
inline constexpr UserKey mini_cal_top{sections::settings, "MiniCalTop", "500"};
inline constexpr UserKey mini_cal_left{sections::settings, "MiniCalLeft", "500"};
NumberedUserKey row_height(std::string_view view, int row);
NumberedUserKey old_row_height(int row); // of an older release
NumberedUserKey fixed_col_width(int column);
NumberedUserKey col_width(int column);

// What the activity window reads.
inline constexpr UserKey activity_type{sections::activity, "Type"};
inline constexpr UserKey activity_date{sections::activity, "Date"};
inline constexpr UserKey activity_time{sections::activity, "Time"};
inline constexpr UserKey activity_duration{sections::activity, "Duration"};
inline constexpr UserKey activity_regarding{sections::activity, "Regarding"};
inline constexpr UserKey activity_priority{sections::activity, "Priority"};
inline constexpr UserKey activity_for{sections::activity, "For"};
inline constexpr UserKey activity_recurring_edit{sections::activity, "RecurringEdit"};

// Between the export and its progress window.
inline constexpr UserKey exporting_progress{sections::exporting, "Progress"};
inline constexpr UserKey exporting_stopped{sections::exporting, "Stopped", "0"};
inline constexpr UserKey exporting_end{sections::exporting, "End"};

} // namespace keys

} // namespace settings
