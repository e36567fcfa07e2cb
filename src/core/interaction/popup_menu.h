#pragma once

#include "core/grid/cell.h"
#include "core/interaction/click.h"

#include <string>

namespace interaction {

// How the context menu of the grid shows itself.
struct PopupMenu {
    struct Entry {
        bool visible = true;
        bool enabled = true;
    };
    Entry mnupopSchedule, mnupopReschedule, mnupopDetails, mnupopSend, mnuSep1, mnupopClear, mnuSep2;
    Entry mnuPopRecurring, mnupopGoto, mnupopLookup, mnuSep4, mnuResetRowHeight, mnuResetColumnWidth;
    std::string lookup_caption; // of mnupopLookup, told by what was clicked

    // Caption and visible entries by what was clicked; and, for a press on no selection of several cells, the
    // enabled ones by the cell. On such a selection they stay as they were.
    void prepare(const Click& click, const grid::clsMsgSchedCell& selected);

private:
    void set_caption(const Click& click);
    void set_visible(const Click& click);
    void set_enabled(const grid::clsMsgSchedCell& selected);
};

} // namespace interaction
