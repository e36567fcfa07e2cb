#pragma once

#include "core/grid/calendar_grid.h"
#include "core/interaction/click.h"
#include "core/interaction/places.h"
#include "core/interaction/presenter.h"
#include "core/shell/navigation.h"

namespace interaction {

// What a press on the grid does: it works out what was hit, extends the selection for titles, remembers the cell,
// opens the context menu and begins a drag.
class Mouse {
public:
    Mouse(const host::Platform& here, grid::CalendarGrid& grid, Presenter& presenter,
          shell::Navigation& navigation)
        : here_(here), grid_(grid), msgSched_(grid.msgSched), places_(grid.msgSched), presenter_(presenter),
          navigation_(navigation) {}

    Click click;

    // Buttons are 1 left and 2 right; Shift 2 is Ctrl held alone. The place is twips on the screen.
    void msgSched_MouseDown(int Button, int Shift, int X, int Y);
    // A double click on a title: a day's opens the day, or its week again. False on a cell, which is the selected
    // one then. Has no failure handler.
    bool takes_double_click();
    // A key that moved the current cell or the selection's end stands for a press on a day's cell.
    void cursor_moved();

private:
    bool spans_several() const {
        return msgSched_.RowSel() != msgSched_.Row() || msgSched_.ColSel() != msgSched_.Col();
    }
    void work_out(int X, int Y);
    void make_row_current(int Y);
    void make_col_current(int X);
    void decide_on_selection();
    void select_lines(int X, int Y);
    void select_cell();
    void open_menu();
    void begin_drag();

    const host::Platform& here_;
    grid::CalendarGrid& grid_;
    table::GridModel& msgSched_;
    Places places_;
    Presenter& presenter_;
    shell::Navigation& navigation_;
    PopupMenu menu_;
};

} // namespace interaction
