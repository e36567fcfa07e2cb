#include "desk/import/entry.h"

#include "core/values/text.h"
#include "desk/import/activity_text.h"
#include "desk/import/colours.h"
#include "desk/import/own_entry.h"
#include "desk/import/uid.h"

#include <algorithm>

namespace importing {
namespace {

using store::Activity;
using values::DateTime;

constexpr std::int64_t longest = 32767; // minutes; the calendar can't show more
constexpr std::size_t most_people = 500;
constexpr int minutes_of_day = 24 * 60;

icalproperty* property_of(const Entry& entry, icalproperty_kind kind) {
    return icalcomponent_get_first_property(entry.component.get(), kind);
}

std::string text_of(const Entry& entry, icalproperty_kind kind) {
    icalproperty* property = property_of(entry, kind);
    icalvalue* value = property ? icalproperty_get_value(property) : nullptr;
    const char* text = !value                                    ? nullptr
                       : icalvalue_isa(value) == ICAL_TEXT_VALUE ? icalvalue_get_text(value)
                       : icalvalue_isa(value) == ICAL_URI_VALUE  ? icalvalue_get_uri(value)
                                                                 : nullptr;
    return text ? text : "";
}

int minutes_between(DateTime from, DateTime to) {
    return static_cast<int>(std::clamp<std::int64_t>((to.seconds() - from.seconds()) / 60, -longest, longest));
}

bool reads_start(Entry& entry, bool is_to_do, Times& times) {
    const auto start = times.first(entry.component.get(), ICAL_DTSTART_PROPERTY);
    const auto due = is_to_do ? times.first(entry.component.get(), ICAL_DUE_PROPERTY) : std::nullopt;
    if (!start && !due)
        return false;
    entry.start = start ? *start : *due;
    entry.found.activity.start = times.local(entry.start);
    return true;
}

std::string line_of(Entry& entry, icalproperty_kind kind, const char* what) {
    bool is_cut = false;
    std::string line = single_line(text_of(entry, kind), &is_cut);
    if (is_cut)
        entry.changes.push_back("Its " + std::string(what) + " was cut to " + std::to_string(longest_single_line) +
                                " characters.");
    return line;
}

// In minutes, as the entry says it.
std::int64_t told_duration(Entry& entry, const Component& told, Times& times) {
    const bool is_to_do = told.name == "VTODO";
    const DateTime start = *entry.found.activity.start;
    icalcomponent* component = entry.component.get();
    const auto end = times.first(component, is_to_do ? ICAL_DUE_PROPERTY : ICAL_DTEND_PROPERTY);
    if (end)
        return (times.local(*end).seconds() - start.seconds()) / 60;
    if (icalproperty* duration = property_of(entry, ICAL_DURATION_PROPERTY))
        return seconds_of(icalproperty_get_duration(duration)) / 60;
    for (const char* name : {is_to_do ? "DUE" : "DTEND", "DURATION"})
        if (!value_in(told, name).empty())
            entry.changes.push_back(std::string("Its ") + name + " can't be read and was left out.");
    return entry.start.is_date && !is_to_do ? minutes_of_day : 0;
}

void read_duration(Entry& entry, const Component& component, Times& times) {
    Activity& activity = entry.found.activity;
    activity.duration = duration_of(told_duration(entry, component, times), entry.changes);
    activity.end = activity.start->plus_minutes(activity.duration);
}

void read_alarm(Entry& entry, Times& times) {
    icalcomponent* alarm = icalcomponent_get_first_component(entry.component.get(), ICAL_VALARM_COMPONENT);
    icalproperty* property = alarm ? icalcomponent_get_first_property(alarm, ICAL_TRIGGER_PROPERTY) : nullptr;
    if (!property)
        return;
    Activity& activity = entry.found.activity;
    const icaltriggertype trigger = icalproperty_get_trigger(property);
    std::int64_t lead = 0;
    if (!icaltime_is_null_time(trigger.time)) {
        const auto moment = times.first(alarm, ICAL_TRIGGER_PROPERTY);
        lead = moment ? minutes_between(times.local(*moment), *activity.start) : 0;
    } else {
        icalparameter* related = icalproperty_get_first_parameter(property, ICAL_RELATED_PARAMETER);
        const bool from_end = related && icalparameter_get_related(related) == ICAL_RELATED_END;
        lead = -seconds_of(trigger.duration) / 60 - (from_end ? activity.duration : 0);
    }
    activity.alarm = true;
    activity.alarm_lead = static_cast<int>(std::clamp<std::int64_t>(lead, 0, longest));
}

store::Priority priority_of(const Entry& entry) {
    icalproperty* property = property_of(entry, ICAL_PRIORITY_PROPERTY);
    const int priority = property ? icalproperty_get_priority(property) : 0;
    if (priority >= 1 && priority <= 4)
        return store::Priority::high;
    return priority >= 6 && priority <= 9 ? store::Priority::low : store::Priority::medium;
}

icalproperty_status status_of(const Entry& entry) {
    icalproperty* property = property_of(entry, ICAL_STATUS_PROPERTY);
    return property ? icalproperty_get_status(property) : ICAL_STATUS_NONE;
}

store::ActivityType type_of(const Component& component, const std::string& summary) {
    if (component.name == "VTODO")
        return store::ActivityType::to_do;
    const bool is_call = begins_as_call(summary) ||
                         std::any_of(component.lines.begin(), component.lines.end(), [](const Line& line) {
                             return name_of(line) == "CATEGORIES" && names_call(value_of(line));
                         });
    return is_call ? store::ActivityType::call : store::ActivityType::meeting;
}

std::string details_of(Entry& entry) {
    std::string details = text_of(entry, ICAL_DESCRIPTION_PROPERTY);
    const auto add = [&](const std::string& text) {
        if (!text.empty())
            details += (details.empty() ? "" : "\n") + text;
    };
    const std::string place = line_of(entry, ICAL_LOCATION_PROPERTY, "location");
    add(place.empty() ? "" : "Location: " + place);
    add(line_of(entry, ICAL_URL_PROPERTY, "web address"));
    bool is_cut = false;
    details = several_lines(details, &is_cut);
    if (is_cut)
        entry.changes.push_back("Its details were cut to " + std::to_string(longest_several_lines) +
                                " characters.");
    return details;
}

void read_colour(Entry& entry) {
    const std::string name = text_of(entry, ICAL_COLOR_PROPERTY);
    entry.found.activity.colour = colour_of(name);
    if (!name.empty() && !entry.found.activity.colour)
        entry.changes.push_back("Its colour \"" + single_line(name) + "\" isn't known.");
}

std::string parameter_text(icalproperty* property, icalparameter_kind kind) {
    icalparameter* parameter = icalproperty_get_first_parameter(property, kind);
    const char* text = parameter ? icalparameter_get_cn(parameter) : nullptr;
    return single_line(text ? text : "");
}

// Rooms and equipment are no people.
bool is_person(icalproperty* property) {
    icalparameter* parameter = icalproperty_get_first_parameter(property, ICAL_CUTYPE_PARAMETER);
    if (!parameter)
        return true;
    const icalparameter_cutype kind = icalparameter_get_cutype(parameter);
    return kind != ICAL_CUTYPE_ROOM && kind != ICAL_CUTYPE_RESOURCE;
}

void read_people(Entry& entry) {
    icalcomponent* component = entry.component.get();
    for (const icalproperty_kind kind : {ICAL_ATTENDEE_PROPERTY, ICAL_ORGANIZER_PROPERTY})
        for (icalproperty* property = icalcomponent_get_first_property(component, kind); property;
             property = icalcomponent_get_next_property(component, kind)) {
            if (!is_person(property))
                continue;
            if (entry.found.people.size() == most_people) {
                entry.changes.push_back("Only " + std::to_string(most_people) + " of its people were taken.");
                return;
            }
            icalvalue* value = icalproperty_get_value(property);
            const char* told = value ? icalvalue_get_caladdress(value) : nullptr;
            const std::string address = single_line(told ? told : "");
            const bool is_mail = values::lower(address).starts_with("mailto:");
            entry.found.people.push_back({parameter_text(property, ICAL_CN_PARAMETER),
                                          is_mail ? std::string(values::trimmed(address.substr(7))) : ""});
        }
}

void tell_lines_left_out(Entry& entry, const Component& component) {
    for (const Line& line : component.lines)
        if (name_of(line).empty())
            entry.changes.push_back("Line " + std::to_string(line.number) + " can't be read and was left out.");
        else if (is_too_long(line))
            entry.changes.push_back("Line " + std::to_string(line.number) + " is too long and was left out.");
}

void read_texts_and_state(Entry& entry, const Component& component) {
    Activity& activity = entry.found.activity;
    activity.regarding = line_of(entry, ICAL_SUMMARY_PROPERTY, "title");
    activity.details = details_of(entry);
    activity.type = type_of(component, activity.regarding);
    activity.priority = priority_of(entry);
    activity.cleared = status_of(entry) == ICAL_STATUS_COMPLETED || property_of(entry, ICAL_COMPLETED_PROPERTY);
    if (icalproperty* secrecy = property_of(entry, ICAL_CLASS_PROPERTY)) {
        const icalproperty_class kind = icalproperty_get_class(secrecy);
        activity.is_private = kind == ICAL_CLASS_PRIVATE || kind == ICAL_CLASS_CONFIDENTIAL;
    }
}

} // namespace

Source source_of(const Component& component) {
    return {component.line, single_line(unescaped(value_in(component, "SUMMARY"))),
            single_line(value_in(component, "UID"))};
}

int duration_of(std::int64_t minutes, std::vector<std::string>& changes) {
    const auto tell = [&](const std::string& change) {
        if (std::ranges::find(changes, change) == changes.end())
            changes.push_back(change);
    };
    if (minutes < 0)
        tell("It ends before it starts, so it was taken without a duration.");
    if (minutes > longest)
        tell("It lasts " + std::to_string(minutes / minutes_of_day) +
             " days; the calendar can hold 22 days and 18 hours, so it was cut to that.");
    return static_cast<int>(std::clamp<std::int64_t>(minutes, 0, longest));
}

Entry read_entry(const Component& component, Times& times) {
    Entry entry{.source = source_of(component), .component = parsed(component)};
    entry.found.source = entry.source;
    entry.found.uid = uid_of(component);
    if (!entry.component) {
        entry.skipped = "It can't be read.";
        return entry;
    }
    const bool is_own = is_own_entry(component);
    const bool has_start = reads_start(entry, component.name == "VTODO", times);
    const bool tells_start = !value_in(component, "DTSTART").empty() || !value_in(component, "DUE").empty();
    if ((entry.is_cancelled = status_of(entry) == ICAL_STATUS_CANCELLED))
        entry.skipped = "It is cancelled.";
    else if (!has_start && tells_start)
        entry.skipped = "Its start can't be read.";
    else if (!has_start && !is_own)
        entry.skipped = "It has no start.";
    if (!entry.skipped.empty())
        return entry;
    read_texts_and_state(entry, component);
    if (has_start) {
        read_duration(entry, component, times);
        read_alarm(entry, times);
    }
    read_colour(entry);
    read_people(entry);
    tell_lines_left_out(entry, component);
    if (is_own)
        restore_own(entry, component);
    return entry;
}

} // namespace importing
