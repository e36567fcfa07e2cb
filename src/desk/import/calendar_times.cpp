#include "desk/import/calendar_times.h"

#include <algorithm>

namespace importing {
namespace {

// Other lines, above all attachments, needn't go through the parser.
const std::set<std::string>& wanted_lines() {
    static const std::set<std::string> names = {
        "ACTION",   "ATTENDEE", "CATEGORIES",    "CLASS",        "COLOR",      "COMPLETED", "DESCRIPTION",
        "DTEND",    "DTSTART",  "DUE",           "DURATION",     "EXDATE",     "LOCATION",  "ORGANIZER",
        "PRIORITY", "RDATE",    "RECURRENCE-ID", "RRULE",        "SEQUENCE",   "STATUS",    "SUMMARY",
        "TRIGGER",  "TZID",     "TZNAME",        "TZOFFSETFROM", "TZOFFSETTO", "UID",       "URL"};
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
        if (part.name == "VALARM" || part.name == "STANDARD" || part.name == "DAYLIGHT")
            write(part, text);
    text += "END:" + component.name + "\r\n";
}

bool is_there(const icaltimetype& time) {
    return time.year >= 1900 && time.year <= 2500 && time.month >= 1 && time.month <= 12 && time.day >= 1 &&
           time.day <= icaltime_days_in_month(time.month, time.year) && time.hour >= 0 && time.hour <= 24 &&
           time.minute >= 0 && time.minute <= 59 && time.second >= 0 && time.second <= 60;
}

std::vector<icaltimetype> told_times(icalproperty* property) {
    icalvalue* value = icalproperty_get_value(property);
    if (!value)
        return {};
    switch (icalvalue_isa(value)) {
    case ICAL_DATE_VALUE:
        return {icalvalue_get_date(value)};
    case ICAL_DATETIME_VALUE:
        return {icalvalue_get_datetime(value)};
    case ICAL_DATETIMEDATE_VALUE:
        return {icalvalue_get_datetimedate(value)};
    case ICAL_DATETIMEPERIOD_VALUE: {
        const icaldatetimeperiodtype told = icalvalue_get_datetimeperiod(value);
        return {icaltime_is_null_time(told.time) ? told.period.start : told.time};
    }
    case ICAL_PERIOD_VALUE:
        return {icalvalue_get_period(value).start};
    default:
        return {};
    }
}

icaltimezone* system_zone(const std::string& name) {
    // A name may come with its maker in front: "/example.org/Europe/Berlin".
    for (std::size_t from = 0; from < name.size();) {
        const std::string place = name.substr(from);
        const bool is_plain = std::all_of(place.begin(), place.end(), [](char c) {
            return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '/' ||
                   c == '_' || c == '-' || c == '+';
        });
        if (is_plain)
            if (icaltimezone* zone = icaltimezone_get_builtin_timezone(place.c_str()))
                return zone;
        const std::size_t next = name.find('/', from);
        from = next == std::string::npos ? name.size() : next + 1;
    }
    return nullptr;
}

} // namespace

bool is_too_long(const Line& line) { return line.text.size() > longest_line && !is_free_text(name_of(line)); }

ParsedComponent parsed(const Component& component) {
    std::string text;
    write(component, text);
    return ParsedComponent(icalparser_parse_string(text.c_str()));
}

Zones::Zones(const Component& calendar) {
    for (const Component& part : calendar.parts) {
        if (part.name != "VTIMEZONE")
            continue;
        ParsedComponent definition = parsed(part);
        icalproperty* name =
            definition ? icalcomponent_get_first_property(definition.get(), ICAL_TZID_PROPERTY) : nullptr;
        if (!name || !icalcomponent_get_first_component(definition.get(), ICAL_ANY_COMPONENT))
            continue;
        const char* text = icalproperty_get_tzid(name);
        std::unique_ptr<icaltimezone, FreeZone> zone(icaltimezone_new());
        if (text && icaltimezone_set_component(zone.get(), definition.get())) {
            static_cast<void>(definition.release()); // the zone's own now
            own_.insert_or_assign(text, std::move(zone));
        }
    }
}

const icaltimezone* Zones::find(const std::string& name) {
    if (const auto place = own_.find(name); place != own_.end())
        return place->second.get();
    if (name == "UTC" || name == "Etc/UTC" || name == "GMT")
        return icaltimezone_get_utc_timezone();
    const icaltimezone* zone = system_zone(name);
    if (!zone)
        unknown_.insert(name);
    return zone;
}

std::vector<icaltimetype> Times::all(icalproperty* property) {
    std::vector<icaltimetype> times;
    icalparameter* parameter = icalproperty_get_first_parameter(property, ICAL_TZID_PARAMETER);
    const char* name = parameter ? icalparameter_get_tzid(parameter) : nullptr;
    for (icaltimetype time : told_times(property)) {
        if (!is_there(time))
            continue;
        if (!time.is_date && !icaltime_is_utc(time))
            time.zone = name ? zones_.find(name) : nullptr;
        times.push_back(time);
    }
    return times;
}

std::optional<icaltimetype> Times::first(icalcomponent* component, icalproperty_kind kind) {
    icalproperty* property = icalcomponent_get_first_property(component, kind);
    if (!property)
        return std::nullopt;
    const std::vector<icaltimetype> times = all(property);
    return times.empty() ? std::nullopt : std::optional(times.front());
}

values::DateTime Times::local(const icaltimetype& time) const {
    using values::DateTime;
    if (time.is_date)
        return DateTime::of(time.year, time.month, time.day);
    if (!time.zone)
        return DateTime::of(time.year, time.month, time.day, time.hour, time.minute);
    const DateTime local = local_time_(icaltime_as_timet_with_zone(time, time.zone));
    return DateTime::from_seconds(local.date().seconds() + local.time_to_the_minute().seconds());
}

} // namespace importing
