#pragma once

#include "core/act/populate_lists.h"
#include "core/act/session.h"
#include "core/act/user_list.h"
#include "core/settings/settings.h"

namespace act {

// ACT! as the calendar holds it: its objects, and the lists that are filled from them.
class Connection {
public:
    Connection(const host::Platform& here, const settings::Settings& settings, Server& server)
        : session(server, here.guarded), lists(session, here.guarded),
          users(session, lists, settings.ini, here.guarded) {}
    Connection(const Connection&) = delete; // its parts point to each other
    Connection& operator=(const Connection&) = delete;

    Session session;
    ListPopulator lists;
    UserList users;
};

} // namespace act
