#pragma once

#include "core/interaction/places.h"
#include "core/interaction/presenter.h"
#include "core/interaction/rescheduling.h"

namespace interaction {

// An activity that the user drags to another cell: another day, time or user.
class DragDrop {
public:
    DragDrop(const host::Platform& here, grid::CalendarGrid& grid, Presenter& presenter,
             Rescheduling& rescheduling)
        : here_(here), grid_(grid), places_(grid.msgSched), presenter_(presenter), rescheduling_(rescheduling) {}

    // Shows whether a drop is permitted at the place, in twips on the screen.
    void msgSched_DragOver(int X, int Y);
    // The cell under the place takes the activity of DragSourceCell.
    void msgSched_DragDrop(int X, int Y);

private:
    void make_current(const grid::clsMsgSchedCell& cell);

    const host::Platform& here_;
    grid::CalendarGrid& grid_;
    Places places_;
    Presenter& presenter_;
    Rescheduling& rescheduling_;
};

} // namespace interaction
