#pragma once

#include "core/values/date_time.h"
#include "core/values/locale.h"

#include <optional>
#include <string>
#include <string_view>

// Dates and times by the patterns of a locale, both ways.
namespace values {

enum class HalfDay { unknown, am, pm };

// What a text says of a date and a time, not yet known to be one.
struct DateParts {
    std::optional<int> year{}; // already with its century
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
    HalfDay half = HalfDay::unknown;
};

// Absent when a part is out of its range. Without a year the parts are a time of day.
std::optional<DateTime> date_of(const DateParts& parts);
// A year of one or two digits gets its century: 0 to 29 is 2000 to 2029, 30 to 99 is 1930 to 1999.
int whole_year(std::string_view digits);

std::string written(std::string_view pattern, DateTime value, const Locale& locale);
// Absent when the text doesn't follow the pattern. A field takes as many digits as stand there.
std::optional<DateTime> read(std::string_view pattern, std::string_view text, const Locale& locale);

} // namespace values
