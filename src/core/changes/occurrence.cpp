#include "core/changes/occurrence.h"

namespace changes {

void Occurrence::except(act::Activity& activity) const {
    activity.Goto(series);
    activity.ExceptionInfo().Add(day);
}

void Occurrence::undo(act::Activity& activity) const {
    activity.Goto(series);
    activity.ExceptionInfo().Remove(day);
}

} // namespace changes
