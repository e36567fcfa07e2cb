#pragma once

#include "core/values/date_time.h"
#include "core/values/locale.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace values {

// What a field of a record holds: nothing, a whole number, a text, or a date and time.
using Value = std::variant<std::monostate, std::int64_t, std::string, DateTime>;

// The value as text: "" for nothing, decimal digits, the text itself, the default text form of a date.
std::string text_of(const Value& value, const Locale& locale);
// The same of a value that nobody needs afterwards.
inline std::string text_of(Value&& value, const Locale& locale) {
    auto* text = std::get_if<std::string>(&value);
    return text ? std::move(*text) : text_of(std::as_const(value), locale);
}
// The value as a date; a text is read in the locale. Absent when it holds none.
std::optional<DateTime> date_of(const Value& value, const Locale& locale);
// The value as a whole number. Fails with 13 when it is nothing or a text that is no number, with 6 when it
// doesn't fit.
std::int16_t int16_of(const Value& value);
std::int32_t int32_of(const Value& value);

} // namespace values
