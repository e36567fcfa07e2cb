#pragma once

#include "core/values/date_time.h"
#include "core/values/locale.h"

#include <optional>
#include <string>
#include <string_view>

// The text forms of dates and times, one function for each that is in use.
namespace values {

std::string short_date(DateTime value, const Locale& locale); // "1/5/2024"
// The form of a date that is turned into text without a format: the short date and the long time, of which a
// zero time or a zero date is left out: "1/5/2024 9:00:00 AM", "1/5/2024", "9:00:00 AM".
std::string default_text(DateTime value, const Locale& locale);
std::string yyyymmdd(DateTime value);                           // "20240105"
std::string hh_nn_am_pm(DateTime value);                        // "09:05 AM", always AM and PM
std::string hh_nn(DateTime value);                              // "09:05", "21:05"
std::string h_nn(DateTime value);                               // "9:05", "21:05"
std::string medium_time(DateTime value, const Locale& locale);  // "09:05 PM", with the locale's marks
std::string weekday_name(DateTime value, const Locale& locale); // "Friday"

// Reads whatever default_text and the other forms write in this locale, the locale's common forms, month names,
// ISO ("2024-01-05", "2024-01-05 09:00:00") and times with or without seconds and AM or PM in any locale.
// Absent when the text holds no date and no time.
std::optional<DateTime> parse_date(std::string_view text, const Locale& locale);
// The same; fails with 13 (type mismatch).
DateTime to_date(std::string_view text, const Locale& locale);
inline bool is_date(std::string_view text, const Locale& locale) { return parse_date(text, locale).has_value(); }

} // namespace values
