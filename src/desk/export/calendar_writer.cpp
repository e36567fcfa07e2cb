#include "desk/export/calendar_writer.h"

#include "core/values/failure.h"
#include "core/values/text.h"
#include "desk/import/activity_text.h"
#include "desk/import/colours.h"
#include "desk/import/own_lines.h"

#include <libical/ical.h>

#include <ctime>
#include <memory>

namespace exporting {
namespace {

using store::DateTime;
using store::RecurrenceKind;

struct Free {
    void operator()(icalcomponent* component) const { icalcomponent_free(component); }
    void operator()(char* text) const { icalmemory_free_buffer(text); }
};

icaltimetype time_of(DateTime moment) {
    icaltimetype time = icaltime_null_time();
    time.year = moment.year();
    time.month = moment.month();
    time.day = moment.day();
    time.hour = moment.hour();
    time.minute = moment.minute();
    time.second = moment.second();
    return time;
}

// As a text of the file has to be.
std::string single_line(const std::string& text) { return importing::readable(importing::single_line(text)); }
std::string several_lines(const std::string& text) { return importing::readable(importing::several_lines(text)); }

void add(icalcomponent* to, icalproperty* property) { icalcomponent_add_property(to, property); }

std::string joined(const std::vector<std::string>& parts) {
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : ",") + part;
    return text;
}

std::vector<std::string> weekdays_of(const store::Recurrence& series) {
    constexpr const char* names[] = {"SU", "MO", "TU", "WE", "TH", "FR", "SA"};
    std::vector<std::string> weekdays;
    for (int day = 0; day < 7; ++day)
        if (series.days_of_week >> day & 1)
            weekdays.emplace_back(names[day]);
    return weekdays;
}

std::vector<std::string> month_weekdays_of(const store::Recurrence& series) {
    std::vector<std::string> result;
    for (int week = 0; week < 5; ++week)
        for (const std::string& weekday : weekdays_of(series))
            if (series.weeks_of_month >> week & 1)
                result.push_back(std::to_string(week + 1) + weekday);
    return result;
}

std::vector<std::string> month_days_of(const store::Recurrence& series) {
    std::vector<std::string> days;
    for (int day = 0; day < 31; ++day)
        if (series.days_of_month >> day & 1)
            days.push_back(std::to_string(day + 1));
    return days;
}

std::string with_days(const char* pattern, const std::vector<std::string>& days) {
    return days.empty() ? std::string() : pattern + joined(days);
}

// Empty for none, and for one that falls on no day.
std::string pattern_of(const store::Recurrence& series) {
    switch (series.kind) {
    case RecurrenceKind::none:
        break;
    case RecurrenceKind::daily:
        return "FREQ=DAILY";
    case RecurrenceKind::weekly:
        return with_days("FREQ=WEEKLY;BYDAY=", weekdays_of(series));
    case RecurrenceKind::days_of_month:
        return with_days("FREQ=MONTHLY;BYMONTHDAY=", month_days_of(series));
    case RecurrenceKind::weekdays_of_month:
        return with_days("FREQ=MONTHLY;BYDAY=", month_weekdays_of(series));
    }
    return {};
}

void add_series(icalcomponent* entry, const store::Activity& activity) {
    const store::Recurrence& series = activity.recurrence;
    const std::string pattern = pattern_of(series);
    if (pattern.empty())
        return;
    const std::string rule = pattern + ";INTERVAL=" + std::to_string(series.frequency);
    icalrecurrencetype recurrence = icalrecurrencetype_from_string(rule.c_str());
    if (is_calendar_date(series.until))
        recurrence.until = time_of(series.until->date().plus_minutes(24 * 60 - 1));
    add(entry, icalproperty_new_rrule(recurrence));
    for (const DateTime date : activity.exceptions)
        if (is_calendar_date(date))
            add(entry, icalproperty_new_exdate(time_of(
                           DateTime::from_seconds(date.date().seconds() + activity.start->time().seconds()))));
}

void add_alarm(icalcomponent* entry, const store::Activity& activity, const std::string& summary) {
    if (!activity.alarm)
        return;
    icaltriggertype trigger{};
    trigger.time = icaltime_null_time();
    trigger.duration = icaldurationtype_from_int(-60 * activity.alarm_lead);
    icalcomponent* alarm = icalcomponent_new(ICAL_VALARM_COMPONENT);
    add(alarm, icalproperty_new_action(ICAL_ACTION_DISPLAY));
    add(alarm, icalproperty_new_description(summary.c_str()));
    add(alarm, icalproperty_new_trigger(trigger));
    icalcomponent_add_component(entry, alarm);
}

int priority_number(store::Priority priority) {
    return priority == store::Priority::high ? 1 : priority == store::Priority::medium ? 5 : 9;
}

void add_times(icalcomponent* entry, const store::Activity& activity) {
    add(entry, icalproperty_new_dtstart(time_of(*activity.start)));
    if (activity.duration == 0)
        return;
    const icaltimetype end = time_of(activity.start->plus_minutes(activity.duration));
    add(entry,
        activity.type == store::ActivityType::to_do ? icalproperty_new_due(end) : icalproperty_new_dtend(end));
}

void add_state(icalcomponent* entry, const store::Activity& activity) {
    add(entry, icalproperty_new_priority(priority_number(activity.priority)));
    if (activity.type == store::ActivityType::call)
        add(entry, icalproperty_new_categories("Phone call"));
    if (activity.colour)
        add(entry, icalproperty_new_color(std::string(importing::nearest_name(*activity.colour)).c_str()));
    if (activity.is_private)
        add(entry, icalproperty_new_class(ICAL_CLASS_PRIVATE));
    if (activity.type == store::ActivityType::to_do && activity.cleared)
        add(entry, icalproperty_new_status(ICAL_STATUS_COMPLETED));
}

icalcomponent* entry_of(const store::Activity& activity, const std::vector<Participant>& participants,
                        const Origin& origin) {
    const bool has_date = is_calendar_date(activity.start);
    const bool is_to_do = activity.type == store::ActivityType::to_do || !has_date;
    icalcomponent* entry = icalcomponent_new(is_to_do ? ICAL_VTODO_COMPONENT : ICAL_VEVENT_COMPONENT);
    const std::string uid = importing::own::uid_of(activity.id, origin.identity);
    const std::string summary = single_line(activity.regarding);
    add(entry, icalproperty_new_uid(uid.c_str()));
    add(entry, icalproperty_new_dtstamp(icaltime_from_timet_with_zone(static_cast<std::time_t>(origin.stamp), 0,
                                                                      icaltimezone_get_utc_timezone())));
    add(entry, icalproperty_new_summary(summary.c_str()));
    if (const std::string details = several_lines(activity.details); !details.empty())
        add(entry, icalproperty_new_description(details.c_str()));
    for (const Participant& participant : participants) {
        const std::string mail = single_line(participant.mail);
        const std::string person = single_line(participant.name) + (mail.empty() ? "" : " <" + mail + ">");
        add(entry, icalproperty_new_contact(person.c_str()));
    }
    if (has_date)
        add_times(entry, activity);
    add_state(entry, activity);
    if (has_date) {
        add_series(entry, activity);
        add_alarm(entry, activity, summary);
    }
    return entry;
}

} // namespace

