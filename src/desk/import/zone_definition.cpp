#include "desk/import/zone_definition.h"

#include "core/values/text.h"

#include <string>
#include <vector>

namespace importing {
namespace {

using recurrence::CalendarRule;
using values::DateTime;

constexpr int first_year = 1601; // some programs begin a zone in the year 1

// From a text as "+0100" or "-045602".
std::optional<std::int64_t> offset_of(std::string_view text) {
    text = values::trimmed(text);
    if ((text.size() != 5 && text.size() != 7) || (text[0] != '+' && text[0] != '-'))
        return std::nullopt;
    std::int64_t seconds = 0;
    for (std::size_t place = 1; place < 7; place += 2) {
        const std::string_view two = place < text.size() ? text.substr(place, 2) : "00";
        if (two[0] < '0' || two[0] > '5' || two[1] < '0' || two[1] > '9')
            return std::nullopt;
        seconds = seconds * 60 + (two[0] - '0') * 10 + (two[1] - '0');
    }
    return text[0] == '-' ? -seconds : seconds;
}

std::optional<recurrence::RuleEnd> moment_in(std::string_view text) {
    std::string moment(values::trimmed(text.substr(0, text.find('/')))); // a period's start
    const std::string earliest = std::to_string(first_year);
    if (moment.size() >= earliest.size() && moment.substr(0, earliest.size()) < earliest)
        moment.replace(0, earliest.size(), earliest);
    return recurrence::moment_of(moment);
}

// One of the offsets that the zone's clocks have, with the moments at which they come to have it.
struct Part {
    std::int64_t before = 0;
    std::int64_t after = 0;
    DateTime start{};
    std::vector<recurrence::RuleEnd> dates{};
    std::vector<CalendarRule> rules{};
};

bool read_dates(std::string_view text, Part& part) {
    for (const std::string& piece : values::split(text, ",")) {
        const auto date = moment_in(piece);
        if (!date)
            return false;
        part.dates.push_back(*date);
    }
    return true;
}

std::optional<Part> part_of(const Component& told) {
    const auto start = moment_in(value_in(told, "DTSTART"));
    const auto after = offset_of(value_in(told, "TZOFFSETTO"));
    if (!start || !after)
        return std::nullopt;
    Part part{.after = *after, .start = start->time};
    part.before = offset_of(value_in(told, "TZOFFSETFROM")).value_or(*after);
    for (const Line& line : told.lines) {
        const std::string name = name_of(line);
        if (name == "RDATE" && !read_dates(value_of(line), part))
            return std::nullopt;
        if (name != "RRULE")
            continue;
        const auto rule = recurrence::calendar_rule_of(value_of(line));
        if (!rule)
            return std::nullopt;
        part.rules.push_back(*rule);
    }
    return part;
}

void add_changes(const Part& part, const recurrence::Spend& spend, std::vector<Zone::Change>& changes) {
    constexpr std::size_t units_of_a_change = 10;
    const auto add = [&](DateTime wall_clock) {
        spend(units_of_a_change);
        changes.push_back({plus_seconds(wall_clock, -part.before), part.before, part.after});
    };
    add(part.start);
    for (const recurrence::RuleEnd& date : part.dates)
        add(date.is_utc ? plus_seconds(date.time, part.before) : date.time);
    const DateTime end = DateTime::of(Zone::last_year + 1, 1, 2);
    for (const CalendarRule& rule : part.rules) {
        DateTime until = end;
        if (rule.until)
            until = rule.until->is_utc    ? plus_seconds(rule.until->time, part.before)
                    : rule.until->is_date ? plus_seconds(rule.until->time, 86399)
                                          : rule.until->time;
        recurrence::CalendarWalk walk(rule, {.start = part.start, .end = end, .until = until}, spend);
        while (const auto date = walk.next())
            add(*date);
    }
}

} // namespace

std::optional<Zone> zone_of(const Component& definition, const recurrence::Spend& spend) {
    std::vector<Zone::Change> changes;
    for (const Component& told : definition.parts) {
        if (told.name != "STANDARD" && told.name != "DAYLIGHT")
            continue;
        const auto part = part_of(told);
        if (!part)
            return std::nullopt;
        add_changes(*part, spend, changes);
    }
    return changes.empty() ? std::nullopt : std::optional(Zone(0, std::move(changes)));
}

} // namespace importing
