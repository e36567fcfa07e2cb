#pragma once

#include "core/act/activity.h"

#include <string>
#include <vector>

namespace changes {

// Whom an activity is scheduled with: its contact, and the further ones up to the empty text that ended the walk.
struct ScheduledWith {
    std::string first;
    std::vector<std::string> further;
};

// Of the current record.
ScheduledWith scheduled_with(act::Activity& activity);
// Gives the current record these contacts, at once, and tells how many they are. Those that it has beyond them
// stay.
int schedule_with(act::Activity& activity, const ScheduledWith& contacts);
// The same, and takes those beyond them off.
void schedule_with_only(act::Activity& activity, const ScheduledWith& contacts);

} // namespace changes
