#include "desk/import/series.h"

#include "core/recurrence/starts.h"
#include "core/values/failure.h"

#include <algorithm>

namespace importing {
namespace {

using store::DateTime;
using store::Recurrence;
using store::RecurrenceKind;

constexpr int days_shown = 7;

recurrence::Rule rule_of(const Recurrence& series, DateTime start) {
    return {.start = start,
            .frequency = series.frequency,
            .until = series.until.value_or(DateTime::of(2099, 12, 31)),
            .days_of_week = series.days_of_week,
            .weeks_of_month = series.weeks_of_month,
            .days_of_month = static_cast<int>(series.days_of_month)};
}

std::vector<DateTime> shown_starts(const Recurrence& series, DateTime start, const recurrence::ShownDates& shown) {
    std::vector<DateTime> starts;
    const recurrence::Visitor visitor{[](DateTime) { return false; },
                                      [&](DateTime date) { starts.push_back(date); }};
    const recurrence::Rule rule = rule_of(series, start);
    switch (series.kind) {
    case RecurrenceKind::none:
        break;
    case RecurrenceKind::daily:
        recurrence::daily_starts(rule, shown, visitor);
        break;
    case RecurrenceKind::weekly:
        recurrence::weekly_starts(rule, shown, visitor);
        break;
    case RecurrenceKind::days_of_month:
        recurrence::custom_starts(rule, shown, visitor);
        break;
    case RecurrenceKind::weekdays_of_month:
        recurrence::monthly_starts(rule, shown, visitor);
        break;
    }
    std::sort(starts.begin(), starts.end());
    return starts;
}

bool shows_in(const recurrence::ShownDates& shown, const Recurrence& series, const RuleDates& dates) {
    const auto first = std::lower_bound(dates.starts.begin(), dates.starts.end(), shown.StartDate);
    const auto last = std::lower_bound(first, dates.starts.end(), shown.EndDate.plus_days(1));
    const std::vector<DateTime> starts = shown_starts(series, dates.starts.front(), shown);
    return std::equal(first, last, starts.begin(), starts.end());
}

// What the month rules show depends on the view, so the views around each start are tried, and between them one
// after the other.
bool shows_in_views(DateTime last, const Recurrence& series, const RuleDates& dates) {
    for (const DateTime start : dates.starts) {
        const DateTime date = start.date();
        if (!shows_in({date, date}, series, dates))
            return false;
        for (int before = 0; before < days_shown; ++before) {
            const DateTime first = date.plus_days(-before);
            const DateTime end = first.plus_days(days_shown - 1);
            if (end <= last && !shows_in({first, end}, series, dates))
                return false;
        }
    }
    for (DateTime first = dates.starts.front().date(); first < last; first = first.plus_days(days_shown))
        if (!shows_in({first, std::min(last, first.plus_days(days_shown - 1))}, series, dates))
            return false;
    return true;
}

bool shows(const Recurrence& series, const RuleDates& dates) {
    // After its end a series must show nothing: a weekday's first date can lie there.
    const DateTime last = dates.ended ? dates.starts.back().date().plus_days(days_shown) : dates.known_to;
    if (series.kind == RecurrenceKind::daily || series.kind == RecurrenceKind::weekly)
        return shows_in({dates.starts.front().date(), last}, series, dates);
    try {
        return shows_in_views(last, series, dates);
    } catch (const values::Failure&) { // the calendar fails at this series too
        return false;
    }
}

std::vector<Recurrence> candidates(const RuleDates& dates) {
    int weekdays = 0;
    int weeks = 0;
    std::uint32_t days = 0;
    for (const DateTime start : dates.starts) {
        weekdays |= 1 << (start.weekday() - 1);
        weeks |= 1 << ((start.day() - 1) / 7);
        days |= std::uint32_t{1} << (start.day() - 1);
    }
    std::vector<Recurrence> result;
    if (dates.days > 0)
        result.push_back({.kind = RecurrenceKind::daily, .frequency = dates.days});
    if (dates.days > 0 || dates.weeks > 0)
        result.push_back(
            {.kind = RecurrenceKind::weekly, .frequency = std::max(1, dates.weeks), .days_of_week = weekdays});
    if (dates.months > 0) {
        result.push_back(
            {.kind = RecurrenceKind::days_of_month, .frequency = dates.months, .days_of_month = days});
        result.push_back({.kind = RecurrenceKind::weekdays_of_month,
                          .frequency = dates.months,
                          .days_of_week = weekdays,
                          .weeks_of_month = weeks});
    }
    return result;
}

} // namespace

std::optional<store::Recurrence> series_on(const RuleDates& dates) {
    for (Recurrence series : candidates(dates)) {
        if (dates.ended)
            series.until = dates.starts.back().date();
        if (shows(series, dates))
            return series;
    }
    return std::nullopt;
}

} // namespace importing
