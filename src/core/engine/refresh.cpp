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
    guarded_("in modRefresh: Sub Refresh_Data - Line # ", [&](host::Step& step) {
        const table::GridModel& msgSched = grid_.msgSched;
        const grid::Layout& layout = grid_.layout;
        step = 10;
        LastRefresh = clock_.now();
        placing_.DisplayedIDs.clear();
        step = 20;
        if (!bLoading_)
            for (grid::clsMsgSchedSlot& slot : grid_.layout.Slots)
                slot.ClearCells();
        step = 30;
        window_.show_hourglass();
        step = 40;
        read_settings();
        step = 50;
        window_.lock_updates();
        step = 60;
        clear_cells();
        step = 70;
        act::Activity& activity = *session_.ActActivity;
        const auto look = session_.ActDatabase->One_Look();
        placing_.displayed_from = session_.ActDatabase->Moment();
        activity.Rebuild();
        step = 80;
        if (!bLoading_)
            Clear_Msg(1, msgSched.Rows() - 1, layout.FixedCols, msgSched.Cols() - 1);
        step = 90;
        filter_list(activity, step);
        step = 150;
        place_plain_activities(activity);
        step = 160;
        if (CheckRecurring)
            recurring_.Treat_Recurring();
        step = 170;
        grid_.rendering.Display_Changes("");
        step = 180;
        window_.unlock_updates();
        step = 190;
        window_.bring_to_front();
        step = 200;
        window_.show_default_pointer();
    });
}

void Refresh::read_settings() {
    namespace keys = settings::keys;
    grid_.writer.ShowIcons = !is_zero(settings_, keys::show_icons);
    placing_.ShowActyColorsMode = values::to_int16(read(settings_, keys::show_acty_colors));
    placing_.FixedActyColor = read(settings_, keys::color_2);
    placing_.read_settings();
}

void Refresh::clear_cells() {
    const int last_row = grid_.msgSched.Rows() - 1, last_col = grid_.msgSched.Cols() - 1;
    const int first_col = grid_.layout.FixedCols;
    for (int row = 1; row <= last_row; ++row)
        for (int col = first_col; col <= last_col; ++col) {
            grid::clsMsgSchedCell& cell = grid_.layout.Cells(row, col);
            cell.Clear();
            // Drawing links the cells that continue an activity now; of those that did none may stay.
            cell.DependsOnActivity({});
            cell.DependsOnActivityX(0);
            cell.DependsOnActivityY(0);
        }
    grid_.msgSched.clear_contents(1, last_row, first_col, last_col);
}

void Refresh::filter_list(act::Activity& activity, host::Step& step) {
    namespace keys = settings::keys;
    activity.ClearClearedFilter();
    step = 100;
    activity.ClearDateScope();
    step = 110;
    activity.ClearPriorityFilter();
    step = 120;
    activity.ClearTypeFilter();
    step = 130;
    activity.SetDateScope(grid_.layout.StartDate, grid_.layout.StartDate.plus_days(grid_.layout.NumDays));
    step = 140;
    for (int number = 0; number <= 2; ++number) {
        if (is_zero(settings_, keys::filter_type(number)))
            activity.SetTypeFilter(static_cast<act::ActivityType>(number));
        if (is_zero(settings_, keys::filter_priority(number)))
            activity.SetPriorityFilter(static_cast<act::Priority>(number));
    }
    if (is_zero(settings_, keys::filter_show_cleared))
        activity.SetClearedFilter();
}

void Refresh::place_plain_activities(act::Activity& activity) {
    namespace field = act::activity_field;
    for (; !activity.isEOF(); activity.MoveNext()) {
        if (activity.isRecurring())
            continue;
        if (!users_.passes_filter(values::text_of(activity.Data(field::scheduled_for), locale_)))
            continue;
        const auto start = values::date_of(activity.Data(field::start), locale_);
        if (!start || start->date() < grid_.layout.StartDate)
            continue;
        placing_.Treat_Activity(*start, values::int16_of(activity.Data(field::duration)), false);
    }
}

void Refresh::Clear_Msg(int row_from, int row_to, int col_from, int col_to) {
    guarded_("in modRefresh: Sub Clear_Msg - Line # ", [&](host::Step& step) {
        step = 10;
        grid_.msgSched.clear_contents(row_from, row_to, col_from, col_to);
    });
}

} // namespace engine
