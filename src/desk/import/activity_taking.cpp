#include "desk/import/activity_taking.h"

#include "desk/import/digest.h"
#include "desk/import/own_lines.h"
#include "desk/import/shown_hours.h"

#include <string>
#include <utility>

namespace importing {
namespace {

using store::ImportedRecord;
using store::RecordKind;

std::string told_by(const FoundActivity& found) {
    Digest digest;
    digest.add(digest_of(found.activity)).add(found.calendar);
    digest.add(found.user.value_or("")).add(found.group.uid).add(found.group.name);
    for (const Person& person : found.people)
        digest.add(person.name).add(person.mail).add(person.uid);
    return digest.text();
}

} // namespace

ActivityTaking::ActivityTaking(store::Store& store, People& people, Groups& groups, Deleted deleted,
                               Report& report)
    : store_(store), people_(people), groups_(groups), identity_(store.identity()), deleted_(deleted),
      report_(report) {}

// An entry can have many activities, so its records are read once.
ActivityTaking::Known& ActivityTaking::known(const std::string& uid, const std::string& user) {
    const auto [place, is_new] = known_.try_emplace({uid, user});
    if (is_new)
        for (ImportedRecord& imported : store_.imported_records().of(RecordKind::activity, user, uid))
            place->second.before.emplace(imported.occurrence, std::move(imported));
    return place->second;
}

void ActivityTaking::take(const FoundActivity& found, const std::string& user) {
    ImportedRecord imported{.kind = RecordKind::activity,
                            .user = user,
                            .uid = found.uid,
                            .occurrence = found.occurrence,
                            .record = {},
                            .told = told_by(found),
                            .kept = {}};
    // An entry without a name is known by all that it says.
    if (imported.uid.empty())
        imported.uid = "#" + imported.told;
    // Of several under one name, as two calendars of a file can have them, each is known by its place.
    Known& there = known(imported.uid, user);
    int& place = there.places[found.occurrence];
    do
        imported.occurrence = found.occurrence + (++place == 1 ? "" : "#" + std::to_string(place));
    while (!there.there.insert(imported.occurrence).second);
    const auto before = there.before.find(imported.occurrence);
    if (before != there.before.end())
        take_again(found, imported, before->second);
    else if (!take_back(found, imported))
        add(found, std::move(imported));
}

bool ActivityTaking::take_back(const FoundActivity& found, const ImportedRecord& imported) {
    const auto id = own::id_of(found.source.uid, identity_);
    const auto current = id ? store_.activity(*id) : std::nullopt;
    if (!current || current->user != imported.user)
        return false;
    const std::string now = digest_of(*current);
    if (found.is_own && digest_of(record_of(found, imported.user)) == now) {
        ++report_.unchanged;
    } else if (found.exported == now && found.occurrence.empty()) { // so it was changed in the file
        update(found, imported, *current);
    } else if (left_own_.insert(*id).second) { // once, though it may have become several
        ++report_.left_as_changed;
        report_.skipped.push_back(
            {found.source,
             "It comes from this very database, where it was changed since; what is here was left."});
    }
    return true;
}

void ActivityTaking::take_again(const FoundActivity& found, const ImportedRecord& imported,
                                const ImportedRecord& before) {
    const auto current = store_.activity(before.record);
    if (!current && deleted_ == Deleted::come_back)
        return add(found, imported);
    if (!current) {
        ++report_.left_deleted;
        return;
    }
    const bool is_untouched = digest_of(*current) == before.kept;
    if (imported.told == before.told) {
        ++(is_untouched ? report_.unchanged : report_.left_as_changed);
    } else if (is_untouched) {
        update(found, imported, *current);
    } else {
        ++report_.left_as_changed;
        report_.skipped.push_back(
            {found.source,
             "It was changed in the file and, since it was taken, here too; what is here was left."});
    }
}

store::Activity ActivityTaking::record_of(const FoundActivity& found, const std::string& user) {
    store::Activity activity = found.activity;
    activity.user = user;
    activity.group = groups_.id_of(found.group.uid, found.group.name);
    activity.contacts = people_.contacts_of(found.people);
    if (activity.contacts.empty() && !found.is_own)
        activity.contacts.push_back(people_.contact_of_calendar(found.calendar));
    return activity;
}

void ActivityTaking::add(const FoundActivity& found, ImportedRecord imported) {
    const store::Activity activity = record_of(found, imported.user);
    imported.record = store_.add(activity);
    remember(std::move(imported));
    count_hours(activity);
    ++report_.activities;
    report_.series += activity.recurrence.kind != store::RecurrenceKind::none;
}

void ActivityTaking::update(const FoundActivity& found, ImportedRecord imported, const store::Activity& current) {
    store::Activity activity = record_of(found, imported.user);
    activity.id = current.id;
    activity.revision = current.revision;
    store_.update(activity);
    imported.record = current.id;
    remember(std::move(imported));
    count_hours(activity);
    ++report_.updated;
}

void ActivityTaking::remember(ImportedRecord imported) {
    imported.kept = digest_of(*store_.activity(imported.record)); // as the store has put it in order
    store_.imported_records().remember(imported);
}

void ActivityTaking::count_hours(const store::Activity& activity) {
    report_.outside_hours += activity.start && !is_in_shown_hours(*activity.start);
}

void ActivityTaking::remove_gone(const std::string& uid, const std::string& user) {
    auto place = known_.lower_bound({uid, std::string()});
    if (place == known_.end() || place->first.first != uid)
        return remove_gone(uid, user, {});
    for (; place != known_.end() && place->first.first == uid; ++place)
        remove_gone(uid, place->first.second, place->second.there);
}

void ActivityTaking::remove_gone(const std::string& uid, const std::string& user,
                                 const std::set<std::string>& there) {
    for (const ImportedRecord& imported : store_.imported_records().of(RecordKind::activity, user, uid)) {
        if (there.contains(imported.occurrence))
            continue;
        const auto current = store_.activity(imported.record);
        if (current && digest_of(*current) != imported.kept) {
            ++report_.left_as_changed;
            continue;
        }
        if (current) {
            store_.remove_activity(imported.record);
            ++report_.removed;
        }
        store_.imported_records().forget(imported);
    }
}

} // namespace importing
