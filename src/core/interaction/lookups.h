#pragma once

#include "core/engine/calendar_engine.h"
#include "core/interaction/click.h"
#include "core/interaction/presenter.h"

#include <string>

namespace interaction {

// Makes the contacts of the activities of some cells ACT!'s current lookup.
class Lookups {
public:
    Lookups(const host::Platform& here, engine::CalendarEngine& engine, const Click& click, Presenter& presenter)
        : here_(here), engine_(engine), grid_(engine.grid), click_(click), presenter_(presenter) {}

    void mnupopGoto_Click();   // of the current cell
    void mnupopLookup_Click(); // of the column, row, selection or calendar that was clicked

private:
    table::CellRange range() const;
    std::string contacts_in(const table::CellRange& range);
    void add_contacts(const grid::clsMsgSchedCell& cell, std::string& list);
    // With its further contacts, the list's current activity being the one that has them.
    void add_others(std::string& list);
    void make_lookup(const std::string& list);

    act::Session& session() { return engine_.act.session; }

    const host::Platform& here_;
    engine::CalendarEngine& engine_;
    const grid::CalendarGrid& grid_;
    const Click& click_;
    Presenter& presenter_;
};

} // namespace interaction
