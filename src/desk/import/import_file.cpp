#include "desk/import/import_file.h"

#include "core/values/failure.h"
#include "core/values/text.h"
#include "desk/import/activity_text.h"
#include "desk/import/calendar_reader.h"
#include "desk/import/card_reader.h"
#include "desk/import/card_taking.h"
#include "desk/import/groups.h"
#include "desk/import/own_lines.h"
#include "desk/import/people.h"
#include "desk/import/users.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <set>

namespace importing {
namespace {

[[noreturn]] void fail(const std::string& sentence) {
    throw values::Failure(values::FailureNumber::automation, sentence);
}

std::string bytes_of(const std::string& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        fail("There is no file \"" + path + "\".");
    const auto size = std::filesystem::file_size(path, error);
    if (!error && size > largest_file)
        fail("The file \"" + path + "\" has " + std::to_string(size / 1024 / 1024) +
             " megabytes. Files of up to 64 can be imported; split it and import the parts.");
    std::ifstream file(path, std::ios::binary);
    std::string bytes(error ? 0 : size, '\0');
    if (error || !file.read(bytes.data(), static_cast<std::streamsize>(bytes.size())))
        fail("The file \"" + path + "\" can't be read.");
    return bytes;
}

constexpr double part_of_reading = 0.5; // of an import; the rest is writing

struct Found {
    std::vector<FoundActivity> activities;
    std::set<std::string> whole_entries; // in each of the calendars that name them
    std::set<std::string> cut_entries;
    std::vector<FoundCard> cards;
    std::vector<store::User> users; // of a desk's own file, as are the groups
    std::vector<FoundGroup> groups;
};

bool is_of_calendar(const Component& component) {
    return component.name == "VEVENT" || component.name == "VTODO" || component.name == "VJOURNAL" ||
           component.name == "VTIMEZONE";
}

// Entries that stand outside of any calendar make one of their own, which knows the zones of the others.
void gather_entries(std::vector<Component>& components) {
    const auto entries = std::stable_partition(components.begin(), components.end(), std::not_fn(is_of_calendar));
    if (entries == components.end())
        return;
    Component calendar{.name = "VCALENDAR", .line = entries->line};
    for (const Component& component : components)
        if (component.name == "VCALENDAR")
            std::ranges::copy_if(component.parts, std::back_inserter(calendar.parts),
                                 [](const Component& part) { return part.name == "VTIMEZONE"; });
    std::move(entries, components.end(), std::back_inserter(calendar.parts));
    components.erase(entries, components.end());
    components.push_back(std::move(calendar));
}

std::string name_of_calendar(const Component& calendar, const std::string& file) {
    for (const char* line : {"X-WR-CALNAME", "NAME"})
        if (std::string name = single_line(unescaped(value_in(calendar, line))); !name.empty())
            return name;
    std::string name = single_line(std::filesystem::path(file).stem().string());
    return name.empty() ? "Calendar" : name;
}

void read_calendar_into(Found& found, const Component& calendar, const Here& here, Report& report) {
    const std::string name = name_of_calendar(calendar, report.file);
    for (const own::Parts& user : own::all_parts_in(calendar, own::user))
        found.users.push_back({.name = user.text(0), .security = user.text(1), .access = user.text(2)});
    for (const own::Parts& group : own::all_parts_in(calendar, own::group))
        found.groups.push_back({.uid = group.text(0), .name = group.text(1)});
    FoundCalendar read = read_calendar(calendar, here, report);
    found.whole_entries.merge(read.whole_entries);
    found.cut_entries.merge(read.cut_entries);
    for (FoundActivity& activity : read.activities) {
        activity.calendar = name;
        found.activities.push_back(std::move(activity));
    }
}

void tell_stray_lines(const std::vector<int>& lines, Report& report) {
    if (lines.empty())
        return;
    const std::string more =
        lines.size() == 1 ? "" : ", like " + std::to_string(lines.size() - 1) + " more after it";
    report.skipped.push_back({{.line = lines.front()}, "It stands in no entry" + more + "."});
}

Found read(std::string_view bytes, const Options& options, Work& work, Report& report) {
    // The library would end the process at an entry that it can't read.
    icalerror_set_errors_are_fatal(0);
    Content content = content_of(bytes);
    gather_entries(content.components);
    const auto is_known = [](const Component& c) { return c.name == "VCALENDAR" || c.name == "VCARD"; };
    if (std::ranges::none_of(content.components, is_known))
        fail("it has no calendar and no address card");
    std::size_t entries = 0;
    for (const Component& component : content.components)
        entries += component.parts.size();
    work.expect(entries, part_of_reading);
    Found found;
    MachineZones zones(options.other_zone_names, work);
    const Here here{.today = options.now, .local_time = options.local_time, .zones = zones, .work = work};
    for (const Component& component : content.components)
        if (component.name == "VCALENDAR")
            read_calendar_into(found, component, here, report);
        else if (component.name == "VCARD")
            found.cards.push_back(read_card(component));
        else
            report.skipped.push_back(
                {source_of(component), "It is a " + single_line(component.name) + ", not an appointment."});
    for (const std::string& entry : found.cut_entries)
        found.whole_entries.erase(entry);
    tell_stray_lines(content.stray_lines, report);
    report.mended_lines = content.mended_lines;
    return found;
}

void write(store::Store& store, const Found& found, Users& users, const Options& options, Work& work,
           Report& report) {
    work.expect(found.cards.size() + found.activities.size() + found.whole_entries.size(), 1);
    for (const store::User& user : found.users)
        users.tell(user);
    People people(store, users.name());
    Groups groups(store);
    for (const FoundGroup& group : found.groups)
        groups.id_of(group.uid, group.name);
    CardTaking cards(store, people, groups, options.now, report);
    for (const FoundCard& card : found.cards) {
        work.step();
        cards.take(card);
    }
    groups.fill();
    ActivityTaking activities(store, people, groups, options.deleted, report);
    for (const FoundActivity& activity : found.activities) {
        work.step();
        activities.take(activity, users.id_for(activity.user));
    }
    for (const std::string& entry : found.whole_entries) {
        work.step();
        activities.remove_gone(entry, users.usual_id());
    }
    report.contacts = people.added();
    report.user = users.summary();
}

} // namespace

Report import_bytes(store::Store& store, std::string_view bytes, const std::string& name, const Options& options) {
    Users users(store, options.user);
    Report report{.file = name, .user = {}};
    Work work(least_work + bytes.size() * work_for_a_byte, options.progress);
    Found found;
    try {
        try {
            found = read(bytes, options, work, report);
        } catch (const values::Failure& failure) {
            fail("Nothing was taken from \"" + name + "\": " + failure.description() + ".");
        }
        store.together([&] { write(store, found, users, options, work, report); });
    } catch (const Work::Cancelled&) {
        fail("Nothing was taken from \"" + name + "\": the import was cancelled.");
    }
    for (std::vector<Remark>* remarks : {&report.changed, &report.skipped})
        std::ranges::stable_sort(*remarks, {}, [](const Remark& remark) { return remark.source.line; });
    return report;
}

bool names_users(const std::string& path) {
    try {
        return values::contains(bytes_of(path), "\n" + std::string(own::user) + ":");
    } catch (const values::Failure&) { // the import itself tells it
        return false;
    }
}

Report import_file(store::Store& store, const std::string& path, const Options& options) {
    return import_bytes(store, bytes_of(path), std::filesystem::path(path).filename().string(), options);
}

} // namespace importing
