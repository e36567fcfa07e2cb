#include "desk/import/import_file.h"

#include "core/values/failure.h"
#include "core/values/text.h"
#include "desk/import/calendar_reader.h"
#include "desk/import/card_reader.h"
#include "desk/import/people.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

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

store::User user_for(store::Store& store, const std::string& name) {
    const std::vector<store::User> users = store.users();
    if (users.empty())
        fail("The database has no user for whom activities could be scheduled.");
    if (name.empty())
        return users.front();
    std::string names;
    for (const store::User& user : users) {
        if (values::equal_ignoring_case(user.name, name))
            return user;
        names += (names.empty() ? "" : ", ") + user.name;
    }
    fail("There is no user \"" + name + "\". The users are: " + names + ".");
}

constexpr double part_of_reading = 0.5; // of an import; the rest is writing

struct Found {
    std::vector<FoundActivity> activities;
    std::vector<FoundCard> cards;
};

Found read(std::string_view bytes, const Options& options, Work& work, Report& report) {
    // The library would end the process at an entry that it can't read.
    icalerror_set_errors_are_fatal(0);
    const std::vector<Component> components = components_of(bytes);
    if (components.empty())
        fail("it has no calendar and no address card");
    std::size_t entries = 0;
    for (const Component& component : components)
        entries += component.parts.size();
    work.expect(entries, part_of_reading);
    Found found;
    MachineZones zones(options.other_zone_names, work);
    const Here here{.today = options.now, .local_time = options.local_time, .zones = zones, .work = work};
    for (const Component& component : components)
        if (component.name == "VCALENDAR")
            std::ranges::move(read_calendar(component, here, report), std::back_inserter(found.activities));
        else if (component.name == "VCARD")
            found.cards.push_back(read_card(component));
        else
            fail("it has something that is no calendar and no address card in line " +
                 std::to_string(component.line));
    return found;
}

void write(store::Store& store, Found& found, const store::User& user, store::DateTime now, Work& work,
           Report& report) {
    People people(store, user.name);
    work.expect(found.cards.size() + found.activities.size(), 1);
    for (const FoundCard& card : found.cards) {
        work.step();
        if (card.is_empty())
            report.skipped.push_back({card.source, "It has neither a name nor a company."});
        else if (people.add(card.contact, card.notes, now))
            report.notes += card.notes.size();
        else
            report.skipped.push_back({card.source, "The database has this contact already."});
    }
    for (FoundActivity& activity : found.activities) {
        work.step();
        activity.activity.user = user.id;
        activity.activity.contacts = people.contacts_of(activity.people);
        store.add(activity.activity);
        ++report.activities;
        report.series += activity.activity.recurrence.kind != store::RecurrenceKind::none;
    }
    report.contacts = people.added();
}

} // namespace

Report import_bytes(store::Store& store, std::string_view bytes, const std::string& name, const Options& options) {
    const store::User user = user_for(store, options.user);
    Report report{.file = name, .user = user.name};
    Work work(least_work + bytes.size() * work_for_a_byte, options.progress);
    Found found;
    try {
        try {
            found = read(bytes, options, work, report);
        } catch (const values::Failure& failure) {
            fail("Nothing was taken from \"" + name + "\": " + failure.description() + ".");
        }
        store.together([&] { write(store, found, user, options.now, work, report); });
    } catch (const Work::Cancelled&) {
        fail("Nothing was taken from \"" + name + "\": the import was cancelled.");
    }
    for (std::vector<Remark>* remarks : {&report.changed, &report.skipped})
        std::ranges::stable_sort(*remarks, {}, [](const Remark& remark) { return remark.source.line; });
    return report;
}

Report import_file(store::Store& store, const std::string& path, const Options& options) {
    return import_bytes(store, bytes_of(path), std::filesystem::path(path).filename().string(), options);
}

} // namespace importing
