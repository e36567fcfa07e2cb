#include "desk/export/own_writer.h"

#include "desk/import/digest.h"
#include "desk/import/entry.h"
#include "desk/import/own_lines.h"

#include <limits>

namespace exporting {
namespace {

namespace own = importing::own;
using store::DateTime;

constexpr std::size_t longest_line = 75; // bytes without the line end

std::string number(std::int64_t value) { return std::to_string(value); }
std::string number(const std::optional<DateTime>& date) { return date ? number(date->seconds()) : std::string(); }

bool begins_character(char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }

std::string folded(const std::string& line) {
    constexpr std::size_t longest_character = 4;
    std::string folded;
    std::size_t length = 0;
    for (const char c : line) {
        if (length > longest_line - longest_character && begins_character(c)) {
            folded += "\r\n ";
            length = 1;
        }
        folded += c;
        ++length;
    }
    return folded + "\r\n";
}

std::string series_lines(const store::Activity& activity) {
    const store::Recurrence& series = activity.recurrence;
    if (series.kind == store::RecurrenceKind::none)
        return {};
    std::string lines =
        own_line(own::series, {std::string(own::series_kinds[static_cast<std::size_t>(series.kind)]),
                               number(series.frequency), number(series.until), number(series.days_of_week),
                               number(series.weeks_of_month), number(series.days_of_month)});
    std::vector<std::string> dates;
    for (const DateTime date : activity.exceptions)
        dates.push_back(number(date.seconds()));
    return dates.empty() ? lines : lines + own_line(own::exceptions, dates);
}

// What an import makes of an entry without own lines, which says nothing more about texts than the format does.
store::Activity read_back(const std::string& entry) {
    const importing::Content content = importing::content_of(entry);
    importing::Work work(std::numeric_limits<std::size_t>::max()); // an entry has no more than the record
    importing::MachineZones machine_zones({}, work);
    const importing::Component calendar;
    importing::Zones zones(calendar, machine_zones, work);
    const importing::LocalTime local_time = importing::system_local_time;
    importing::Times times(zones, local_time, work);
    return importing::read_entry(content.components.front(), times).found.activity;
}

// Of the texts those alone that the format's own line doesn't give back.
std::string text_lines(const store::Activity& activity, const std::string& entry) {
    const store::Activity read = read_back(entry);
    std::string lines;
    if (read.regarding != activity.regarding)
        lines += own_line(own::regarding, {activity.regarding});
    if (read.details != activity.details)
        lines += own_line(own::details, {activity.details});
    if (!activity.result.empty())
        lines += own_line(own::result, {activity.result});
    return lines;
}

} // namespace

std::string own_line(std::string_view name, const std::vector<std::string>& parts) {
    std::string line = std::string(name) + ":";
    for (std::size_t i = 0; i < parts.size(); ++i)
        line += (i == 0 ? "" : "|") + own::escaped(parts[i]);
    return folded(line);
}

std::string known_line(std::string_view name, const std::vector<std::string>& parts) {
    std::string line = std::string(name) + ":";
    for (std::size_t i = 0; i < parts.size(); ++i) {
        line += i == 0 ? "" : ";";
        for (const char c : parts[i])
            if (c == '\n')
                line += "\\n";
            else
                (line += c == '\\' || c == ';' || c == ',' ? "\\" : "") += c;
    }
    return folded(line);
}

std::string with_lines(const std::string& component, const std::string& lines) {
    const std::size_t end = component.rfind("END:");
    const importing::Content content = importing::content_of(component);
    return component.substr(0, end) + lines + own_line(own::check, {own::check_of(content.components.front())}) +
           component.substr(end);
}

std::string with_own_lines(const std::string& entry, const store::Activity& activity, const ActivityNames& names) {
    std::string lines =
        own_line(own::type, {std::string(own::types[static_cast<std::size_t>(activity.type)])}) +
        own_line(own::times, {number(activity.start), number(activity.end.seconds()), number(activity.duration)}) +
        text_lines(activity, entry) + series_lines(activity);
    if (activity.alarm || activity.alarm_lead != 0)
        lines += own_line(own::alarm, {activity.alarm ? "1" : "0", number(activity.alarm_lead)});
    if (activity.colour)
        lines += own_line(own::colour, {number(*activity.colour)});
    lines += own_line(own::cleared, {activity.cleared ? "1" : "0"});
    lines += own_line(own::user, {names.user});
    if (!names.group_uid.empty())
        lines += own_line(own::group, {names.group_uid, names.group});
    for (const NamedContact& contact : names.contacts)
        lines += own_line(own::contact, {contact.uid, contact.name, contact.mail, contact.company});
    const importing::Content content = importing::content_of(entry);
    lines += own_line(own::rule_check, {own::rule_check_of(content.components.front())}) +
             own_line(own::record, {importing::digest_of(activity)});
    return with_lines(entry, lines);
}

} // namespace exporting
