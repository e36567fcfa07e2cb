#include "desk/import/occurrences.h"

#include <algorithm>

namespace importing {
namespace {

constexpr std::size_t most_followed = 50000;

struct FreeRule {
    void operator()(icalrecur_iterator* rule) const { icalrecur_iterator_free(rule); }
};

// How many years of a rule without an end tell what it does later on.
int years_to_know(icalrecurrencetype_frequency step) {
    switch (step) {
    case ICAL_YEARLY_RECURRENCE:
        return 30;
    case ICAL_MONTHLY_RECURRENCE:
        return 10;
    default:
        return 3;
    }
}

bool has_list(const short* list) { return list[0] != ICAL_RECURRENCE_ARRAY_MAX; }

// The library searches a rule's next date step by step, so one of small steps that never meets its conditions
// would keep it busy for very long.
bool can_be_followed(const icalrecurrencetype& rule) {
    if (rule.freq == ICAL_HOURLY_RECURRENCE)
        return !has_list(rule.by_month) && !has_list(rule.by_month_day) && !has_list(rule.by_year_day) &&
               !has_list(rule.by_day) && !has_list(rule.by_week_no) && !has_list(rule.by_set_pos);
    return rule.freq >= ICAL_DAILY_RECURRENCE && rule.freq <= ICAL_YEARLY_RECURRENCE;
}

void set_steps(RuleDates& dates, const icalrecurrencetype& rule) {
    if (rule.freq == ICAL_DAILY_RECURRENCE)
        dates.days = rule.interval;
    if (rule.freq == ICAL_WEEKLY_RECURRENCE)
        dates.weeks = rule.interval;
    if (rule.freq == ICAL_MONTHLY_RECURRENCE)
        dates.months = rule.interval;
    if (rule.freq == ICAL_YEARLY_RECURRENCE)
        dates.months = rule.interval * 12;
}

} // namespace

std::optional<FollowedRule> follow(icalproperty* property, const icaltimetype& start, const Times& times,
                                   values::DateTime today) {
    const icalrecurrencetype rule = icalproperty_get_rrule(property);
    if (!can_be_followed(rule) || rule.interval < 1)
        return std::nullopt;
    const std::unique_ptr<icalrecur_iterator, FreeRule> dates(icalrecur_iterator_new(rule, start));
    if (!dates)
        return std::nullopt;
    FollowedRule followed;
    set_steps(followed.dates, rule);
    const values::DateTime first = times.local(start);
    const bool has_end = rule.count > 0 || !icaltime_is_null_time(rule.until);
    followed.dates.known_to = std::max(first, today).date().plus_months(12 * years_to_know(rule.freq));
    const auto take = [&](const icaltimetype& time) {
        followed.times.push_back(time);
        followed.dates.starts.push_back(times.local(time));
    };
    // The start is an occurrence also where the rule doesn't meet it.
    take(start);
    while (true) {
        icaltimetype time = icalrecur_iterator_next(dates.get());
        if (icaltime_is_null_time(time) || time.year > 2500) {
            followed.dates.ended = true;
            break;
        }
        time.zone = start.zone;
        const values::DateTime local = times.local(time);
        if (local <= followed.dates.starts.back())
            continue;
        if (!has_end && local >= followed.dates.known_to)
            break;
        if (followed.times.size() == most_followed) {
            followed.is_too_long = true;
            break;
        }
        take(time);
    }
    followed.dates.known_to = followed.dates.known_to.plus_days(-1);
    return followed;
}

} // namespace importing
