#include "desk/import/groups.h"

#include "core/values/text.h"
#include "desk/import/own_lines.h"
#include "desk/store/imported_records.h"

#include <algorithm>

namespace importing {

Groups::Groups(store::Store& store) : store_(store), identity_(store.identity()) {
    for (const store::Group& group : store.groups())
        by_name_.emplace(values::lower(group.name), group.id);
}

std::string Groups::id_of(const std::string& uid, const std::string& name) {
    if (uid.empty())
        return {};
    if (const auto known = by_uid_.find(uid); known != by_uid_.end())
        return known->second;
    store::ImportedRecord imported{.kind = store::RecordKind::group, .uid = uid};
    const auto before = store_.imported_records().of(imported.kind, "", uid);
    auto id = before.empty() ? own::id_of(uid, identity_) : before.front().record;
    if (!id || !store_.group(*id)) {
        const auto same = by_name_.find(values::lower(name));
        imported.record = same != by_name_.end() ? same->second : store_.add(store::Group{.name = name});
        by_name_.erase(values::lower(name)); // another one of this name in the file is another group
        store_.imported_records().remember(imported);
        id = imported.record;
    }
    by_uid_[uid] = *id;
    return *id;
}

void Groups::join(const Membership& membership, const std::string& contact) {
    if (const std::string group = id_of(membership.uid, membership.name); !group.empty())
        joining_[group].emplace(membership.place, contact);
}

void Groups::fill() {
    for (const auto& [id, contacts] : joining_) {
        auto group = store_.group(id);
        const std::size_t before = group->contacts.size();
        for (const auto& [place, contact] : contacts)
            if (std::ranges::find(group->contacts, contact) == group->contacts.end())
                group->contacts.push_back(contact);
        if (group->contacts.size() > before)
            store_.update(*group);
    }
}

} // namespace importing
