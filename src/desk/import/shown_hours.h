#pragma once

#include "core/values/date_time.h"

// The time slots that the calendar shows until somebody sets others. They stand in the calendar's own settings
// file, which the desk doesn't know, so these are the ones of a new installation; a test holds them against its
// defaults.
namespace importing {

inline constexpr int first_slot = 8 * 60; // minutes of the day
inline constexpr int slot_count = 9;
inline constexpr int slot_minutes = 60;

// Whether the calendar has a slot for what starts at that time of day. The last minute of a slot has none.
bool is_in_shown_hours(values::DateTime start);

} // namespace importing
