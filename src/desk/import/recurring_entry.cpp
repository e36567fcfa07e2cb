#include "desk/import/recurring_entry.h"

#include "core/recurrence/calendar_rule.h"
#include "desk/import/import_file.h"
#include "desk/import/occurrences.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace importing {
namespace {

using store::DateTime;

// Dates of a series on which it doesn't take place.
struct Excluded {
    std::set<DateTime> starts{};
    std::set<DateTime> days{};

    bool has(const ZonedTime& time, DateTime local) const {
        return starts.contains(local) || days.contains(time.wall_clock.date());
    }
};

std::string date_text(DateTime date) {
    const auto two = [](int number) { return (number < 10 ? "0" : "") + std::to_string(number); };
    return std::to_string(date.year()) + "-" + two(date.month()) + "-" + two(date.day());
}

std::vector<const Line*> lines_in(const Component& component, std::string_view name) {
    std::vector<const Line*> lines;
    for (const Line& line : component.lines)
        if (name_of(line) == name)
            lines.push_back(&line);
    return lines;
}

std::vector<std::string_view> values_in(const Component& component, std::string_view name) {
    std::vector<std::string_view> values;
    for (const Line* line : lines_in(component, name))
        if (!is_too_long(*line))
            values.push_back(value_of(*line));
    return values;
}

// How many further dates the entry has, whether they can be read or not.
std::size_t told_dates(const Component& component) {
    std::size_t count = 0;
    for (const Line* line : lines_in(component, "RDATE"))
        if (const std::string_view value = value_of(*line); !value.empty())
            count += 1 + static_cast<std::size_t>(std::ranges::count(value, ','));
    return count;
}

std::vector<Period> further_periods(const Entry& entry, Times& times) {
    std::vector<Period> all;
    icalcomponent* component = entry.component.get();
    for (icalproperty* property = icalcomponent_get_first_property(component, ICAL_RDATE_PROPERTY); property;
         property = icalcomponent_get_next_property(component, ICAL_RDATE_PROPERTY))
        std::ranges::copy(times.periods(property), std::back_inserter(all));
    return all;
}

class Taking {
public:
    Taking(Entry& entry, const DateFinding& finding)
        : entry_(entry), finding_(finding), around_{entry.start, finding.today, finding.times, finding.work} {}

    void exclude(const std::vector<ZonedTime>& times) {
        for (const ZonedTime& time : times)
            if (time.is_date || entry_.start.is_date)
                excluded_.days.insert(time.wall_clock.date());
            else
                excluded_.starts.insert(finding_.times.local(time));
    }

    std::vector<FoundActivity> taken_from(const Component& told) {
        auto followed = followed_rule(told);
        const std::vector<Period> further = further_periods(entry_, finding_.times);
        entry_.is_cut = entry_.is_cut || further.size() < told_dates(told);
        leave_out(told, followed, further);
        if (followed && !followed->times.empty())
            take_rule(*followed);
        const DateTime start = *entry_.found.activity.start;
        if (!followed && !excluded_.has(entry_.start, start))
            take(entry_.found);
        if (!further.empty())
            take_further(further, followed ? followed->dates.starts : std::vector{start});
        return std::move(taken_);
    }

private:
    void take(const FoundActivity& activity) {
        finding_.work.spend(units_to_write(activity));
        taken_.push_back(activity);
    }

    void take_at(FoundActivity activity, DateTime start) {
        activity.activity.start = start;
        activity.activity.end = start.plus_minutes(activity.activity.duration);
        take(activity);
    }

    void take_single_at(FoundActivity activity, DateTime start) {
        activity.occurrence = name_of_occurrence(start);
        take_at(std::move(activity), start);
    }

    std::optional<recurrence::CalendarRule> rule_from(std::string_view text, const std::string& name) {
        const auto rule = recurrence::calendar_rule_of(text);
        if (!rule)
            entry_.changes.push_back("Its " + name + " can't be read and was left out.");
        return rule;
    }

    std::optional<FollowedRule> followed_rule(const Component& told) {
        const std::vector<std::string_view> texts = values_in(told, "RRULE");
        if (texts.size() > 1)
            entry_.changes.push_back("It has several rules of recurrence; only the first was taken.");
        const auto rule = texts.empty() ? std::nullopt : rule_from(texts.front(), "RRULE");
        auto followed = rule ? follow(*rule, around_) : std::nullopt;
        if (rule && !followed)
            entry_.changes.push_back(
                "The calendar can't follow its rule of recurrence; only the first was taken.");
        entry_.is_cut = entry_.is_cut || lines_in(told, "RRULE").size() > (followed ? 1u : 0u);
        return followed;
    }

    // What the rules for exceptions name. Where one has no end the series can't have an exception for each.
    void leave_out(const Component& told, std::optional<FollowedRule>& followed,
                   const std::vector<Period>& further) {
        DateTime last = *entry_.found.activity.start;
        if (followed)
            last = std::max(followed->dates.known_to, followed->dates.starts.back());
        for (const Period& period : further)
            last = std::max(last, finding_.times.local(period.start));
        for (const std::string_view text : values_in(told, "EXRULE"))
            if (const auto rule = rule_from(text, "EXRULE")) {
                const std::vector<DateTime> starts = starts_of(*rule, around_, last);
                if (followed && !has_end(*rule))
                    take_out(starts, *followed);
                excluded_.starts.insert(starts.begin(), starts.end());
            }
    }

