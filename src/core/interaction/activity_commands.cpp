#include "core/interaction/activity_commands.h"

#include "core/settings/catalogue.h"
#include "core/values/numbers.h"

namespace interaction {

using act::CommandNumber;
using grid::clsMsgSchedCell;
namespace keys = settings::keys;

void ActivityCommands::msgSched_DblClick() {
    here_.guarded("in frmMain: Sub msgSched_DblClick - Line # ", [&](host::Step& step) {
        const table::GridModel& msgSched = here_.grid.msgSched;
        grid::CellReference& SelectedCell = here_.grid.selection.SelectedCell;
        const grid::Cells& Cells = here_.grid.layout.Cells;
        step = 10;
        if (here_.click.ClickOnTitleRow) {
            here_.presenter.Switch_View(msgSched.Col());
            return;
        }
        step = 20;
        SelectedCell = Cells.reference(msgSched.Row(), msgSched.Col());
        step = 30;
        if (here_.click.ClickOnTitles) {
            here_.click.ClickOnTitles = false;
            return;
        }
        step = 40;
        const grid::CellReference clicked = SelectedCell;
        std::string id = clicked->ActivityID();
        int continued_from = 0; // the column of the cell that the clicked one continues, as the flag of all dates
        if (id.empty() && !clicked->DependsOnActivity().empty()) {
            step = 50;
            id = clicked->DependsOnActivity();
            continued_from = clicked->DependsOnActivityY();
            SelectedCell = Cells.reference(clicked->DependsOnActivityX(), continued_from);
        }
        if (!id.empty()) {
            step = 60;
            edit_clicked(*clicked, id, continued_from != 0);
            return;
        }
        step = 70;
        here_.launcher.Setup_ActivityWin(*SelectedCell, read(here_.settings, keys::acty_type));
        step = 80;
        here_.engine.refresh.LastRefresh = here_.clock.now();
        step = 90;
        here_.launcher.Command(CommandNumber::schedule_activity);
        step = 100;
        here_.engine.quick_refresh.Ask_Refresh(false, "", 0, 0);
    });
}

void ActivityCommands::edit_clicked(const clsMsgSchedCell& clicked, std::string id, bool allDates) {
    if (clicked.Recurring()) {
        if (here_.editor.Edit_Instance(id, CommandNumber::edit_activity))
            here_.engine.refresh.Refresh_Data();
        return;
    }
    const bool cleared = clicked.Cleared();
    here_.launcher.Select_and_Launch_Command(
        id, cleared ? CommandNumber::clear_activity : CommandNumber::edit_activity, allDates, cleared, false);
    here_.engine.quick_refresh.Ask_Refresh(true, "", 0, 0);
}

void ActivityCommands::mnupopCall_Click() {
    here_.guarded("in frmMain: Sub mnupopCall_Click - Line # ", [&](host::Step& step) {
        step = 10;
        schedule("C");
    });
}

void ActivityCommands::mnupopMeeting_Click() {
    here_.guarded("in frmMain: Sub mnupopMeeting_Click - Line # ", [&](host::Step& step) {
        step = 10;
        schedule("M");
    });
}

void ActivityCommands::mnupopTodo_Click() {
    here_.guarded("in frmMain: Sub mnupopTodo_Click - Line # ", [&](host::Step& step) {
        step = 10;
        schedule("T");
    });
}

void ActivityCommands::schedule(const std::string& type) {
    here_.launcher.Setup_ActivityWin(here_.grid.selection.selected(), type);
    here_.launcher.Command(CommandNumber::schedule_activity);
    here_.engine.quick_refresh.Ask_Refresh(false, "", 0, 0);
}

void ActivityCommands::mnuPopRecurring_Click() {
    here_.guarded("in frmMain: Sub mnuPopRecurring_Click - Line # ", [&](host::Step& step) {
        step = 10;
        write(here_.user_store, keys::activity_recurring_edit, "1");
        step = 20;
        here_.launcher.Select_and_Launch_Command(here_.grid.selection.selected().ActivityID(),
                                                 CommandNumber::edit_activity, true, false, true);
        step = 30;
        here_.engine.refresh.Refresh_Data();
    });
}

void ActivityCommands::mnupopDetails_Click() {
    here_.guarded("in frmMain: Sub mnupopDetails_Click - Line # ", [&](host::Step& step) {
        step = 10;
        const clsMsgSchedCell& cell = here_.grid.selection.selected();
        std::string id = cell.ActivityID();
        if (cell.Recurring()) {
            step = 20;
            if (here_.editor.Edit_Instance(id, CommandNumber::activity_details))
                here_.engine.refresh.Refresh_Data();
            return;
        }
        step = 30;
        here_.launcher.Select_and_Launch_Command(id, CommandNumber::activity_details, false, false, false);
        step = 40;
        here_.engine.quick_refresh.Ask_Refresh(true, "", 0, 0);
    });
}

void ActivityCommands::mnupopSend_Click() {
    here_.guarded("in frmMain: Sub mnupopSend_Click - Line # ", [&](host::Step& step) {
        const table::GridModel& msgSched = here_.grid.msgSched;
        step = 10;
        const std::string id = here_.grid.layout.Cells(msgSched.Row(), msgSched.Col()).ActivityID();
        step = 20;
        here_.launcher.Select_and_Launch_Command(id, CommandNumber::send_activity, false, false, false);
    });
}

void ActivityCommands::mnupopClear_Click() {
    here_.guarded("in frmMain: Sub mnupopClear_Click - Line # ", [&](host::Step& step) {
        step = 10;
        const grid::CellReference cell = here_.grid.selection.SelectedCell;
        if (here_.grid.selection.selected().Recurring())
            clear_occurrence(*cell, step);
        else
            clear_plain(*cell);
    });
}

// An activity that the cell continues is refreshed as well.
void ActivityCommands::clear_plain(const clsMsgSchedCell& cell) {
    here_.launcher.Select_and_Launch_Command(cell.ActivityID(), CommandNumber::clear_activity, false, false,
                                             false);
    const std::string continued = cell.DependsOnActivity();
    here_.engine.quick_refresh.Ask_Refresh(true, continued, cell.DependsOnActivityX(), cell.DependsOnActivityY());
}

void ActivityCommands::clear_occurrence(const clsMsgSchedCell& cell, host::Step& step) {
    const std::string series = cell.ActivityID();
    step = 20;
    here_.session.ActActivity->Goto(series);
    step = 30;
    const std::string instance = here_.instances.Change_Instance(cell, cell, values::to_int32(cell.Duration()));
    step = 40;
    here_.launcher.Select_and_Launch_Command(instance, CommandNumber::clear_activity, true, false, false);
    step = 50;
    here_.session.ActActivity->Goto(instance);
    step = 60;
    if (text(act::activity_field::id) != instance && !settle_deletion(series, cell.DateDay()))
        return;
    step = 70;
    here_.engine.refresh.Refresh_Data();
}

bool ActivityCommands::settle_deletion(const std::string& series, values::DateTime day) {
    switch (here_.frmActivityChange.show()) {
    case ActivityChange::all_instances:
        here_.session.ActActivity->Goto(series);
        here_.session.ActActivity->Delete();
        return true;
    case ActivityChange::cancel:
        here_.instances.Remove_Exception(series, day);
        return false;
    default:
        return true;
    }
}

std::string ActivityCommands::text(int field) const {
    return values::text_of(here_.session.ActActivity->Data(field), here_.locale);
}

} // namespace interaction
