#pragma once

#include "core/changes/occurrence.h"
#include "core/grid/cell.h"
#include "core/values/locale.h"
#include "core/values/text_forms.h"

namespace interaction {

// A day and a slot's start, put together as texts. Fails with 13 for a slot whose start isn't a time of the day.
inline values::DateTime date_and_time(values::DateTime date, values::DateTime time, const values::Locale& locale) {
    return values::to_date(values::short_date(date, locale) + " " + values::default_text(time, locale), locale);
}

// When an activity in the cell starts.
inline values::DateTime start_of(const grid::clsMsgSchedCell& cell, const values::Locale& locale) {
    return date_and_time(cell.DateDay(), cell.DateTime(), locale);
}

// The occurrence that the cell of a series shows.
inline changes::Occurrence occurrence_in(const grid::clsMsgSchedCell& cell) {
    return {.series = cell.ActivityID(), .day = cell.DateDay()};
}

} // namespace interaction
