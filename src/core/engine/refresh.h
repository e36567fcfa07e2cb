#pragma once

#include "core/act/connection.h"
#include "core/engine/placing.h"
#include "core/engine/recurring.h"
#include "core/grid/calendar_grid.h"

namespace engine {

// The full refresh: everything in the grid anew from the activity list.
class Refresh {
public:
    Refresh(const host::Platform& here, const settings::Settings& settings, act::Connection& act,
            grid::CalendarGrid& grid, Recurring& recurring)
        : here_(here), settings_(settings), act_(act), grid_(grid), placing_(recurring.placing()),
          recurring_(recurring) {}

    bool CheckRecurring = true; // series are expanded

    // Empties slots, records and cells, walks the list, and draws what changed. The list keeps its filters, and
    // its date scope unless series were expanded. A failure ends it where it stands: the grid then stays locked
    // and the hourglass on.
    void Refresh_Data();
    // No text and no picture in the cells of the range, ends included.
    void Clear_Msg(int row_from, int row_to, int col_from, int col_to);

private:
    void clear_cells();
    void read_settings();
    void filter_list(act::Activity& activity) const;
    void place_plain_activities(act::Activity& activity);

    const host::Platform& here_;
    const settings::Settings& settings_;
    act::Connection& act_;
    grid::CalendarGrid& grid_;
    Placing& placing_;
    Recurring& recurring_;
};

} // namespace engine
