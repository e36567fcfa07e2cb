#include "desk/windows/membership.h"

#include "desk/model/refusal.h"

#include <algorithm>

namespace windows {
namespace {

template <typename Change>
void change_group(OpenDatabase& database, const std::string& id, Change&& change) {
    database.store().together([&] {
        auto group = database.store().group(id);
        if (!group)
            model::refuse("The group isn't in the database any more.");
        change(group->contacts);
        database.store().update(*group);
    });
    database.refresh();
}

} // namespace

void add_members(OpenDatabase& database, const std::string& group, const std::vector<std::string>& contacts) {
    change_group(database, group, [&](std::vector<std::string>& members) {
        for (const std::string& contact : contacts)
            if (std::find(members.begin(), members.end(), contact) == members.end())
                members.push_back(contact);
    });
}

void remove_member(OpenDatabase& database, const std::string& group, const std::string& contact) {
    change_group(database, group, [&](std::vector<std::string>& members) { std::erase(members, contact); });
}

} // namespace windows
