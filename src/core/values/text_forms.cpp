#include "core/values/text_forms.h"

#include "core/values/failure.h"
#include "core/values/pattern.h"

namespace values {

std::string short_date(DateTime value, const Locale& locale) { return written(locale.short_date, value, locale); }

std::string default_text(DateTime value, const Locale& locale) {
    const bool has_date = value.date() != DateTime();
    const bool has_time = value.time() != DateTime();
    const std::string date = has_date ? short_date(value, locale) : "";
    const std::string time = has_time || !has_date ? written(locale.long_time, value, locale) : "";
    return date.empty() || time.empty() ? date + time : date + " " + time;
}

std::string yyyymmdd(DateTime value) { return written("yyyyMMdd", value, english_us()); }
std::string hh_nn_am_pm(DateTime value) { return written("hh:mm tt", value, english_us()); }
std::string hh_nn(DateTime value) { return written("HH:mm", value, english_us()); }
std::string h_nn(DateTime value) { return written("H:mm", value, english_us()); }
std::string medium_time(DateTime value, const Locale& locale) { return written("hh:mm tt", value, locale); }
std::string weekday_name(DateTime value, const Locale& locale) { return written("dddd", value, locale); }

DateTime to_date(std::string_view text, const Locale& locale) {
    if (const auto value = parse_date(text, locale))
        return *value;
    throw Failure(FailureNumber::type_mismatch);
}

} // namespace values
