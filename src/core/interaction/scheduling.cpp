#include "core/interaction/scheduling.h"

namespace interaction {

void Scheduling::mnupopCall_Click() {
    here_.guarded("in frmMain: Sub mnupopCall_Click - Line # ", [&](host::Step& step) {
        step = 10;
        schedule("C");
    });
}

void Scheduling::mnupopMeeting_Click() {
    here_.guarded("in frmMain: Sub mnupopMeeting_Click - Line # ", [&](host::Step& step) {
        step = 10;
        schedule("M");
    });
}

void Scheduling::mnupopTodo_Click() {
    here_.guarded("in frmMain: Sub mnupopTodo_Click - Line # ", [&](host::Step& step) {
        step = 10;
        schedule("T");
    });
}

void Scheduling::schedule(const std::string& type) {
    launcher_.Setup_ActivityWin(engine_.grid.selection.selected(), type);
    launcher_.Command(act::CommandNumber::schedule_activity);
    engine_.quick_refresh.Ask_Refresh({});
}

} // namespace interaction
