#include "core/interaction/clearing.h"

#include "core/values/numbers.h"
#include "core/values/value.h"

namespace interaction {

using act::CommandNumber;
using grid::clsMsgSchedCell;

void Clearing::mnupopClear_Click() {
    here_.guarded("in frmMain: Sub mnupopClear_Click - Line # ", [&](host::Step& step) {
        step = 10;
        const bool recurring = grid_.selection.selected().Recurring();
        const grid::CellReference cell = grid_.selection.SelectedCell;
        step = 20;
        if (!recurring)
            clear_plain(*cell);
        else if (clear_occurrence(*cell)) {
            step = 30;
            engine_.refresh.Refresh_Data();
        }
    });
}

// An activity that the cell continues is refreshed as well.
void Clearing::clear_plain(const clsMsgSchedCell& cell) {
    launcher_.Select_and_Launch_Command(cell.ActivityID(), CommandNumber::clear_activity, {});
    engine_.quick_refresh.Ask_Refresh({.selected = true,
                                       .second_id = cell.DependsOnActivity(),
                                       .second_place = {cell.DependsOnActivityX(), cell.DependsOnActivityY()}});
}

bool Clearing::clear_occurrence(const clsMsgSchedCell& cell) {
    const std::string series = cell.ActivityID();
    activity().Goto(series);
    const std::string instance =
        instances_.Change_Instance(cell, cell, values::to_int32(cell.Duration()), Lifetime::temporary);
    launcher_.Select_and_Launch_Command(instance, CommandNumber::clear_activity, {.allDates = true});
    activity().Goto(instance);
    const std::string present = values::text_of(activity().Data(act::activity_field::id), here_.locale);
    const bool refresh_needed = present == instance || settle_deletion(series, cell.DateDay());
    instances_.Keep(instance);
    return refresh_needed;
}

bool Clearing::settle_deletion(const std::string& series, values::DateTime day) {
    switch (frmActivityChange_.show()) {
    case ActivityChange::Response::all_instances:
        activity().Goto(series);
        activity().Delete();
        return true;
    case ActivityChange::Response::cancel:
        instances_.Remove_Exception(series, day);
        return false;
    case ActivityChange::Response::this_instance:
        break;
    }
    return true;
}

} // namespace interaction
