#pragma once

#include "grid/layout.h"
#include "host/guard.h"
#include "settings/ini_lib.h"

namespace interaction {

// The context menu's entries that give rows and columns their standard sizes back.
class GridSizes {
public:
    GridSizes(const grid::Layout& layout, const settings::IniLib& settings, const host::Guard& guarded)
        : layout_(layout), settings_(settings), guarded_(guarded) {}

    void mnuResetRowHeight_Click(); // of the current row
    // Of the day columns whose numbers, from 1, are those of weekdays that are shown, whatever the first day of
    // the view is. A view of one day has no second column, and the failure box says so.
    void mnuResetColumnWidth_Click();

private:
    const grid::Layout& layout_;
    const settings::IniLib& settings_;
    const host::Guard& guarded_;
};

} // namespace interaction
