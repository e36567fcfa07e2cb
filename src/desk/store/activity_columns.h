#pragma once

#include "desk/store/activity_reading.h"
#include "desk/store/sqlite_connection.h"

#include <algorithm>

// Activities in the order of columns that the statements have them in.
namespace store {

// A number of a stored enumeration. The file may come from anywhere, so one that there is not counts as the given.
template <typename Kind>
Kind kind_of(std::int64_t number, Kind last, Kind otherwise) {
    return number >= 0 && number <= static_cast<int>(last) ? static_cast<Kind>(number) : otherwise;
}

inline ActivityType type_of(std::int64_t number) {
    return kind_of(number, ActivityType::to_do, ActivityType::meeting);
}
inline Priority priority_of(std::int64_t number) { return kind_of(number, Priority::low, Priority::low); }
inline RecurrenceKind recurrence_of(std::int64_t number) {
    return kind_of(number, RecurrenceKind::weekdays_of_month, RecurrenceKind::none);
}

inline std::optional<DateTime> date_of(const Rows& rows, int column) {
    return rows.is_null(column) ? std::nullopt : std::optional(DateTime::from_seconds(rows.number(column)));
}

inline std::optional<std::uint32_t> colour_of(const Rows& rows, int column) {
    const std::int64_t number = rows.number(column);
    const bool is_colour = !rows.is_null(column) && number >= 0 && number <= last_colour;
    return is_colour ? std::optional(static_cast<std::uint32_t>(number)) : std::nullopt;
}

inline int duration_of(const Rows& rows, int column) {
    return std::clamp(rows.small_number(column), 0, longest_duration);
}

// Five columns from `frequency` on; the kind stands elsewhere.
inline Recurrence recurrence_of(const Rows& rows, RecurrenceKind kind, int frequency) {
    return {.kind = kind,
            .frequency = std::max(1, rows.small_number(frequency)),
            .until = date_of(rows, frequency + 1),
            .days_of_week = rows.small_number(frequency + 2),
            .weeks_of_month = rows.small_number(frequency + 3),
            .days_of_month = static_cast<std::uint32_t>(rows.number(frequency + 4))};
}

} // namespace store
