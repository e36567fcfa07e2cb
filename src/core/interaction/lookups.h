#pragma once

#include "core/act/session.h"
#include "core/engine/quick_refresh.h"
#include "core/grid/calendar_grid.h"
#include "core/host/guard.h"
#include "core/host/message_box.h"
#include "core/interaction/click.h"
#include "core/interaction/presenter.h"
#include "core/values/locale.h"

#include <string>

namespace interaction {

// Makes the contacts of the activities of some cells ACT!'s current lookup.
class Lookups {
public:
    struct Needs {
        act::Session& session;
        const grid::CalendarGrid& grid;
        engine::QuickRefresh& quick_refresh;
        const Click& click;
        Presenter& presenter;
        host::MessageBox& box;
        const values::Locale& locale;
        const host::Guard& guarded;
    };
    explicit Lookups(const Needs& here) : here_(here) {}

    void mnupopGoto_Click();   // of the current cell
    void mnupopLookup_Click(); // of the column, row, selection or calendar that was clicked

private:
    struct Range {
        int first_row, last_row, first_col, last_col;
    };
    Range range() const;
    std::string contacts_in(const Range& range);
    void add_contacts(const grid::clsMsgSchedCell& cell, std::string& list);
    // With its further contacts, the list's current activity being the one that has them.
    void add_others(std::string& list);
    void make_lookup(const std::string& list);

    Needs here_;
};

} // namespace interaction
