#include "core/act/user_list.h"

#include "core/settings/catalogue.h"
#include "core/values/ids.h"
#include "core/values/numbers.h"
#include "core/values/text.h"

namespace act {

void UserList::Initialize_Users(ShownUsers shown) {
    guarded_("in frmMain: Sub Initialize_Users - Line # ", [&](host::Step& step) {
        step = 10;
        cboUsers.Clear();
        step = 20;
        UsersFilter = shown == ShownUsers::all ? " " : settings::read(ini_, settings::keys::filter_users) + " ";
        if (UsersFilter != " ") {
            step = 30;
            NumUsers = values::to_int16(static_cast<double>(values::length(UsersFilter)) /
                                        static_cast<double>(values::id_length));
            std::string_view rest = UsersFilter;
            for (int user = 0; user < NumUsers; ++user) {
                step = 40;
                std::string id = values::first_characters(rest, values::id_length);
                rest.remove_prefix(id.size());
                step = 50;
                const auto [name, position] = lists_.GetUserDetails(id);
                if (!name.empty() && values::is_numeric(position))
                    cboUsers.AddItem(name, values::to_int16(position));
            }
        } else {
            step = 60;
            NumUsers = session_.ActUsers->Count();
            step = 70;
            lists_.Populate_cboUsers(cboUsers, {});
        }
        step = 80;
        // Not again when even all users are none.
        if (cboUsers.ListCount() == 0 && shown != ShownUsers::all)
            Initialize_Users(ShownUsers::all);
    });
}

void UserList::map_users() {
    Users& users = *session_.ActUsers;
    const int count = users.Count();
    for (int user = 1; user <= count; ++user) {
        const std::string id = users.uniqueID(user);
        const std::string name = users.name(user);
        UserIdToName.emplace(id, name);
        UserNameToId.emplace(name, id);
    }
}

} // namespace act
