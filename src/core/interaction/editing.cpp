#include "core/interaction/editing.h"

namespace interaction {

using act::CommandNumber;
using grid::clsMsgSchedCell;

void Editing::msgSched_DblClick() {
    here_.guarded("in frmMain: Sub msgSched_DblClick - Line # ", [&](host::Step& step) {
        step = 10;
        if (mouse_.takes_double_click())
            return;
        step = 40;
        grid::CellReference& SelectedCell = grid_.selection.SelectedCell;
        const grid::CellReference clicked = SelectedCell;
        std::string id = clicked->ActivityID();
        int continued_from = 0; // the column of the cell that the clicked one continues, as the flag of all dates
        if (id.empty() && !clicked->DependsOnActivity().empty()) {
            step = 50;
            id = clicked->DependsOnActivity();
            continued_from = clicked->DependsOnActivityY();
            SelectedCell = grid_.layout.Cells.reference(clicked->DependsOnActivityX(), continued_from);
        }
        if (!id.empty()) {
            step = 60;
            edit_clicked(*clicked, id, continued_from != 0);
            return;
        }
        step = 70;
        launcher_.Setup_ActivityWin(*SelectedCell);
        step = 80;
        engine_.placing.LastRefresh = here_.clock.now();
        step = 90;
        launcher_.Command(CommandNumber::schedule_activity);
        step = 100;
        engine_.quick_refresh.Ask_Refresh({});
    });
}

void Editing::edit_clicked(const clsMsgSchedCell& clicked, std::string id, bool allDates) {
    if (clicked.Recurring()) {
        if (editor_.Edit_Instance(id, CommandNumber::edit_activity))
            engine_.refresh.Refresh_Data();
        return;
    }
    const bool cleared = clicked.Cleared();
    launcher_.Select_and_Launch_Command(id, cleared ? CommandNumber::clear_activity : CommandNumber::edit_activity,
                                        {.allDates = allDates, .showCleared = cleared});
    engine_.quick_refresh.Ask_Refresh({.selected = true});
}

void Editing::mnuPopRecurring_Click() {
    here_.guarded("in frmMain: Sub mnuPopRecurring_Click - Line # ", [&](host::Step& step) {
        step = 10;
        launcher_.announce_recurring_edit();
        step = 20;
        const clsMsgSchedCell& cell = grid_.selection.selected();
        launcher_.Select_and_Launch_Command(
            cell.ActivityID(), CommandNumber::edit_activity,
            {.allDates = true, .showCleared = cell.Cleared(), .startCompanion = true});
        launcher_.withdraw_recurring_edit();
        step = 30;
        engine_.refresh.Refresh_Data();
    });
}

void Editing::mnupopDetails_Click() {
    here_.guarded("in frmMain: Sub mnupopDetails_Click - Line # ", [&](host::Step& step) {
        step = 10;
        const clsMsgSchedCell& cell = grid_.selection.selected();
        std::string id = cell.ActivityID();
        if (cell.Recurring()) {
            step = 20;
            if (editor_.Edit_Instance(id, CommandNumber::activity_details))
                engine_.refresh.Refresh_Data();
            return;
        }
        step = 30;
        launcher_.Select_and_Launch_Command(id, CommandNumber::activity_details, {});
        step = 40;
        engine_.quick_refresh.Ask_Refresh({.selected = true});
    });
}

void Editing::mnupopSend_Click() {
    here_.guarded("in frmMain: Sub mnupopSend_Click - Line # ", [&](host::Step& step) {
        step = 10;
        const std::string id = grid_.current_cell().ActivityID();
        step = 20;
        launcher_.Select_and_Launch_Command(id, CommandNumber::send_activity, {});
    });
}

} // namespace interaction
