#pragma once

#include "core/changes/fields.h"
#include "core/changes/scheduled_with.h"

#include <string>

namespace changes {

// A new activity.
struct Addition {
    Fields fields;
    ScheduledWith contacts;

    // Stores the record, still without its contacts, and gives its id. Fails as act::Activity::Update does, with
    // nothing stored. On the record itself, schedule_with then gives it the contacts.
    std::string store(act::Activity& activity) const;
    // Takes the record away again.
    static void undo(act::Activity& activity, const std::string& id);
};

} // namespace changes
