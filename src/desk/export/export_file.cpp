#include "desk/export/export_file.h"

#include "core/values/failure.h"
#include "core/values/text.h"
#include "desk/export/calendar_writer.h"
#include "desk/export/card_writer.h"
#include "desk/export/own_writer.h"
#include "desk/export/whole_file.h"
#include "desk/import/activity_text.h"
#include "desk/import/import_file.h"
#include "desk/import/own_lines.h"
#include "desk/store/contact_fields.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>
#include <system_error>

namespace exporting {
namespace {

namespace field = store::contact_field;
namespace own = importing::own;

[[noreturn]] void fail(const std::string& sentence) {
    throw values::Failure(values::FailureNumber::automation, sentence);
}

std::string field_of(const store::Contact& contact, int number) {
    const auto place = contact.fields.find(number);
    return place == contact.fields.end() ? std::string() : place->second;
}

// What `read` gives, with everything of the database as of one moment.
std::string as_of_now(store::Store& store, const std::function<std::string()>& read) {
    store.begin_reading();
    std::string text;
    try {
        text = read();
    } catch (...) {
        store.end_reading();
        throw;
    }
    store.end_reading();
    return text;
}

class CalendarExport {
public:
    CalendarExport(store::Store& store, const Options& options, Report& report)
        : store_(store), origin_{.identity = store.identity(), .stamp = options.stamp}, report_(report),
          users_(store.users()), groups_(store.groups()) {
        for (store::Contact& contact : store.contacts())
            contacts_.emplace(contact.id, std::move(contact));
        if (!options.user.empty())
            choose_user(options.user);
    }

    std::string text() {
        std::string text = calendar_begin(first_lines());
        store::ActivityQuery query;
        if (!chosen_.empty())
            query.users = {chosen_};
        for (const store::Activity& activity : store_.activities(query))
            text += entry(activity);
        return text + calendar_end();
    }

private:
    void choose_user(const std::string& name) {
        const auto same = [&](const store::User& user) { return values::equal_ignoring_case(user.name, name); };
        std::string names;
        for (const store::User& user : users_)
            names += (names.empty() ? "" : ", ") + user.name;
        std::erase_if(users_, std::not_fn(same));
        if (users_.empty())
            fail("There is no user \"" + name + "\". The users are: " + names + ".");
        chosen_ = users_.front().id;
        report_.user = users_.front().name;
    }

    std::vector<std::string> first_lines() const {
        std::vector<std::string> lines;
        const std::string file = std::filesystem::path(store_.path()).stem().string();
        lines.push_back(
            known_line("X-WR-CALNAME",
                       {importing::readable(importing::single_line(report_.user.empty() ? file : report_.user))}));
        for (const store::User& user : users_)
            lines.push_back(own_line(own::user, {user.name, user.security, user.access}));
        for (const store::Group& group : groups_)
            lines.push_back(own_line(own::group, {own::uid_of(group.id, origin_.identity), group.name}));
        return lines;
    }

    std::string entry(const store::Activity& activity) {
        ActivityNames names;
        std::vector<Participant> participants;
        for (const std::string& id : activity.contacts)
            if (const auto place = contacts_.find(id); place != contacts_.end()) {
                names.contacts.push_back(named(place->second));
                const NamedContact& contact = names.contacts.back();
                participants.push_back({contact.name.empty() ? contact.company : contact.name, contact.mail});
            }
        const auto user = std::ranges::find(users_, activity.user, &store::User::id);
        names.user = user == users_.end() ? std::string() : user->name;
        if (const auto group = std::ranges::find(groups_, activity.group, &store::Group::id);
            group != groups_.end()) {
            names.group_uid = own::uid_of(group->id, origin_.identity);
            names.group = group->name;
        }
        count(activity);
        return with_own_lines(entry_text(activity, participants, origin_), activity, names);
    }

    NamedContact named(const store::Contact& contact) const {
        return {.uid = own::uid_of(contact.id, origin_.identity),
                .name = field_of(contact, field::name),
                .mail = field_of(contact, field::e_mail),
                .company = field_of(contact, field::company)};
    }

    void count(const store::Activity& activity) {
        const bool is_series = activity.recurrence.kind != store::RecurrenceKind::none;
        ++report_.activities;
        report_.series += is_series;
        report_.without_date += !is_calendar_date(activity.start);
        report_.without_rule += is_series && !has_rule(activity);
    }

    store::Store& store_;
    const Origin origin_;
    Report& report_;
    std::vector<store::User> users_;
    const std::vector<store::Group> groups_;
    std::map<std::string, store::Contact> contacts_;
    std::string chosen_; // the user's id; empty for everybody
};

std::string cards(store::Store& store, const Options& options, Report& report) {
    if (!options.user.empty())
        fail("Contacts are nobody's own; they are exported all together.");
    const std::string identity = store.identity();
    std::map<std::string, std::vector<GroupPlace>> places;
    for (const store::Group& group : store.groups()) {
        report.groups_without_contacts += group.contacts.empty();
        for (std::size_t place = 0; place < group.contacts.size(); ++place)
            places[group.contacts[place]].push_back({own::uid_of(group.id, identity), group.name, place});
    }
    std::string text;
    for (const store::Contact& contact : store.contacts()) {
        const std::vector<store::Note> notes = store.notes(contact.id);
        text += card_text(contact, notes, places[contact.id], identity);
        ++report.contacts;
        report.notes += notes.size();
    }
    return text;
}

std::string counted(std::size_t count, const std::string& one, const std::string& many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

} // namespace

std::string Report::text() const {
    std::string text = "Written to " + file + ": ";
    if (is_calendar) {
        text += counted(activities, "activity", "activities");
        text += series > 0 ? " (" + std::to_string(series) + " recurring)" : "";
        text += " of " + (user.empty() ? "everybody" : user) + ".\n";
    } else {
        text += counted(contacts, "contact", "contacts") + ", " + counted(notes, "note", "notes") + ".\n";
    }
    if (without_date > 0)
        text += counted(without_date, "activity has", "activities have") +
                " no date that calendars know; other programs see a to-do without a time.\n";
    if (without_rule > 0)
        text += counted(without_rule, "series falls", "series fall") +
                " on no day by its rule; other programs see one activity.\n";
    if (groups_without_contacts > 0)
        text +=
            counted(groups_without_contacts, "group without contacts isn't", "groups without contacts aren't") +
            " in the file; a calendar file of everybody's activities has them.\n";
    if (bytes > importing::largest_file)
        text += "The file has " + std::to_string(bytes / 1024 / 1024) +
                " megabytes; a contact desk takes files of up to 64. Export each user by themselves.\n";
    return text;
}

Report export_file(store::Store& store, const std::string& path, const Options& options) {
    const std::string ending = values::lower(std::filesystem::path(path).extension().string());
    if (ending != ".ics" && ending != ".vcf")
        fail("The file's name has to end in .ics for activities or in .vcf for contacts.");
    Report report{.file = std::filesystem::path(path).filename().string()};
    report.is_calendar = ending == ".ics";
    std::error_code absent;
    if (std::filesystem::equivalent(path, store.path(), absent))
        fail("That file is the database itself.");
    const std::string text = as_of_now(store, [&] {
        return report.is_calendar ? CalendarExport(store, options, report).text() : cards(store, options, report);
    });
    report.bytes = text.size();
    write_whole_file(path, text);
    return report;
}

} // namespace exporting
