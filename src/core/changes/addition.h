#pragma once

#include "core/changes/fields.h"
#include "core/changes/occurrence.h"
#include "core/changes/scheduled_with.h"

#include <optional>
#include <string>

namespace changes {

// A new activity.
struct Addition {
    Fields fields;
    ScheduledWith contacts;
    std::optional<Occurrence> stands_for{}; // while that is edited

    // Stores the record, still without its contacts, and gives its id. Fails as act::Activity::Update does, with
    // nothing stored. On the record itself, schedule_with then gives it the contacts.
    std::string store(act::Activity& activity) const;
    // Takes the record away again.
    static void undo(act::Activity& activity, const std::string& id);
};

} // namespace changes
