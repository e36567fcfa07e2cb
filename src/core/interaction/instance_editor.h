#pragma once

#include "core/act/session.h"
#include "core/grid/selection.h"
#include "core/host/message_box.h"
#include "core/interaction/activity_change.h"
#include "core/interaction/instances.h"
#include "core/interaction/launcher.h"
#include "core/values/locale.h"

#include <string>

namespace interaction {

// Edits the occurrence of a series that the selected cell shows.
class InstanceEditor {
public:
    struct Needs {
        act::Session& session;
        const grid::Selection& selection;
        Launcher& launcher;
        Instances& instances;
        ActivityChange& frmActivityChange;
        host::MessageBox& box;
        const values::Locale& locale;
    };
    explicit InstanceEditor(const Needs& here) : here_(here) {}

    // Runs the command on the series itself where the cell shows its first occurrence, else on an instance that
    // the user then keeps, gives up or applies to the series; `id` is replaced by the instance's. True when the
    // calendar needs a refresh. Has no failure handler.
    bool Edit_Instance(std::string& id, act::CommandNumber command);

private:
    bool is_first_occurrence(const std::string& id, const grid::clsMsgSchedCell& cell) const;
    bool settle(const std::string& instance, const grid::clsMsgSchedCell& cell);

    Needs here_;
};

} // namespace interaction
