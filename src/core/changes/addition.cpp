#include "core/changes/addition.h"

namespace changes {

std::string Addition::store(act::Activity& activity) const {
    activity.Add();
    if (stands_for)
        activity.StandsFor(stands_for->series, stands_for->day);
    write_fields(activity, fields);
    return activity.Update();
}

void Addition::undo(act::Activity& activity, const std::string& id) {
    activity.Goto(id);
    activity.Delete();
}

} // namespace changes
