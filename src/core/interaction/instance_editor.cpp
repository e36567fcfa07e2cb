#include "core/interaction/instance_editor.h"

#include "core/values/numbers.h"
#include "core/values/value.h"

namespace interaction {

bool InstanceEditor::Edit_Instance(std::string& id, act::CommandNumber command) {
    // As it was clicked: dialog and question run the event loop, and a refresh can empty the grid's own record.
    const grid::clsMsgSchedCell cell = here_.selection.selected();
    const bool is_instance = !is_first_occurrence(id, cell);
    if (is_instance)
        id = here_.instances.Change_Instance(cell, cell, values::to_int32(cell.Duration()));
    here_.launcher.Select_and_Launch_Command(id, command, true, false, false);
    return is_instance ? settle(id, cell) : true;
}

bool InstanceEditor::is_first_occurrence(const std::string& id, const grid::clsMsgSchedCell& cell) const {
    here_.session.ActActivity->Goto(id);
    const auto start = values::date_of(here_.session.ActActivity->Data(act::activity_field::start), here_.locale);
    return start && start->date() == cell.DateDay();
}

bool InstanceEditor::settle(const std::string& instance, const grid::clsMsgSchedCell& cell) {
    bool refresh_needed = false;
    switch (here_.instances.Compare_Instance(instance)) {
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
        switch (here_.frmActivityChange.show()) {
        case ActivityChange::this_instance:
            return true;
        case ActivityChange::all_instances:
            here_.instances.Apply_To_Series(instance, cell.ActivityID());
            refresh_needed = true;
            break;
        }
        break;
    }
    here_.instances.Delete_Instance(instance, cell);
    return refresh_needed;
}

} // namespace interaction
