#pragma once

#include "core/grid/selection.h"
#include "core/interaction/activity_change.h"
#include "core/interaction/instances.h"
#include "core/interaction/launcher.h"

#include <string>

namespace interaction {

// Edits the occurrence of a series that the selected cell shows.
class InstanceEditor {
public:
    InstanceEditor(const host::Platform& here, const grid::Selection& selection, Launcher& launcher,
                   Instances& instances, ActivityChange& frmActivityChange)
        : here_(here), selection_(selection), launcher_(launcher), instances_(instances),
          frmActivityChange_(frmActivityChange) {}

    // Runs the command on the series itself where the cell shows its first occurrence, else on an instance that
    // the user then keeps, gives up or applies to the series; `id` is replaced by the instance's. True when the
    // calendar needs a refresh. Has no failure handler.
    bool Edit_Instance(std::string& id, act::CommandNumber command);

private:
    bool settle(const std::string& instance, const grid::clsMsgSchedCell& cell);

    const host::Platform& here_;
    const grid::Selection& selection_;
    Launcher& launcher_;
    Instances& instances_;
    ActivityChange& frmActivityChange_;
};

} // namespace interaction
