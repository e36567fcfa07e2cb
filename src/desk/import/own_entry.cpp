#include "desk/import/own_entry.h"

#include "core/values/text.h"
#include "desk/import/colours.h"
#include "desk/import/own_lines.h"

#include <algorithm>
#include <iterator>

namespace importing {
namespace {

using store::Activity;
using store::DateTime;

template <std::size_t count>
std::optional<int> place_in(const std::string_view (&names)[count], const std::string& name) {
    const auto found = std::find(std::begin(names), std::end(names), name);
    return found == std::end(names) ? std::nullopt : std::optional(static_cast<int>(found - std::begin(names)));
}

std::optional<DateTime> date_of(const own::Parts& parts, std::size_t number) {
    const auto seconds = parts.number(number);
    const bool is_date = seconds && *seconds >= DateTime::of(100, 1, 1).seconds() &&
                         *seconds < DateTime::of(9999, 12, 31).seconds();
    return is_date ? std::optional(DateTime::from_seconds(*seconds)) : std::nullopt;
}

int small_number(const own::Parts& parts, std::size_t number) {
    return static_cast<int>(std::clamp<std::int64_t>(parts.number(number).value_or(0), -0x7FFFFFFF, 0x7FFFFFFF));
}

void restore_text(std::string& text, const Component& component, std::string_view name) {
    if (const auto parts = own::parts_in(component, name))
        text = parts->text(0);
}

void restore_times(Activity& activity, const Component& component) {
    const auto times = own::parts_in(component, own::times);
    if (!times)
        return;
    activity.start = date_of(*times, 0);
    activity.end = date_of(*times, 1).value_or(DateTime());
    activity.duration = small_number(*times, 2);
}

void restore_series(Activity& activity, const Component& component) {
    activity.recurrence = {};
    const auto series = own::parts_in(component, own::series);
    const auto kind = series ? place_in(own::series_kinds, series->text(0)) : std::nullopt;
    if (!kind)
        return;
    activity.recurrence = {.kind = static_cast<store::RecurrenceKind>(*kind),
                           .frequency = small_number(*series, 1),
                           .until = date_of(*series, 2),
                           .days_of_week = small_number(*series, 3),
                           .weeks_of_month = small_number(*series, 4),
                           .days_of_month = static_cast<std::uint32_t>(series->number(5).value_or(0))};
    activity.exceptions.clear();
    if (const auto dates = own::parts_in(component, own::exceptions))
        for (std::size_t i = 0; i < dates->size(); ++i)
            if (const auto date = date_of(*dates, i))
                activity.exceptions.push_back(*date);
}

// Another program may have given it another colour, which only has a name.
void restore_colour(Activity& activity, const Component& component) {
    const auto colour = own::parts_in(component, own::colour);
    const auto number = colour ? colour->number(0) : std::nullopt;
    if (!number)
        return;
    const auto told = values::trimmed(value_in(component, "COLOR"));
    const auto exact = static_cast<std::uint32_t>(*number);
    if (told.empty() || told == nearest_name(exact))
        activity.colour = exact;
}

void restore_what_has_no_place(FoundActivity& found, const Component& component) {
    Activity& activity = found.activity;
    const auto type = place_in(own::types, own::parts_in(component, own::type)->text(0));
    if (type)
        activity.type = static_cast<store::ActivityType>(*type);
    if (const auto cleared = own::parts_in(component, own::cleared); cleared && component.name == "VEVENT")
        activity.cleared = cleared->number(0) == 1;
    restore_text(activity.result, component, own::result);
    found.exported = value_in(component, own::record);
    restore_colour(activity, component);
    if (const auto user = own::parts_in(component, own::user))
        found.user = user->text(0);
    if (const auto group = own::parts_in(component, own::group))
        found.group = {.uid = group->text(0), .name = group->text(1)};
    std::vector<Person> people;
    for (const own::Parts& contact : own::all_parts_in(component, own::contact))
        people.push_back({.name = contact.text(1),
                          .mail = contact.text(2),
                          .company = contact.text(3),
                          .uid = contact.text(0)});
    found.people.insert(found.people.begin(), people.begin(), people.end());
    found.is_own = true;
}

void restore_all(FoundActivity& found, const Component& component) {
    Activity& activity = found.activity;
    restore_times(activity, component);
    restore_text(activity.regarding, component, own::regarding);
    restore_text(activity.details, component, own::details);
    restore_series(activity, component);
    if (const auto alarm = own::parts_in(component, own::alarm)) {
        activity.alarm = alarm->number(0) == 1;
        activity.alarm_lead = small_number(*alarm, 1);
    }
    if (const auto cleared = own::parts_in(component, own::cleared))
        activity.cleared = cleared->number(0) == 1;
}

} // namespace

bool is_own_entry(const Component& component) { return own::parts_in(component, own::type).has_value(); }

void restore_own(Entry& entry, const Component& component) {
    restore_what_has_no_place(entry.found, component);
    if (own::is_untouched(component)) {
        restore_all(entry.found, component);
        entry.changes.clear(); // what was read with a loss is whole now
        entry.is_settled = true;
    } else if (own::has_untouched_rule(component)) {
        restore_series(entry.found.activity, component);
        entry.is_settled = true;
    }
    if (!entry.found.activity.start)
        entry.is_settled = true;
}

} // namespace importing
