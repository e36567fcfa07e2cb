#include "core/values/value.h"

#include "core/values/failure.h"
#include "core/values/numbers.h"
#include "core/values/text_forms.h"

namespace values {

namespace {

// A date counts as its days since the empty date.
double number_of(const Value& value) {
    if (const auto* number = std::get_if<std::int64_t>(&value))
        return static_cast<double>(*number);
    if (const auto* text = std::get_if<std::string>(&value))
        return to_double(*text);
    if (const auto* date = std::get_if<DateTime>(&value))
        return static_cast<double>(date->seconds()) / 86400;
    throw Failure(FailureNumber::type_mismatch);
}

} // namespace

std::string text_of(const Value& value, const Locale& locale) {
    if (const auto* number = std::get_if<std::int64_t>(&value))
        return std::to_string(*number);
    if (const auto* text = std::get_if<std::string>(&value))
        return *text;
    if (const auto* date = std::get_if<DateTime>(&value))
        return default_text(*date, locale);
    return {};
}

std::optional<DateTime> date_of(const Value& value, const Locale& locale) {
    if (const auto* text = std::get_if<std::string>(&value))
        return parse_date(*text, locale);
    if (const auto* date = std::get_if<DateTime>(&value))
        return *date;
    return std::nullopt;
}

std::int16_t int16_of(const Value& value) { return to_int16(number_of(value)); }
std::int32_t int32_of(const Value& value) { return to_int32(number_of(value)); }

} // namespace values