bool is_calendar_date(const std::optional<DateTime>& date) {
    return date && *date >= DateTime::of(1900, 1, 1) && *date < DateTime::of(2500, 1, 1);
}

bool has_rule(const store::Activity& activity) {
    return is_calendar_date(activity.start) && !pattern_of(activity.recurrence).empty();
}

std::string entry_text(const store::Activity& activity, const std::vector<Participant>& participants,
                       const Origin& origin) {
    icalerror_set_errors_are_fatal(0); // the library would end the process
    const std::unique_ptr<icalcomponent, Free> entry(entry_of(activity, participants, origin));
    const std::unique_ptr<char, Free> text(icalcomponent_as_ical_string_r(entry.get()));
    return text.get();
}

std::string calendar_begin(const std::vector<std::string>& lines) {
    std::string text =
        "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Orvanta//Contact Desk//EN\r\nMETHOD:PUBLISH\r\n";
    for (const std::string& line : lines)
        text += line;
    return text;
}

std::string calendar_end() { return "END:VCALENDAR\r\n"; }

std::string calendar_text(const store::Activity& activity, const std::vector<Participant>& participants,
                          const Origin& origin) {
    if (!activity.start)
        throw values::Failure(values::FailureNumber::automation, "The activity has no date.");
    return calendar_begin() + entry_text(activity, participants, origin) + calendar_end();
}

} // namespace exporting
