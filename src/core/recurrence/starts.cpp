#include "core/recurrence/starts.h"

#include "core/values/failure.h"

#include <algorithm>
#include <vector>

namespace recurrence {

namespace {

// From the highest bit down, taking each power that fits: what is left beyond the highest bit fills the flags
// below it.
template <std::size_t Size>
std::array<bool, Size> flags_of(int bits) {
    std::array<bool, Size> flags{};
    for (std::size_t number = Size - 1; number >= 1; --number) {
        const int power = 1 << (number - 1);
        if (power <= bits) {
            flags[number] = true;
            bits -= power;
        }
    }
    return flags;
}

// The numbers whose flags are set, rising.
template <std::size_t Size>
std::vector<int> numbers_of(const std::array<bool, Size>& flags) {
    std::vector<int> numbers;
    for (int number = 0; const bool is_set : flags) {
        if (is_set)
            numbers.push_back(number);
        ++number;
    }
    return numbers;
}

int step_of(const Rule& rule) { return std::max(1, rule.frequency); }

void tell(DateTime start, const ShownDates& shown, const Visitor& visitor) {
    if (InRange(start, shown) && !visitor.Exception(start))
        visitor.occurrence(start);
}

// The starts at `first` and every `step_days` after it. `first` itself is told even when it lies after `until`.
void tell_every(DateTime first, std::int64_t step_days, DateTime until, const ShownDates& shown,
                const Visitor& visitor) {
    tell(first, shown, visitor);
    const std::int64_t missing = std::max<std::int64_t>(1, values::days_between(first, shown.StartDate));
    const std::int64_t steps = (missing + step_days - 1) / step_days;
    const DateTime last = std::min(Form_Dat(shown.EndDate), Form_Dat(until));
    const std::int64_t reach = values::days_between(first, last);
    for (std::int64_t days = steps * step_days; days <= reach; days += step_days)
        tell(first.plus_days(days), shown, visitor);
}

int month_number(DateTime date) { return date.year() * 12 + date.month() - 1; }

int days_in_month(int month_number) { return DateTime::of(month_number / 12, month_number % 12 + 2, 0).day(); }

// Steps on by months from the start until the shown months are reached: the date then, or nothing where the walk
// passes EndDate first. A day that was clamped to the end of a short month on the way stays clamped.
std::optional<DateTime> first_in_shown_months(const Rule& rule, const ShownDates& shown) {
    if (InMonth(rule.start, shown))
        return rule.start;
    const int start = month_number(rule.start);
    const int missing = month_number(shown.StartDate) - start;
    if (missing <= 0)
        return std::nullopt;
    const std::int64_t step = step_of(rule);
    const std::int64_t months = (missing + step - 1) / step * step;
    if (months > month_number(shown.EndDate) - start)
        return std::nullopt;
    int day = rule.start.day();
    for (std::int64_t passed = step; passed <= months && day > 28; passed += step)
        day = std::min(day, days_in_month(static_cast<int>(start + passed)));
    const int month = static_cast<int>(start + months);
    const DateTime reached = DateTime::of(month / 12, month % 12 + 1, day);
    if (reached > Form_Dat(shown.EndDate) || !InMonth(reached, shown))
        return std::nullopt;
    return reached;
}

// The occurrence on a date that a month rule names: with the time of the start, without its seconds.
void tell_in_month(DateTime date, const Rule& rule, const ShownDates& shown, const Visitor& visitor) {
    if (!InRange(date, shown) || Form_Dat(date) > Form_Dat(rule.until) || visitor.Exception(date))
        return;
    const DateTime time = rule.start.time_to_the_minute();
    visitor.occurrence(DateTime::from_seconds(Form_Dat(date).seconds() + time.seconds()));
}

} // namespace

bool InRange(DateTime date, const ShownDates& shown) {
    return Form_Dat(date) >= Form_Dat(shown.StartDate) && Form_Dat(date) <= Form_Dat(shown.EndDate);
}

bool InMonth(DateTime date, const ShownDates& shown) {
    const int month = month_number(date);
    const int first = month_number(shown.StartDate);
    return month >= first && month <= first - first % 12 + shown.EndDate.month() - 1;
}

std::array<bool, 8> GetDays(int days_of_week_bits) { return flags_of<8>(days_of_week_bits); }
std::array<bool, 6> GetWeek(int weeks_of_month_bits) { return flags_of<6>(weeks_of_month_bits); }
std::array<bool, 32> GetUniqueDays(int days_of_month_bits) { return flags_of<32>(days_of_month_bits); }

std::optional<DateTime> GetDateOfDay(const WeekdayOfMonth& wanted) {
    const DateTime first = DateTime::of(wanted.year, wanted.month, 1);
    const int weekday = first.weekday();
    const int day = wanted.day < weekday ? wanted.day + 7 : wanted.day;
    const DateTime result = first.plus_days(day - weekday + (wanted.week - 1) * 7);
    if (wanted.week != 5 || result.month() <= wanted.month)
        return result;
    if (wanted.week_4_flagged)
        return std::nullopt;
    return result.plus_days(-7);
}

void daily_starts(const Rule& rule, const ShownDates& shown, const Visitor& visitor) {
    tell_every(rule.start, step_of(rule), rule.until, shown, visitor);
}

void weekly_starts(const Rule& rule, const ShownDates& shown, const Visitor& visitor) {
    const int start = rule.start.weekday();
    for (const int day : numbers_of(GetDays(rule.days_of_week))) {
        const DateTime anchor = rule.start.plus_days((day + 7 - start) % 7);
        tell_every(anchor, std::int64_t{7} * step_of(rule), rule.until, shown, visitor);
    }
}

void custom_starts(const Rule& rule, const ShownDates& shown, const Visitor& visitor) {
    const auto reached = first_in_shown_months(rule, shown);
    if (!reached)
        return;
    DateTime date = *reached;
    for (const int day : numbers_of(GetUniqueDays(rule.days_of_month))) {
        date = DateTime::of(shown.StartDate.year(), date.month(), day);
        tell_in_month(date, rule, shown, visitor);
    }
}

void monthly_starts(const Rule& rule, const ShownDates& shown, const Visitor& visitor) {
    const auto weeks = GetWeek(rule.weeks_of_month);
    const auto reached = first_in_shown_months(rule, shown);
    if (!reached)
        return;
    DateTime date = *reached;
    for (const int day : numbers_of(GetDays(rule.days_of_week)))
        for (const int week : numbers_of(weeks)) {
            const auto named = GetDateOfDay({.day = day,
                                             .week = week,
                                             .month = rule.start.month(),
                                             .year = date.year(),
                                             .week_4_flagged = weeks[4]});
            if (!named)
                throw values::Failure(values::FailureNumber::type_mismatch);
            date = *named;
            tell_in_month(date, rule, shown, visitor);
        }
}

} // namespace recurrence
