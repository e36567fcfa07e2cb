#pragma once

#include <array>
#include <string>

namespace values {

// How a place writes dates, times and numbers. The program takes its machine's own. Patterns are made of the
// letters d, M, y, H, h, m, s and tt (the AM or PM mark), repeated as in "MM/dd/yyyy" and "h:mm:ss tt"; every
// other character stands for itself.
struct Locale {
    std::string name;       // "en_US"
    std::string short_date; // "M/d/yyyy"
    std::string long_time;  // "h:mm:ss tt"
    std::string am = "AM";
    std::string pm = "PM";
    std::array<std::string, 7> weekdays; // full names, [0] Sunday
    std::array<std::string, 12> months;  // full names, [0] January
    char decimal_point = '.';

    // True when the letter "H" stands in the time pattern: times are shown from 0 to 23.
    bool is_24_hour() const { return long_time.find('H') != std::string::npos; }
};

const Locale& english_us();

} // namespace values
