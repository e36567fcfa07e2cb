#pragma once

#include "core/act/activity_kinds.h"
#include "core/values/date_time.h"
#include "core/values/locale.h"

#include <optional>
#include <string>

// The filter of a contact view's activity list, in the application's own encoding.
namespace act {

struct ListFilter {
    int mask = 0;      // of filter_mask
    std::string dates; // of filter_dates
    std::string users; // ids joined; empty for every user
};

// What the list shows, added up: each type and each priority has a bit.
namespace filter_mask {
inline constexpr int cleared = 2; // the cleared activities too
constexpr int of(ActivityType type) { return 4 << static_cast<int>(type); }
constexpr int of(Priority priority) { return 32 << static_cast<int>(priority); }
inline constexpr int every_priority = of(Priority::high) | of(Priority::medium) | of(Priority::low);
} // namespace filter_mask

namespace filter_dates {
inline constexpr const char* all = "1";
inline constexpr const char* today = "2";
inline constexpr const char* past = "3";
inline constexpr const char* future = "4"; // and today

struct Range {
    values::DateTime first, last; // days, both inside
};
// "6\<first day>\<last day>" in short dates.
std::string text_of(const Range& range, const values::Locale& locale);
// None for a text that is no range or whose days can't be read.
std::optional<Range> range_of(const std::string& dates, const values::Locale& locale);
} // namespace filter_dates

} // namespace act
