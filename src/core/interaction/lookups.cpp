#include "core/interaction/lookups.h"

#include "core/table/selected_cells.h"
#include "core/values/ids.h"
#include "core/values/text.h"
#include "core/values/value.h"

namespace interaction {

namespace field = act::activity_field;

void Lookups::mnupopGoto_Click() {
    here_.guarded("in frmMain: Sub mnupopGoto_Click - Line # ", [&](host::Step& step) {
        step = 10;
        presenter_.minimise();
        step = 20;
        session().ActActivity->Goto(grid_.current_cell().ActivityID());
        step = 30;
        std::string list = values::text_of(session().ActActivity->Data(field::contact), here_.locale);
        step = 40;
        add_others(list);
        step = 50;
        make_lookup(list);
    });
}

void Lookups::mnupopLookup_Click() {
    here_.guarded("in frmMain: Sub mnupopLookup_Click - Line # ", [&](host::Step& step) {
        step = 10;
        const std::string list = contacts_in(range());
        step = 20;
        if (list.empty()) {
            here_.box.show({.text = "No records were found that match the specified criteria.",
                            .title = "ACT!",
                            .icon = host::Icon::exclamation});
            return;
        }
        step = 30;
        presenter_.minimise();
        step = 40;
        make_lookup(list);
    });
}

table::CellRange Lookups::range() const {
    const table::GridModel& grid = grid_.msgSched;
    if (click_.MultiSelected && !click_.on_title_row_only() && !click_.on_title_col_only() && !click_.on_corner())
        return table::selected_cells(grid);
    table::CellRange range{.rows = {grid::DayGrid::first_row, grid_.layout.last_row()},
                           .cols = {grid_.layout.FixedCols(), grid_.layout.last_col()}};
    if (click_.on_title_row_only())
        range.cols = {grid.Col(), grid.Col()};
    else if (click_.on_title_col_only())
        range.rows = {grid.Row(), grid.Row()};
    return range;
}

std::string Lookups::contacts_in(const table::CellRange& range) {
    std::string list;
    for (int row = range.rows.first; row <= range.rows.last; ++row)
        for (int col = range.cols.first; col <= range.cols.last; ++col)
            add_contacts(grid_.layout.Cells(row, col), list);
    return list;
}

void Lookups::add_contacts(const grid::clsMsgSchedCell& cell, std::string& list) {
    const std::string& contact = cell.ContactID();
    if (contact.empty())
        return;
    if (!values::contains(list, contact))
        list += contact;
    session().ActActivity->Goto(cell.ActivityID());
    add_others(list);
}

void Lookups::add_others(std::string& list) {
    if (values::int32_of(session().ActActivity->Data(field::contact_count)) > 1)
        list = engine_.quick_refresh.AddOtherIDs(list);
}

void Lookups::make_lookup(const std::string& list) {
    act::ContactView& view = *session().ActContactView;
    view.CreateLookup(list);
    if (static_cast<std::size_t>(view.GetCount()) * values::id_length == values::length(list))
        return;
    session().ActApp->Command(act::CommandNumber::show_contact_view); // the view wasn't ready
    view.CreateLookup(list);
}

} // namespace interaction
