#include "core/interaction/drag_drop.h"

#include "core/interaction/cell_times.h"
#include "core/values/ids.h"
#include "core/values/text.h"
#include "core/values/value.h"

namespace interaction {

namespace field = act::activity_field;
using grid::clsMsgSchedCell;
using values::DateTime;

void DragDrop::msgSched_DragOver(int X, int Y) {
    here_.guarded("in frmMain: Sub msgSched_DragOver - Line # ", [&](host::Step& step) {
        step = 10;
        const bool on_titles = places_.is_in_title_row(Y) || places_.is_in_title_col(X);
        step = 20;
        here_.presenter.show_drag_icon(!on_titles && places_.is_within_columns(X) ? DragIcon::permitted
                                                                                  : DragIcon::no_drop);
    });
}

void DragDrop::msgSched_DragDrop(int X, int Y) {
    here_.guarded("in frmMain: Sub msgSched_DragDrop - Line # ", [&](host::Step& step) {
        table::GridModel& msgSched = here_.grid.msgSched;
        grid::Selection& selection = here_.grid.selection;
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
        selection.SelectedCell = here_.grid.layout.Cells.reference(msgSched.Row(), msgSched.Col());
        step = 50;
        // Kept for the questions, which run the event loop.
        const grid::CellReference source = selection.DragSourceCell, target = selection.SelectedCell;
        target->ActivityID(std::string(selection.drag_source().ActivityID()));
        step = 60;
        if (source->DateDay() == target->DateDay() && source->DateTime() == target->DateTime() &&
            !changes_user(*source, *target)) {
            make_current(*source);
            return;
        }
        step = 70;
        Reschedule(*source, *target);
    });
}

void DragDrop::Reschedule(clsMsgSchedCell& source, clsMsgSchedCell& target) {
    here_.guarded("in frmMain: Sub Reschedule - Line # ", [&](host::Step& step) {
        step = 10;
        const std::optional<std::string> user = ask_for_user(source, target);
        if (!user) {
            make_current(source);
            return;
        }
        step = 20;
        std::string moved = source.ActivityID();
        activity().Goto(moved);
        step = 30;
        const std::int32_t duration = values::int32_of(activity().Data(field::duration));
        const std::int32_t length = values::int32_of(activity().Data(field::occurrence_length));
        step = 40;
        if (!source.Recurring()) {
            step = 50;
            move_plain(source, target, duration, *user);
        } else if (target.DateDay() != source.DateDay()) {
            step = 60;
            if (!may_leave_series())
                return;
            step = 70;
            moved = here_.instances.Change_Instance(source, target, duration);
        } else {
            step = 80;
            const int answer = here_.frmActivityChange.show();
            if (answer == ActivityChange::cancel)
                return;
            step = 90;
            if (answer == ActivityChange::all_instances)
                move_series(target, length, *user);
            else
                moved = here_.instances.Change_Instance(source, target, duration);
        }
        step = 100;
        here_.refresh.Refresh_Data();
        step = 110;
        select_where_shown(moved, target);
        step = 120;
        // Given the id, it would take away the continuations that the refresh has just drawn.
        here_.grid.rendering.Display_Changes({});
    });
}

bool DragDrop::changes_user(const clsMsgSchedCell& source, const clsMsgSchedCell& target) const {
    return here_.grid.layout.OneRowPerUser && source.User() != target.User();
}

void DragDrop::make_current(const clsMsgSchedCell& cell) {
    here_.grid.msgSched.Row(cell.Row());
    here_.grid.msgSched.Col(cell.Col());
}

// In shared rows it stands where its slot sorts it, which needn't be the row on which it was let go.
void DragDrop::select_where_shown(const std::string& id, const clsMsgSchedCell& target) {
    grid::CellReference& SelectedCell = here_.grid.selection.SelectedCell;
    const grid::Layout& layout = here_.grid.layout;
    SelectedCell = layout.Cells.reference(target.Row(), target.Col());
    const int first = layout.first_row_of(target.Slot());
    for (int row = first; row < first + layout.CellsPerSlot && !id.empty(); ++row)
        if (layout.Cells(row, target.Col()).ActivityID() == id) {
            SelectedCell = layout.Cells.reference(row, target.Col());
            return;
        }
}

std::optional<std::string> DragDrop::ask_for_user(const clsMsgSchedCell& source, const clsMsgSchedCell& target) {
    if (!changes_user(source, target))
        return std::string();
    if (here_.box.show({.text = "You are dropping this activity to a cell belonging to another user. Do you want "
                                "to continue?",
                        .title = "Change of user",
                        .icon = host::Icon::exclamation,
                        .buttons = host::Buttons::yes_no}) == host::Answer::no)
        return std::nullopt;
    const auto id = here_.users.UserNameToId.find(std::string(target.User()));
    return id == here_.users.UserNameToId.end() ? std::string() : id->second;
}

bool DragDrop::may_leave_series() {
    return here_.box.show({.text =
                               "You are changing the date of a recurring activity. This change will remove the "
                               "recurring settings for this instance of the activity.",
                           .title = here_.application.title,
                           .icon = host::Icon::exclamation,
                           .buttons = host::Buttons::ok_cancel}) == host::Answer::ok;
}

// The series keeps its first date and takes the target's time.
void DragDrop::move_series(const clsMsgSchedCell& target, std::int32_t length, const std::string& user) {
    const DateTime first =
        values::to_date(values::text_of(activity().Data(field::start), here_.locale), here_.locale);
    const DateTime start = date_and_time(first.date(), target.DateTime(), here_.locale);
    activity().Edit();
    activity().RecurringChangeMode(act::RecurringChange::whole_series);
    write_and_update(start, length, user);
}

void DragDrop::move_plain(const clsMsgSchedCell& source, const clsMsgSchedCell& target, std::int32_t duration,
                          const std::string& user) {
    const DateTime start = start_of(target, here_.locale);
    activity().Goto(source.ActivityID());
    activity().Edit();
    write_and_update(start, duration, user);
}

void DragDrop::write_and_update(DateTime start, std::int32_t minutes, const std::string& user) {
    const DateTime end = start.plus_minutes(minutes);
    activity().Data(field::start, start);
    activity().Data(field::end, end);
    if (values::length(user) == values::id_length)
        activity().Data(field::scheduled_for, user);
    activity().Update();
}

} // namespace interaction
