#include "core/recurrence/calendar_rule.h"

#include "core/values/text.h"

#include <algorithm>
#include <charconv>
#include <set>
#include <string>

namespace recurrence {
namespace {

std::string capitals(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(),
                           [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return result;
}

std::optional<int> number_of(std::string_view text) {
    if (text.starts_with('+'))
        text.remove_prefix(1);
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

// 1 Sunday to 7 Saturday, 0 for none.
int weekday_of(std::string_view text) {
    constexpr std::string_view names = "SUMOTUWETHFRSA";
    const std::size_t place = text.size() == 2 ? names.find(text) : names.npos;
    return place == names.npos || place % 2 != 0 ? 0 : static_cast<int>(place / 2) + 1;
}

std::optional<Step> step_of(std::string_view text) {
    constexpr std::array<std::string_view, 7> names = {"SECONDLY", "MINUTELY", "HOURLY", "DAILY",
                                                       "WEEKLY",   "MONTHLY",  "YEARLY"};
    const auto* const place = std::ranges::find(names, text);
    return place == names.end() ? std::nullopt : std::optional(static_cast<Step>(place - names.begin()));
}

template <int Least, int Most>
bool read_numbers(std::string_view text, Numbers<Least, Most>& numbers) {
    for (const std::string& piece : values::split(text, ",")) {
        const auto number = number_of(piece);
        const bool is_none = Least < 0 && number == 0; // there is no day 0
        if (!number || is_none || !numbers.add(*number))
            return false;
    }
    return !numbers.empty();
}

bool read_weekdays(std::string_view text, CalendarRule& rule) {
    for (const std::string& piece : values::split(text, ",")) {
        const std::string_view whole = piece;
        if (whole.size() < 2)
            return false;
        const int weekday = weekday_of(whole.substr(whole.size() - 2));
        const std::string_view which = whole.substr(0, whole.size() - 2);
        const auto number = which.empty() ? std::optional(0) : number_of(which);
        const bool is_none = !which.empty() && number == 0;
        if (weekday == 0 || !number || is_none || !rule.weekdays[static_cast<std::size_t>(weekday)].add(*number))
            return false;
    }
    return rule.has_weekdays();
}

bool read_positive(std::string_view text, std::int64_t& result) {
    const auto number = number_of(text);
    result = number.value_or(0);
    return result > 0;
}

bool read_part(const std::string& name, std::string_view text, CalendarRule& rule) {
    if (name == "INTERVAL")
        return read_positive(text, rule.interval);
    if (name == "COUNT")
        return read_positive(text, rule.count.emplace());
    if (name == "UNTIL")
        return (rule.until = moment_of(text)).has_value();
    if (name == "WKST")
        return (rule.week_start = weekday_of(text)) != 0;
    if (name == "BYMONTH")
        return read_numbers(text, rule.months);
    if (name == "BYWEEKNO")
        return read_numbers(text, rule.weeks);
    if (name == "BYYEARDAY")
        return read_numbers(text, rule.year_days);
    if (name == "BYMONTHDAY")
        return read_numbers(text, rule.month_days);
    if (name == "BYDAY")
        return read_weekdays(text, rule);
    if (name == "BYHOUR")
        return read_numbers(text, rule.hours);
    if (name == "BYMINUTE")
        return read_numbers(text, rule.minutes);
    if (name == "BYSECOND")
        return read_numbers(text, rule.seconds);
    if (name == "BYSETPOS")
        return read_numbers(text, rule.positions);
    return name.starts_with("X-") || (name == "RSCALE" && text == "GREGORIAN") ||
           (name == "SKIP" && text == "OMIT");
}

// Of digits alone; -1 when there are others.
int digits(std::string_view text, std::size_t place, std::size_t count) {
    int number = 0;
    for (const char c : text.substr(place, count)) {
        if (c < '0' || c > '9')
            return -1;
        number = number * 10 + (c - '0');
    }
    return number;
}

} // namespace

bool CalendarRule::has_weekdays() const {
    return std::ranges::any_of(weekdays, [](const auto& which) { return !which.empty(); });
}

std::optional<RuleEnd> moment_of(std::string_view text) {
    RuleEnd moment{.is_date = text.size() == 8, .is_utc = text.size() == 16 && text.ends_with('Z')};
    if (!moment.is_date && !moment.is_utc && text.size() != 15)
        return std::nullopt;
    const int year = digits(text, 0, 4);
    const int month = digits(text, 4, 2);
    const int day = digits(text, 6, 2);
    if (year < 100 || month < 1 || month > 12 || day < 1 || DateTime::of(year, month, day).day() != day)
        return std::nullopt;
    moment.time = DateTime::of(year, month, day);
    if (moment.is_date)
        return moment;
    const int hour = digits(text, 9, 2);
    const int minute = digits(text, 11, 2);
    const int second = digits(text, 13, 2);
    if (text[8] != 'T' || hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 60)
        return std::nullopt;
    moment.time = DateTime::of(year, month, day, hour, minute, std::min(second, 59)); // 60 is a leap second
    return moment;
}

std::optional<CalendarRule> calendar_rule_of(std::string_view text) {
    CalendarRule rule;
    std::set<std::string> seen;
    for (const std::string& part : values::split(capitals(text), ";")) {
        if (values::trimmed(part).empty())
            continue;
        const std::size_t equals = part.find('=');
        if (equals == std::string::npos)
            return std::nullopt;
        const std::string name(values::trimmed(std::string_view(part).substr(0, equals)));
        const std::string_view value = values::trimmed(std::string_view(part).substr(equals + 1));
        if (!seen.insert(name).second)
            return std::nullopt;
        if (name == "FREQ") {
            const auto step = step_of(value);
            if (!step)
                return std::nullopt;
            rule.step = *step;
        } else if (!read_part(name, value, rule)) {
            return std::nullopt;
        }
    }
    return seen.contains("FREQ") ? std::optional(rule) : std::nullopt;
}

} // namespace recurrence
