#pragma once

#include "core/act/item_list.h"
#include "core/act/populate_lists.h"
#include "core/act/session.h"
#include "core/host/guard.h"
#include "core/settings/ini_lib.h"

#include <string>
#include <unordered_map>

namespace act {

enum class ShownUsers { of_the_filter, all };

// The users whom the calendar shows, and all users by id and name.
class UserList {
public:
    UserList(Session& session, ListPopulator& lists, const settings::IniLib& ini, const host::Guard& guarded)
        : session_(session), lists_(lists), ini_(ini), guarded_(guarded) {}

    // The ids of the chosen users and a blank, or a blank alone, which stands for all users.
    std::string UsersFilter;
    int NumUsers = 0;  // how many the calendar shows
    ItemList cboUsers; // their names; the item data is the position in ActUsers
    std::unordered_map<std::string, std::string> UserIdToName;
    std::unordered_map<std::string, std::string> UserNameToId;

    // Takes the users of the settings' filter, or all of them, and fills cboUsers. A filter that names nobody
    // falls back to all users.
    void Initialize_Users(ShownUsers shown);
    // Fills both maps with every user of the database. Has no failure handler.
    void map_users();
    // Whether activities of that user are shown.
    bool passes_filter(const std::string& user_id) const {
        return UsersFilter == " " || UsersFilter.find(user_id) != std::string::npos;
    }

private:
    Session& session_;
    ListPopulator& lists_;
    const settings::IniLib& ini_;
    const host::Guard& guarded_;
};

} // namespace act
