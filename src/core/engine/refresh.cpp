#include "core/engine/refresh.h"

#include "core/settings/catalogue.h"
#include "core/values/numbers.h"
#include "core/values/value.h"

namespace engine {

namespace {

template <typename Key>
bool is_zero(const settings::IniLib& settings, const Key& key) {
    return values::leading_number(read(settings, key)) == 0;
}

} // namespace

void Refresh::Refresh_Data() {
    here_.guarded("in modRefresh: Sub Refresh_Data - Line # ", [&](host::Step& step) {
        const table::GridModel& msgSched = grid_.msgSched;
        const grid::Layout& layout = grid_.layout;
        step = 10;
        placing_.LastRefresh = here_.clock.now();
        placing_.DisplayedIDs.clear();
        step = 20;
        if (!grid_.bLoading)
            for (grid::clsMsgSchedSlot& slot : grid_.layout.Slots)
                slot.ClearCells();
        step = 30;
        here_.window.show_hourglass();
        step = 40;
        read_settings();
        step = 50;
        here_.window.lock_updates();
        step = 60;
        clear_cells();
        step = 70;
        act::Activity& activity = *act_.session.ActActivity;
        const auto look = act_.session.ActDatabase->One_Look();
        placing_.displayed_from = act_.session.ActDatabase->Moment();
        activity.Rebuild();
        step = 80;
        if (!grid_.bLoading)
            Clear_Msg(1, msgSched.Rows() - 1, layout.FixedCols(), msgSched.Cols() - 1);
        step = 90;
        filter_list(activity);
        step = 150;
        place_plain_activities(activity);
        step = 160;
        if (CheckRecurring)
            recurring_.Treat_Recurring();
        step = 170;
        grid_.rendering.Display_Changes("");
        step = 180;
        here_.window.unlock_updates();
        step = 190;
        here_.window.bring_to_front();
        step = 200;
        here_.window.show_default_pointer();
    });
}

void Refresh::read_settings() {
    namespace keys = settings::keys;
    grid_.writer.ShowIcons = !is_zero(settings_.ini, keys::show_icons);
    placing_.ShowActyColorsMode = values::to_int16(read(settings_.ini, keys::show_acty_colors));
    placing_.FixedActyColor = read(settings_.ini, keys::color_2);
    placing_.read_settings();
}

void Refresh::clear_cells() {
    const int last_row = grid_.msgSched.Rows() - 1, last_col = grid_.msgSched.Cols() - 1;
    const int first_col = grid_.layout.FixedCols();
    for (int row = 1; row <= last_row; ++row)
        for (int col = first_col; col <= last_col; ++col) {
            grid::clsMsgSchedCell& cell = grid_.layout.Cells(row, col);
            cell.Clear();
            // Drawing links the cells that continue an activity now; of those that did none may stay.
            cell.DependsOnActivity({});
            cell.DependsOnActivityX(0);
            cell.DependsOnActivityY(0);
        }
    grid_.msgSched.clear_contents({.rows = {1, last_row}, .cols = {first_col, last_col}});
}

void Refresh::filter_list(act::Activity& activity) const {
    namespace keys = settings::keys;
    activity.ClearClearedFilter();
    activity.ClearDateScope();
    activity.ClearPriorityFilter();
    activity.ClearTypeFilter();
    activity.SetDateScope(grid_.layout.StartDate(), grid_.layout.after_last_day());
    for (int number = 0; number <= 2; ++number) {
        if (is_zero(settings_.ini, keys::filter_type(number)))
            activity.SetTypeFilter(static_cast<act::ActivityType>(number));
        if (is_zero(settings_.ini, keys::filter_priority(number)))
            activity.SetPriorityFilter(static_cast<act::Priority>(number));
    }
    if (is_zero(settings_.ini, keys::filter_show_cleared))
        activity.SetClearedFilter();
}

void Refresh::place_plain_activities(act::Activity& activity) {
    namespace field = act::activity_field;
    for (; !activity.isEOF(); activity.MoveNext()) {
        if (activity.isRecurring())
            continue;
        if (!act_.users.passes_filter(values::text_of(activity.Data(field::scheduled_for), here_.locale)))
            continue;
        const auto start = values::date_of(activity.Data(field::start), here_.locale);
        if (!start || start->date() < grid_.layout.StartDate())
            continue;
        placing_.Treat_Activity(*start, values::int16_of(activity.Data(field::duration)), Placing::Kind::single);
    }
}

void Refresh::Clear_Msg(int row_from, int row_to, int col_from, int col_to) {
    here_.guarded("in modRefresh: Sub Clear_Msg - Line # ", [&](host::Step& step) {
        step = 10;
        grid_.msgSched.clear_contents({.rows = {row_from, row_to}, .cols = {col_from, col_to}});
    });
}

} // namespace engine
