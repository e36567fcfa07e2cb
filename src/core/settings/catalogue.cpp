#include "core/settings/catalogue.h"

#include "core/values/text_forms.h"

namespace settings::keys {

namespace {

std::string numbered(std::string_view word, int number) { return std::string(word) + std::to_string(number); }

NumberedKey title_key(std::string_view word, int title, std::string default_value) {
    return {sections::print, numbered(word, title), std::move(default_value)};
}

// The place in the tables of defaults: the weekly view's six come after the daily view's.
std::size_t field_index(std::string_view view, int line) {
    return static_cast<std::size_t>(view == weekly ? line + extra_fields : line);
}

NumberedKey field_key(std::string_view view, std::string_view word, int line, std::string_view default_value) {
    return {sections::fields, numbered(std::string(view).append(word), line), std::string(default_value)};
}

} // namespace

NumberedKey view_std_col_width(std::string_view view) {
    return {sections::settings, std::string(view).append("StdColWidth")};
}
NumberedKey view_std_row_height(std::string_view view) {
    return {sections::settings, std::string(view).append("StdRowHeight")};
}

NumberedKey slot_start(int slot, const values::Locale& locale) {
    const auto start = values::DateTime::time_of_day(8 + slot, 0);
    return {sections::slots, numbered("Slot", slot), values::default_text(start, locale)};
}
NumberedKey slot_duration(int slot) { return {sections::slots, numbered("DurationSlot", slot), "60"}; }
NumberedKey use_slot(int slot) { return {sections::slots, numbered("UseSlot", slot), "1"}; }

NumberedKey day_off(int weekday) { return {sections::days_off, std::to_string(weekday), "0"}; }
NumberedKey inactive_ranges(const std::string& weekday_name) { return {sections::off, weekday_name}; }

NumberedKey filter_type(int type) { return {sections::filter, numbered("Type", type), "1"}; }
NumberedKey filter_priority(int priority) { return {sections::filter, numbered("Priority", priority), "1"}; }

NumberedKey user_color(const std::string& user_name) { return {sections::colors, user_name, "0"}; }

NumberedKey extra_field(std::string_view view, int line) {
    return field_key(view, "Field", line, ExtraFieldDefaults.at(field_index(view, line)));
}
NumberedKey extra_field_label(std::string_view view, int line) { return field_key(view, "Label", line, ""); }
NumberedKey extra_field_new_line(std::string_view view, int line) {
    return field_key(view, "NewLine", line, ExtraFieldNewLines.at(field_index(view, line)));
}
NumberedKey exported_label(int line) { return {sections::fields, numbered("Label", line)}; }

NumberedKey print_margin(int number) { return {sections::print, numbered("Margin", number), "0.25"}; }
NumberedKey print_limit(int number) { return {sections::print, numbered("Limit", number), "-1"}; }

NumberedKey title_text(int title) { return title_key("TitleText", title, ""); }
NumberedKey title_text_in_page_setup(int title) {
    return title_key("TitleText", title, title == 0 ? "" : "Page &[Page]");
}
NumberedKey title_font_name(int title) { return title_key("FontName", title, "Arial"); }
NumberedKey title_font_size(int title) { return title_key("FontSize", title, "14"); }
NumberedKey title_font_size_in_page_setup(int title) {
    return title_key("FontSize", title, title == 0 ? "14" : "10");
}
NumberedKey title_font_italic(int title) { return title_key("FontItalic", title, "False"); }
NumberedKey title_font_bold(int title) { return title_key("FontBold", title, "False"); }
NumberedKey title_font_underline(int title) { return title_key("FontUnderline", title, "False"); }
NumberedKey title_font_strike_through(int title) { return title_key("FontStrikeThrough", title, "False"); }
NumberedKey title_font_fore_color(int title) { return title_key("FontForeColor", title, "0"); }

NumberedUserKey row_height(std::string_view view, int row) {
    return {sections::settings, numbered(std::string("RowHeight").append(view), row)};
}
NumberedUserKey old_row_height(int row) { return {sections::settings, numbered("RowHeight", row)}; }
NumberedUserKey fixed_col_width(int column) {
    return {sections::settings, numbered("FixedColWidth", column), std::to_string(1000 + 300 * column)};
}
NumberedUserKey col_width(int column) { return {sections::settings, numbered("ColWidth", column)}; }

} // namespace settings::keys
