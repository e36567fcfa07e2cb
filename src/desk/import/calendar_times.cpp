#include "desk/import/calendar_times.h"

#include <algorithm>
#include <set>

namespace importing {
namespace {

// Other lines, above all attachments, needn't go through the parser; rules and zones are read without it.
const std::set<std::string>& wanted_lines() {
    static const std::set<std::string> names = {
        "ACTION",        "ATTENDEE", "CATEGORIES", "CLASS",   "COLOR",    "COMPLETED", "DESCRIPTION", "DTEND",
        "DTSTART",       "DUE",      "DURATION",   "EXDATE",  "LOCATION", "ORGANIZER", "PRIORITY",    "RDATE",
        "RECURRENCE-ID", "SEQUENCE", "STATUS",     "SUMMARY", "TRIGGER",  "UID",       "URL"};
    return names;
}

bool is_free_text(std::string_view name) {
    return name == "DESCRIPTION" || name == "SUMMARY" || name == "LOCATION" || name == "CATEGORIES";
}

void write(const Component& component, std::string& text) {
    text += "BEGIN:" + component.name + "\r\n";
    for (const Line& line : component.lines)
        if (const std::string name = name_of(line); wanted_lines().contains(name) && !is_too_long(line))
            text += line.text.substr(0, longest_line) + "\r\n";
    for (const Component& part : component.parts)
        if (part.name == "VALARM")
            write(part, text);
    text += "END:" + component.name + "\r\n";
}

bool is_there(const icaltimetype& time) {
    return time.year >= 1900 && time.year <= 2500 && time.month >= 1 && time.month <= 12 && time.day >= 1 &&
           time.day <= icaltime_days_in_month(time.month, time.year) && time.hour >= 0 && time.hour <= 24 &&
           time.minute >= 0 && time.minute <= 59 && time.second >= 0 && time.second <= 60;
}

values::DateTime date_time_of(const icaltimetype& time) {
    return values::DateTime::of(time.year, time.month, time.day, time.is_date ? 0 : time.hour,
                                time.is_date ? 0 : time.minute, time.is_date ? 0 : time.second);
}

// Without an end and a duration where the property has none.
std::vector<icalperiodtype> told_periods(icalproperty* property) {
    const auto only_start = [](const icaltimetype& start) {
        icalperiodtype period = icalperiodtype_null_period();
        period.start = start;
        return std::vector{period};
    };
    icalvalue* value = icalproperty_get_value(property);
    if (!value)
        return {};
    switch (icalvalue_isa(value)) {
    case ICAL_DATE_VALUE:
        return only_start(icalvalue_get_date(value));
    case ICAL_DATETIME_VALUE:
        return only_start(icalvalue_get_datetime(value));
    case ICAL_DATETIMEDATE_VALUE:
        return only_start(icalvalue_get_datetimedate(value));
    case ICAL_DATETIMEPERIOD_VALUE: {
        const icaldatetimeperiodtype told = icalvalue_get_datetimeperiod(value);
        return icaltime_is_null_time(told.time) ? std::vector{told.period} : only_start(told.time);
    }
    case ICAL_PERIOD_VALUE:
        return {icalvalue_get_period(value)};
    default:
        return {};
    }
}

} // namespace

std::int64_t seconds_of(const icaldurationtype& duration) {
    const std::int64_t days = std::int64_t{duration.weeks} * 7 + duration.days;
    const std::int64_t seconds =
        ((days * 24 + duration.hours) * 60 + duration.minutes) * 60 + std::int64_t{duration.seconds};
    return duration.is_neg ? -seconds : seconds;
}

bool is_too_long(const Line& line) {
    constexpr std::size_t longest_parameters = 1000;
    const std::string name = name_of(line);
    const bool has_several_times = name == "EXDATE" || name == "RDATE";
    return (line.text.size() > longest_line && !is_free_text(name)) ||
           (has_several_times && line.text.size() - value_of(line).size() > longest_parameters);
}

ParsedComponent parsed(const Component& component) {
    std::string text;
    write(component, text);
    return ParsedComponent(icalparser_parse_string(text.c_str()));
}

std::size_t units_to_parse(const Component& component) {
    constexpr std::size_t units_of_a_byte = 3;
    constexpr std::size_t bytes_squared_of_a_unit = 20000;
    std::size_t units = 0;
    for (const Line& line : component.lines)
        if (wanted_lines().contains(name_of(line))) {
            const std::size_t size = std::min(line.text.size(), longest_line);
            units += size * units_of_a_byte + size * size / bytes_squared_of_a_unit;
        }
    for (const Component& part : component.parts)
        units += units_to_parse(part);
    return units;
}

const Zone* Times::zone_of(icalproperty* property) {
    icalparameter* parameter = icalproperty_get_first_parameter(property, ICAL_TZID_PARAMETER);
    const char* name = parameter ? icalparameter_get_tzid(parameter) : nullptr;
    return name ? zones_.find(name) : nullptr;
}

std::vector<Period> Times::periods(icalproperty* property) {
    static const Zone utc;
    std::vector<Period> periods;
    const auto zoned = [&](const icaltimetype& time) {
        const Zone* zone = time.is_date ? nullptr : icaltime_is_utc(time) ? &utc : zone_of(property);
        return ZonedTime{date_time_of(time), time.is_date != 0, zone};
    };
    for (const icalperiodtype& told : told_periods(property)) {
        if (!is_there(told.start))
            continue;
        Period period{.start = zoned(told.start)};
        if (!icaltime_is_null_time(told.end) && is_there(told.end))
            period.minutes = (local(zoned(told.end)).seconds() - local(period.start).seconds()) / 60;
        else if (!icaldurationtype_is_null_duration(told.duration))
            period.minutes = seconds_of(told.duration) / 60;
        periods.push_back(period);
    }
    return periods;
}

std::vector<ZonedTime> Times::all(icalproperty* property) {
    std::vector<ZonedTime> times;
    for (const Period& period : periods(property))
        times.push_back(period.start);
    return times;
}

std::optional<ZonedTime> Times::first(icalcomponent* component, icalproperty_kind kind) {
    icalproperty* property = icalcomponent_get_first_property(component, kind);
    if (!property)
        return std::nullopt;
    const std::vector<ZonedTime> times = all(property);
    return times.empty() ? std::nullopt : std::optional(times.front());
}

values::DateTime Times::wall_clock(values::DateTime utc, const Zone* zone) const {
    constexpr std::size_t units_of_a_conversion = 12;
    work_.spend(units_of_a_conversion);
    static const std::int64_t first_second = values::DateTime::of(1970, 1, 1).seconds();
    return zone ? zone->wall_clock(utc) : local_time_(utc.seconds() - first_second);
}

values::DateTime Times::local(const ZonedTime& time) const {
    const values::DateTime local =
        time.zone ? wall_clock(time.zone->utc(time.wall_clock), nullptr) : time.wall_clock;
    return values::DateTime::from_seconds(local.date().seconds() + local.time_to_the_minute().seconds());
}

} // namespace importing
