#include "core/interaction/drag_drop.h"

namespace interaction {

void DragDrop::msgSched_DragOver(int X, int Y) {
    here_.guarded("in frmMain: Sub msgSched_DragOver - Line # ", [&](host::Step& step) {
        step = 10;
        const bool on_titles = places_.is_in_title_row(Y) || places_.is_in_title_col(X);
        step = 20;
        presenter_.show_drag_icon(!on_titles && places_.is_within_columns(X) ? DragIcon::permitted
                                                                             : DragIcon::no_drop);
    });
}

void DragDrop::msgSched_DragDrop(int X, int Y) {
    here_.guarded("in frmMain: Sub msgSched_DragDrop - Line # ", [&](host::Step& step) {
        table::GridModel& msgSched = grid_.msgSched;
        grid::Selection& selection = grid_.selection;
        step = 10;
        if (places_.is_in_title_row(Y) || places_.is_in_title_col(X))
            return;
        step = 20;
        if (const auto col = places_.col_at(X))
            msgSched.Col(*col);
        step = 30;
        if (const auto row = places_.row_at(Y))
            msgSched.Row(*row);
        step = 40;
        selection.SelectedCell = grid_.layout.Cells.reference(msgSched.Row(), msgSched.Col());
        step = 50;
        // Kept for the questions, which run the event loop.
        const grid::CellReference source = selection.DragSourceCell;
        grid::CellReference target = selection.SelectedCell;
        target->ActivityID(std::string(selection.drag_source().ActivityID()));
        step = 60;
        if (source->DateDay() == target->DateDay() && source->DateTime() == target->DateTime() &&
            !rescheduling_.changes_user(*source, *target)) {
            make_current(*source);
            return;
        }
        step = 70;
        rescheduling_.Reschedule(*source, *target);
    });
}

void DragDrop::make_current(const grid::clsMsgSchedCell& cell) {
    grid_.msgSched.Row(cell.Row());
    grid_.msgSched.Col(cell.Col());
}

} // namespace interaction
