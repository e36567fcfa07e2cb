#include "core/interaction/instance_editor.h"

#include "core/values/numbers.h"
#include "core/values/value.h"

namespace interaction {

bool InstanceEditor::Edit_Instance(std::string& id, act::CommandNumber command) {
    // As it was clicked: dialog and question run the event loop, and a refresh can empty the grid's own record.
    const grid::clsMsgSchedCell cell = selection_.selected();
    const bool is_instance = !instances_.is_first_occurrence(id, cell);
    if (is_instance)
        id = instances_.Change_Instance(cell, cell, values::to_int32(cell.Duration()), Lifetime::temporary);
    launcher_.Select_and_Launch_Command(id, command, {.allDates = true});
    return is_instance ? settle(id, cell) : true;
}

bool InstanceEditor::settle(const std::string& instance, const grid::clsMsgSchedCell& cell) {
    bool refresh_needed = false;
    switch (instances_.Compare_Instance(instance)) {
    case InstanceChange::none:
        break;
    case InstanceChange::recurrence_touched:
        here_.box.show({.text = "In Orvanta, changes made under the RECURRING TAB are not allowed unless you use "
                                "the Edit recurring settings command. See the user's manual for more on Editing "
                                "recurring activities.\rAll changes are ignored.",
                        .title = "Changes cancelled!",
                        .icon = host::Icon::critical});
        break;
    case InstanceChange::changed:
        switch (frmActivityChange_.show()) {
        case ActivityChange::Response::this_instance:
            instances_.Keep(instance);
            return true;
        case ActivityChange::Response::all_instances:
            instances_.Apply_To_Series(instance, cell.ActivityID());
            refresh_needed = true;
            break;
        case ActivityChange::Response::cancel:
            break;
        }
        break;
    }
    instances_.Delete_Instance(instance, cell);
    return refresh_needed;
}

} // namespace interaction
