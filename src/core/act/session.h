#pragma once

#include "core/act/objects.h"
#include "core/act/reference.h"
#include "core/host/guard.h"

namespace act {

// The objects held on the contact manager for the whole run. Once they are there, nobody checks whether the
// connection still is; a call that fails shows the box of the procedure that made it.
class Session {
public:
    Session(Server& server, const host::Guard& guarded) : server_(server), guarded_(guarded) {}

    // Set by Create_Database, in this order.
    Reference<Application> ActApp;
    Reference<Views> ActViews;
    Reference<ContactView> ActContactView;
    Reference<Database> ActDatabase;
    Reference<Contact> ActContact;
    Reference<Activity> ActActivity; // replaced by a new list now and then
    Reference<Users> ActUsers;
    Reference<Fields> ActFields;
    Reference<Group> ActGroup;

    // Attaches to the database that is open and builds all of the above. After a failure, told by the usual box,
    // the object that failed and the later ones stay unset.
    void Create_Database();
    // The end: lets the application go, with what belongs to it, and closes the database, which takes its tables
    // along; as far as they are there. Has no failure handler.
    void Release();

private:
    Server& server_;
    const host::Guard& guarded_;
};

} // namespace act
