#include "desk/import/series.h"

#include "core/recurrence/starts.h"
#include "core/values/failure.h"

#include <algorithm>
#include <bit>

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

int months_between(DateTime from, DateTime to) {
    return (to.year() - from.year()) * 12 + to.month() - from.month();
}

// The dates of a rule beside the views that would show them.
struct Views {
    const RuleDates& dates;
    Work& work;

    // Whether the series has exactly the rule's starts in this view.
    bool agree(const recurrence::ShownDates& shown, const Recurrence& series) const {
        constexpr std::int64_t units_of_a_view = 20;
        constexpr std::int64_t units_of_a_day = 1;
        constexpr std::int64_t units_of_a_start = 8;
        const auto first = std::lower_bound(dates.starts.begin(), dates.starts.end(), shown.StartDate);
        const auto last = std::lower_bound(first, dates.starts.end(), shown.EndDate.plus_days(1));
        const DateTime start = dates.starts.front();
        // A walk by months from a day that not every month has takes all steps.
        const bool takes_steps = start.day() > 28 && start < shown.StartDate;
        const std::int64_t steps = takes_steps ? months_between(start, shown.StartDate) / series.frequency : 0;
        const std::int64_t days = values::days_between(shown.StartDate, shown.EndDate);
        work.spend(static_cast<std::size_t>(units_of_a_view + days * units_of_a_day + steps +
                                            (last - first) * units_of_a_start));
        const std::vector<DateTime> starts = shown_starts(series, start, shown);
        return std::equal(first, last, starts.begin(), starts.end());
    }
};

// The views around a start. One that lies within a month shows the days that the series names up to its own end;
// of a single day it tells no more than a view of that day alone.
bool agree_around(DateTime date, DateTime last, const Recurrence& series, const Views& views) {
    const bool is_one_day =
        series.kind == RecurrenceKind::days_of_month && std::popcount(series.days_of_month) == 1;
    if (!views.agree({date, date}, series))
        return false;
    for (int before = 0; before < days_shown; ++before) {
        const DateTime first = date.plus_days(-before);
        const DateTime end = first.plus_days(days_shown - 1);
        const bool tells_more = !is_one_day || first.month() != end.month();
        if (end <= last && tells_more && !views.agree({first, end}, series))
            return false;
    }
    return true;
}

// What the month rules show depends on the view, so the views around each start are tried, and then those of the
// months in which the series could show something else, one after the other.
bool agree_all(DateTime last, const Recurrence& series, const Views& views) {
    for (const DateTime start : views.dates.starts)
        if (!agree_around(start.date(), last, series, views))
            return false;
    const DateTime start = views.dates.starts.front().date();
    for (DateTime first = start; first < last;) {
        const DateTime end = first.plus_days(days_shown - 1);
        const int months = months_between(start, end) % series.frequency;
        if (months != 0 && first.day() < end.day()) { // none of these months; on to the week that begins the next
            const DateTime next = DateTime::of(end.year(), end.month() + series.frequency - months, 1);
            first = first.plus_days(values::days_between(first, next) / days_shown * days_shown);
            continue;
        }
        if (!views.agree({first, std::min(last, end)}, series))
            return false;
        first = first.plus_days(days_shown);
    }
    return true;
}

bool shows(const Recurrence& series, const Views& views) {
    const RuleDates& dates = views.dates;
    // After its end a series must show nothing: a weekday's first date can lie there.
    const DateTime last = dates.ended ? dates.starts.back().date().plus_days(days_shown) : dates.known_to;
    if (series.kind == RecurrenceKind::daily || series.kind == RecurrenceKind::weekly)
        return views.agree({dates.starts.front().date(), last}, series);
    try {
        return agree_all(last, series, views);
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

std::optional<store::Recurrence> series_on(const RuleDates& dates, Work& work) {
    for (Recurrence series : candidates(dates)) {
        if (dates.ended)
            series.until = dates.starts.back().date();
        if (shows(series, {dates, work}))
            return series;
    }
    return std::nullopt;
}

} // namespace importing