    void take_rule(const FollowedRule& followed) {
        const RuleDates& dates = followed.dates;
        const bool is_one = dates.ended && dates.starts.size() == 1;
        const auto series = is_one || followed.is_too_long ? std::nullopt : series_on(dates, finding_.work);
        if (!series)
            return take_single(followed, is_one);
        FoundActivity recurring = entry_.found;
        recurring.activity.recurrence = *series;
        std::vector<DateTime>& exceptions = recurring.activity.exceptions;
        for (std::size_t i = 0; i < dates.starts.size(); ++i)
            if (excluded_.has(followed.times[i], dates.starts[i]))
                exceptions.push_back(dates.starts[i].date());
        for (const auto& beyond : {excluded_.starts, excluded_.days})
            for (const DateTime date : beyond)
                if (!dates.ended && date.date() > dates.known_to)
                    exceptions.push_back(date.date());
        std::ranges::sort(exceptions);
        exceptions.erase(std::unique(exceptions.begin(), exceptions.end()), exceptions.end());
        take_at(recurring, dates.starts.front());
    }

    void take_single(const FollowedRule& followed, bool is_one) {
        std::vector<DateTime> starts;
        const bool goes_on = !followed.dates.ended && !followed.is_too_long;
        const DateTime last = finding_.today.plus_months(12 * years_of_a_rule);
        for (std::size_t i = 0; i < followed.times.size(); ++i) {
            const DateTime start = followed.dates.starts[i];
            if (!excluded_.has(followed.times[i], start) && (i == 0 || !goes_on || start.date() <= last))
                starts.push_back(start);
        }
        const std::size_t all = starts.size();
        keep_nearest(starts);
        const bool has_more = starts.size() < all || followed.is_too_long;
        entry_.is_cut = entry_.is_cut || has_more;
        for (const DateTime start : starts)
            take_single_at(entry_.found, start);
        if (is_one)
            return;
        std::string change = "The calendar shows no series on its dates, so it became single activities (" +
                             std::to_string(starts.size()) + ")";
        if (has_more)
            change += ", no more, of its many dates";
        if (goes_on)
            change += ", up to " + date_text(std::max(last, starts.empty() ? last : starts.back()));
        entry_.changes.push_back(change + ".");
    }

    // Of too many dates those from today on, and before them as many as there is room for.
    void keep_nearest(std::vector<DateTime>& starts) const {
        if (starts.size() <= most_of_a_rule)
            return;
        const auto coming = std::lower_bound(starts.begin(), starts.end(), finding_.today.date());
        const std::ptrdiff_t first =
            std::min(coming - starts.begin(), static_cast<std::ptrdiff_t>(starts.size() - most_of_a_rule));
        starts.erase(starts.begin(), starts.begin() + first);
        starts.resize(most_of_a_rule);
    }

    void take_further(const std::vector<Period>& further, const std::vector<DateTime>& before) {
        std::set<DateTime> starts(before.begin(), before.end());
        for (const Period& period : further) {
            const DateTime start = finding_.times.local(period.start);
            if (excluded_.has(period.start, start) || !starts.insert(start).second)
                continue;
            FoundActivity single = entry_.found;
            if (period.minutes)
                single.activity.duration = duration_of(*period.minutes, entry_.changes);
            take_single_at(std::move(single), start);
        }
    }

    Entry& entry_;
    const DateFinding finding_;
    const Surroundings around_;
    Excluded excluded_{};
    std::vector<FoundActivity> taken_{};
};

} // namespace

std::string name_of_occurrence(DateTime start) { return std::to_string(start.seconds()); }

std::size_t units_to_write(const FoundActivity& found) {
    constexpr std::size_t units_of_an_activity = 2500;
    constexpr std::size_t units_of_an_exception = 500;
    constexpr std::size_t units_of_a_person = 300;
    return units_of_an_activity + found.activity.details.size() +
           found.activity.exceptions.size() * units_of_an_exception + found.people.size() * units_of_a_person;
}

std::vector<FoundActivity> activities_of(Entry& entry, const Component& told,
                                         const std::vector<ZonedTime>& replaced, const DateFinding& finding) {
    Taking taking(entry, finding);
    taking.exclude(replaced);
    taking.exclude(times_of(entry, ICAL_EXDATE_PROPERTY, finding.times));
    return taking.taken_from(told);
}

std::vector<ZonedTime> times_of(const Entry& entry, icalproperty_kind kind, Times& times) {
    std::vector<ZonedTime> all;
    icalcomponent* component = entry.component.get();
    for (icalproperty* property = component ? icalcomponent_get_first_property(component, kind) : nullptr;
         property; property = icalcomponent_get_next_property(component, kind))
        std::ranges::copy(times.all(property), std::back_inserter(all));
    return all;
}

} // namespace importing
