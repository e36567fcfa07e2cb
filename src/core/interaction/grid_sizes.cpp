#include "interaction/grid_sizes.h"

#include "settings/catalogue.h"
#include "values/numbers.h"

namespace interaction {

namespace keys = settings::keys;

void GridSizes::mnuResetRowHeight_Click() {
    guarded_("in frmMain: Sub mnuResetRowHeight_Click - Line # ", [&](host::Step& step) {
        step = 10;
        const std::string height =
            settings::read(settings_, keys::std_row_height, std::to_string(layout_.StdRowHeight));
        step = 20;
        layout_.msgSched().RowHeight(layout_.msgSched().Row(), values::to_int32(height));
    });
}

void GridSizes::mnuResetColumnWidth_Click() {
    guarded_("in frmMain: Sub mnuResetColumnWidth_Click - Line # ", [&](host::Step& step) {
        for (int weekday = 1; weekday <= 7; ++weekday) {
            step = 10;
            if (settings::read(settings_, keys::day_off(weekday)) != "0")
                continue;
            step = 20;
            const std::string width =
                settings::read(settings_, keys::std_col_width, std::to_string(layout_.StdColWidth));
            step = 30;
            layout_.msgSched().ColWidth(layout_.FixedCols + weekday - 1, values::to_int32(width));
        }
    });
}

} // namespace interaction
