#include "core/engine/quick_refresh.h"

#include "core/settings/catalogue.h"
#include "core/values/ids.h"
#include "core/values/numbers.h"
#include "core/values/text.h"
#include "core/values/text_forms.h"
#include "core/values/value.h"

namespace engine {

namespace field = act::activity_field;

namespace {

template <typename Key>
bool is_one(const settings::IniLib& settings, const Key& key) {
    return values::leading_number(read(settings, key)) == 1;
}

std::string mark_of(int row, int col) { return "|" + std::to_string(row) + "," + std::to_string(col) + "|"; }

} // namespace

void QuickRefresh::Add_New(DateTime since) {
    here_.guarded("in modRefresh: Sub Add_New - Line # ", [&](host::Step& step) {
        step = 10;
        placing_.LastRefresh = here_.clock.now();
        step = 20;
        here_.window.show_hourglass();
        step = 30;
        const auto look = act_.session.ActDatabase->One_Look();
        std::string treated; // marks of the cells that were cleared
        for (const std::string& id : values::ids_in(Find_New(since))) {
            step = 40;
            bool clear_selected = true;
            if (grid_.writer.ActivityCells.contains(id))
                clear_cell_of(id, treated);
            else {
                // An activity that no cell shows clears the selected one: its row counts as the flag.
                const grid::clsMsgSchedCell& selected = grid_.selection.selected();
                treated += mark_of(selected.Row(), selected.Col());
                clear_selected = selected.Row() != 0;
            }
            step = 50;
            Refresh_Activity(id, clear_selected ? SelectedCell::cleared : SelectedCell::stays);
        }
        step = 60;
        here_.window.show_default_pointer();
    });
}

void QuickRefresh::clear_cell_of(const std::string& id, std::string& treated) {
    const auto place = values::split(grid_.writer.ActivityCells.at(id), "|");
    const int row = values::to_int16(place.at(0)), col = values::to_int16(place.at(1));
    const std::string mark = mark_of(row, col);
    if (values::contains(treated, mark))
        return;
    grid::clsMsgSchedCell& cell = grid_.layout.Cells(row, col);
    cell.Clear();
    grid_.layout.Slots(cell.Slot(), cell.Col()).DeleteCell(id);
    treated += mark;
}

std::string QuickRefresh::Find_New(DateTime since) {
    return here_.guarded("in modRefresh: Function Find_New - Line # ", [&](host::Step& step) {
        step = 10;
        std::string changed;
        act::Activity& activity = *act_.session.ActActivity;
        step = 20;
        activity.Rebuild();
        step = 30;
        activity.MoveFirst();
        step = 40;
        const auto told = missing_without_walk(activity);
        std::optional<DisplayedIds> missing;
        if (!told)
            missing = placing_.DisplayedIDs;
        for (;; activity.MoveNext()) {
            if (told)
                activity.SkipToEdited(since);
            if (activity.isEOF())
                break;
            const std::string id = text(activity, field::id);
            const auto edited = values::date_of(activity.Data(field::edited), here_.locale);
            if (edited && *edited > since)
                changed = id;
            if (missing)
                missing->remove(id);
        }
        return changed + (told ? *told : missing->text());
    });
}

// What is left of the displayed ids once every occurrence of the id of each record of the list has been taken out
// of their text. None where only the walk that takes them out can tell.
std::optional<std::string> QuickRefresh::missing_without_walk(act::Activity& activity) const {
    const auto first_of_ids = activity.FirstCharacterOfIds();
    const auto ids = first_of_ids ? placing_.DisplayedIDs.one_by_one(*first_of_ids) : std::nullopt;
    const auto gone = ids ? activity.IdsGoneSince(*ids, placing_.displayed_from) : std::nullopt;
    if (!gone)
        return std::nullopt;
    std::string missing;
    for (const std::string_view id : *gone)
        missing += id;
    return missing;
}

void QuickRefresh::Refresh_Activity(std::string id, SelectedCell selected) {
    here_.guarded("in modRefresh: Sub Refresh_Activity - Line # ", [&](host::Step& step) {
        step = 10;
        if (selected == SelectedCell::cleared)
            grid_.selection.selected().Clear();
        step = 20;
        placing_.read_settings();
        step = 30;
        act_.session.ActActivity = act_.session.ActDatabase->Activity();
        act::Activity& activity = *act_.session.ActActivity;
        step = 40;
        const auto look = act_.session.ActDatabase->One_Look();
        activity.Rebuild();
        step = 50;
        activity.Goto(id);
        step = 60;
        if (!id.empty() && text(activity, field::id) == id) {
            if (activity.isRecurring())
                place_series(activity);
            else
                place_single(activity);
        }
        step = 70;
        grid_.rendering.Display_Changes(id);
    });
}

void QuickRefresh::place_single(act::Activity& activity) {
    const auto date = values::date_of(activity.Data(field::date), here_.locale);
    if (!date || !recurrence::InRange(*date, {grid_.layout.StartDate(), grid_.layout.EndDate()}))
        return;
    if (!passes_filters(activity) || !act_.users.passes_filter(text(activity, field::scheduled_for)))
        return;
    const DateTime start = values::to_date(text(activity, field::start), here_.locale);
    placing_.Treat_Activity(start, values::int16_of(activity.Data(field::duration)), Placing::Kind::single);
}

bool QuickRefresh::passes_filters(const act::Activity& activity) const {
    namespace keys = settings::keys;
    std::string types, priorities;
    for (int number = 0; number <= 2; ++number) {
        if (is_one(settings_.ini, keys::filter_type(number)))
            types += std::to_string(number);
        if (is_one(settings_.ini, keys::filter_priority(number)))
            priorities += std::to_string(number);
    }
    const bool with_cleared = is_one(settings_.ini, keys::filter_show_cleared);
    const std::string cleared = text(activity, field::cleared);
    return values::contains(priorities, text(activity, field::priority)) &&
           values::contains(types, text(activity, field::type)) &&
           (with_cleared || cleared.empty() || values::parse_number(cleared) == 0.0);
}

void QuickRefresh::place_series(act::Activity& activity) {
    if (!act_.users.passes_filter(text(activity, field::scheduled_for)))
        return;
    const auto start = values::date_of(activity.Data(field::start), here_.locale);
    if (!start || recurrence::Form_Dat(*start) > grid_.layout.EndDate())
        return;
    if (activity.GetRecurringUntilDate() < grid_.layout.StartDate())
        return;
    recurring_.treat_series(*start, values::int16_of(activity.Data(field::duration)));
}

void QuickRefresh::Ask_Refresh(const Touched& touched) {
    here_.guarded("in modRefresh: Sub Ask_Refresh - Line # ", [&](host::Step& step) {
        step = 10;
        here_.window.bring_to_front();
        step = 20;
        if (!touched.selected) {
            Add_New(placing_.LastRefresh);
            return;
        }
        step = 30;
        const grid::clsMsgSchedCell& cell = grid_.selection.selected();
        grid_.layout.Slots(cell.Slot(), cell.Col()).DeleteCell(cell.ActivityID());
        step = 40;
        // The slot's number is the flag, so a cell in the first slot isn't cleared.
        Refresh_Activity(cell.ActivityID(), cell.Slot() != 0 ? SelectedCell::cleared : SelectedCell::stays);
        step = 50;
        if (touched.second_id.empty())
            return;
        grid_.selection.SelectedCell =
            grid_.layout.Cells.reference(touched.second_place.row, touched.second_place.col);
        step = 60;
        Refresh_Activity(touched.second_id, SelectedCell::cleared);
    });
}

std::string QuickRefresh::AddOtherIDs(std::string ids) {
    return here_.guarded("in modRefresh: Function AddOtherIDs - Line # ", [&](host::Step& step) {
        act::Activity& activity = *act_.session.ActActivity;
        step = 10;
        std::string contact = activity.FirstScheduledWith();
        do {
            if (!values::contains(ids, contact))
                ids += contact;
            step = 20;
            contact = activity.NextScheduledWith();
        } while (!contact.empty());
        return ids;
    });
}

void QuickRefresh::Erase_Slot(std::string_view id) {
    here_.guarded("in frmMain: Sub Erase_Slot - Line # ", [&](host::Step& step) {
        step = 10;
        for (const grid::clsMsgSchedCell& cell : grid_.layout.Cells) {
            if (!cell.ActivityID().starts_with(id))
                continue;
            step = 20;
            grid_.msgSched.clear_contents({.rows = {cell.Row(), cell.Row()}, .cols = {cell.Col(), cell.Col()}});
            step = 30;
            placing_.DisplayedIDs.remove(id);
            return;
        }
    });
}

std::string QuickRefresh::text(const act::Activity& activity, int number) const {
    return values::text_of(activity.Data(number), here_.locale);
}

} // namespace engine
