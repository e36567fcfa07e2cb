#include "core/interaction/lookups.h"

#include "core/values/ids.h"
#include "core/values/text.h"
#include "core/values/value.h"

#include <algorithm>
#include <tuple>

namespace interaction {

namespace field = act::activity_field;

void Lookups::mnupopGoto_Click() {
    here_.guarded("in frmMain: Sub mnupopGoto_Click - Line # ", [&](host::Step& step) {
        const table::GridModel& msgSched = here_.grid.msgSched;
        step = 10;
        here_.presenter.minimise();
        step = 20;
        here_.session.ActActivity->Goto(here_.grid.layout.Cells(msgSched.Row(), msgSched.Col()).ActivityID());
        step = 30;
        std::string list = values::text_of(here_.session.ActActivity->Data(field::contact), here_.locale);
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
        here_.presenter.minimise();
        step = 40;
        make_lookup(list);
    });
}

Lookups::Range Lookups::range() const {
    const table::GridModel& grid = here_.grid.msgSched;
    Range range{1, grid.Rows() - 1, here_.grid.layout.FixedCols, grid.Cols() - 1};
    if (here_.click.on_title_row_only()) {
        range.first_col = range.last_col = grid.Col();
    } else if (here_.click.on_title_col_only()) {
        range.first_row = range.last_row = grid.Row();
    } else if (here_.click.MultiSelected && !here_.click.on_corner()) {
        std::tie(range.first_row, range.last_row) = std::minmax({grid.Row(), grid.RowSel()});
        std::tie(range.first_col, range.last_col) = std::minmax({grid.Col(), grid.ColSel()});
    }
    return range;
}

std::string Lookups::contacts_in(const Range& range) {
    std::string list;
    for (int row = range.first_row; row <= range.last_row; ++row)
        for (int col = range.first_col; col <= range.last_col; ++col)
            add_contacts(here_.grid.layout.Cells(row, col), list);
    return list;
}

void Lookups::add_contacts(const grid::clsMsgSchedCell& cell, std::string& list) {
    const std::string& contact = cell.ContactID();
    if (contact.empty())
        return;
    if (!values::contains(list, contact))
        list += contact;
    here_.session.ActActivity->Goto(cell.ActivityID());
    add_others(list);
}

void Lookups::add_others(std::string& list) {
    if (values::int32_of(here_.session.ActActivity->Data(field::contact_count)) > 1)
        list = here_.quick_refresh.AddOtherIDs(list);
}

void Lookups::make_lookup(const std::string& list) {
    act::ContactView& view = *here_.session.ActContactView;
    view.CreateLookup(list);
    if (static_cast<std::size_t>(view.GetCount()) * values::id_length == list.size())
        return;
    here_.session.ActApp->Command(act::CommandNumber::show_contact_view); // the view wasn't ready
    view.CreateLookup(list);
}

} // namespace interaction
