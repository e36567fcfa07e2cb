#include "desk/import/occurrences.h"

#include "core/recurrence/calendar_walk.h"

#include <algorithm>

namespace importing {
namespace {

using recurrence::CalendarRule;
using recurrence::CalendarWalk;
using recurrence::Step;
using values::DateTime;

constexpr std::size_t most_followed = 50000;
constexpr std::size_t units_of_a_date = 10;

DateTime end_of_time() { return DateTime::of(2501, 1, 1); }

// How many years of a rule without an end tell what it does later on.
int years_to_know(Step step) {
    switch (step) {
    case Step::yearly:
        return 30;
    case Step::monthly:
        return 10;
    default:
        return 3;
    }
}

void set_steps(RuleDates& dates, const CalendarRule& rule) {
    const int interval = static_cast<int>(std::min<std::int64_t>(rule.interval, 100000));
    if (rule.step == Step::daily)
        dates.days = interval;
    if (rule.step == Step::weekly)
        dates.weeks = interval;
    if (rule.step == Step::monthly)
        dates.months = interval;
    if (rule.step == Step::yearly)
        dates.months = interval * 12;
}

// The rule's last moment by the clocks of the entry's zone.
DateTime last_moment(const CalendarRule& rule, const Surroundings& around) {
    if (!rule.until || rule.until->time >= end_of_time())
        return end_of_time();
    if (rule.until->is_date)
        return rule.until->time.plus_minutes(24 * 60 - 1);
    return rule.until->is_utc ? around.times.wall_clock(rule.until->time, around.start.zone) : rule.until->time;
}

CalendarWalk walk_of(const CalendarRule& rule, const Surroundings& around, DateTime end) {
    return {rule,
            {.start = around.start.wall_clock, .end = end, .until = last_moment(rule, around)},
            [&work = around.work](std::size_t units) { work.spend(units); }};
}

ZonedTime at(DateTime wall_clock, const ZonedTime& start) { return {wall_clock, start.is_date, start.zone}; }

DateTime moment_of(const ZonedTime& time) { return time.zone ? time.zone->utc(time.wall_clock) : time.wall_clock; }

} // namespace

bool has_end(const CalendarRule& rule) { return rule.count || (rule.until && rule.until->time < end_of_time()); }

std::optional<FollowedRule> follow(const CalendarRule& rule, const Surroundings& around) {
    if (rule.step == Step::secondly)
        return std::nullopt;
    FollowedRule followed;
    RuleDates& dates = followed.dates;
    set_steps(dates, rule);
    const auto take = [&](const ZonedTime& time) {
        followed.times.push_back(time);
        dates.starts.push_back(around.times.local(time));
    };
    take(around.start);
    const DateTime end =
        std::max(dates.starts.front(), around.today).date().plus_months(12 * years_to_know(rule.step));
    dates.known_to = end.plus_days(-1);
    CalendarWalk walk = walk_of(rule, around, has_end(rule) ? end_of_time() : end.plus_days(2));
    bool comes_about = false;
    DateTime moment = moment_of(around.start);
    while (const auto date = walk.next()) {
        comes_about = true;
        const ZonedTime time = at(*date, around.start);
        const DateTime local = around.times.local(time);
        if (!has_end(rule) && local >= end)
            return followed;
        // Of two times that the missing hour of spring makes one, one is taken.
        around.work.spend(units_of_a_date);
        const DateTime next = moment_of(time);
        if (next <= moment)
            continue;
        moment = next;
        if (followed.times.size() == most_followed) {
            followed.is_too_long = true;
            return followed;
        }
        take(time);
    }
    dates.ended = has_end(rule);
    return comes_about || rule.until ? std::optional(followed) : std::nullopt;
}

std::vector<DateTime> starts_of(const CalendarRule& rule, const Surroundings& around, DateTime up_to) {
    std::vector<DateTime> starts;
    CalendarWalk walk = walk_of(rule, around, has_end(rule) ? end_of_time() : up_to.date().plus_days(2));
    while (const auto date = walk.next()) {
        around.work.spend(units_of_a_date);
        starts.push_back(around.times.local(at(*date, around.start)));
    }
    std::ranges::sort(starts);
    return starts;
}

void take_out(const std::vector<DateTime>& starts, FollowedRule& rule) {
    FollowedRule left{.is_too_long = rule.is_too_long};
    for (std::size_t i = 0; i < rule.times.size(); ++i)
        if (!std::ranges::binary_search(starts, rule.dates.starts[i])) {
            left.times.push_back(rule.times[i]);
            left.dates.starts.push_back(rule.dates.starts[i]);
        }
    rule.dates.starts = std::move(left.dates.starts);
    rule.times = std::move(left.times);
}

} // namespace importing
