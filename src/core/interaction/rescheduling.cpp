#include "core/interaction/rescheduling.h"

#include "core/changes/rewriting.h"
#include "core/interaction/cell_times.h"
#include "core/values/ids.h"
#include "core/values/text.h"
#include "core/values/value.h"

namespace interaction {

namespace field = act::activity_field;
using changes::Rewriting;
using Record = Rewriting::Record;
using grid::clsMsgSchedCell;
using values::DateTime;

namespace {

// Another start, and another user where the text is an id.
Rewriting move_to(DateTime start, std::int32_t minutes, const std::string& user, Record record) {
    Rewriting move{.record = record, .fields = {{field::start, start}, {field::end, start.plus_minutes(minutes)}}};
    if (values::length(user) == values::id_length)
        move.fields[field::scheduled_for] = user;
    return move;
}

} // namespace

void Rescheduling::Reschedule(const clsMsgSchedCell& source, const clsMsgSchedCell& target) {
    here_.guarded("in frmMain: Sub Reschedule - Line # ", [&](host::Step& step) {
        step = 10;
        const std::optional<std::string> user = ask_for_user(source, target);
        if (!user) {
            grid_.msgSched.Row(source.Row());
            grid_.msgSched.Col(source.Col());
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
            moved = instances_.Change_Instance(source, target, duration);
        } else {
            step = 80;
            const auto answer = frmActivityChange_.show();
            if (answer == ActivityChange::Response::cancel)
                return;
            step = 90;
            if (answer == ActivityChange::Response::all_instances)
                move_series(target, length, *user);
            else
                moved = instances_.Change_Instance(source, target, duration);
        }
        step = 100;
        engine_.refresh.Refresh_Data();
        step = 110;
        select_where_shown(moved, target);
        step = 120;
        // Given the id, it would take away the continuations that the refresh has just drawn.
        grid_.rendering.Display_Changes({});
    });
}

bool Rescheduling::changes_user(const clsMsgSchedCell& source, const clsMsgSchedCell& target) const {
    return grid_.layout.OneRowPerUser() && source.User() != target.User();
}

// In shared rows it stands where its slot sorts it, which needn't be the row on which it was let go.
void Rescheduling::select_where_shown(const std::string& id, const clsMsgSchedCell& target) {
    grid::CellReference& SelectedCell = grid_.selection.SelectedCell;
    grid::Layout& layout = grid_.layout;
    SelectedCell = layout.Cells.reference(target.Row(), target.Col());
    const grid::SlotNumber slot = target.Slot();
    for (int row = layout.first_row_of(slot); row <= layout.lines().last_row_of(slot) && !id.empty(); ++row)
        if (layout.Cells(row, target.Col()).ActivityID() == id) {
            SelectedCell = layout.Cells.reference(row, target.Col());
            return;
        }
}

std::optional<std::string> Rescheduling::ask_for_user(const clsMsgSchedCell& source,
                                                      const clsMsgSchedCell& target) {
    if (!changes_user(source, target))
        return std::string();
    if (here_.box.show({.text = "You are dropping this activity to a cell belonging to another user. Do you want "
                                "to continue?",
                        .title = "Change of user",
                        .icon = host::Icon::exclamation,
                        .buttons = host::Buttons::yes_no}) == host::Answer::no)
        return std::nullopt;
    const auto id = engine_.act.users.UserNameToId.find(std::string(target.User()));
    return id == engine_.act.users.UserNameToId.end() ? std::string() : id->second;
}

bool Rescheduling::may_leave_series() {
    return here_.box.show({.text =
                               "You are changing the date of a recurring activity. This change will remove the "
                               "recurring settings for this instance of the activity.",
                           .title = here_.application.title,
                           .icon = host::Icon::exclamation,
                           .buttons = host::Buttons::ok_cancel}) == host::Answer::ok;
}

// The series keeps its first date and takes the target's time.
void Rescheduling::move_series(const clsMsgSchedCell& target, std::int32_t length, const std::string& user) {
    const DateTime first =
        values::to_date(values::text_of(activity().Data(field::start), here_.locale), here_.locale);
    const DateTime start = date_and_time(first.date(), target.DateTime(), here_.locale);
    move_to(start, length, user, Record::whole_series).apply(activity());
}

void Rescheduling::move_plain(const clsMsgSchedCell& source, const clsMsgSchedCell& target, std::int32_t duration,
                              const std::string& user) {
    const DateTime start = start_of(target, here_.locale);
    activity().Goto(source.ActivityID());
    move_to(start, duration, user, Record::single).apply(activity());
}

} // namespace interaction
