#include "core/act/user_list.h"
#include "core/grid/layout.h"
#include "core/settings/catalogue.h"
#include "core/values/numbers.h"

namespace grid {

using settings::read;
namespace keys = settings::keys;

void Layout::Initialize_Calendar(values::DateTime start, values::DateTime end) {
    here_.guarded("in frmMain: Sub Initialize_Calendar - Line # ", [&](host::Step& step) {
        step = 10;
        here_.window.lock_updates();
        StartDate = start;
        EndDate = end;
        step = 20;
        Color0 = read(here_.ini, keys::color_0);
        Color1 = read(here_.ini, keys::color_1);
        Color3 = read(here_.ini, keys::color_3);
        Color4 = read(here_.ini, keys::color_4);
        step = 30;
        SlotsCount = values::to_int16(read(here_.ini, keys::slots_count));
        step = 40;
        CellsPerSlot =
            OneRowPerUser ? users_.cboUsers.ListCount() : values::to_int16(read(here_.ini, keys::cells_per_slot));
        step = 50;
        grid_.Cols(FixedCols + NumDays);
        grid_.FixedCols(FixedCols);
        step = 60;
        grid_.Rows(values::to_int16(static_cast<double>(CellsPerSlot) * SlotsCount + 1));
        step = 70;
        Slots.rebuild(*this, here_.guarded, SlotsCount, FixedCols, grid_.Cols());
        step = 80;
        Cells.rebuild(*this, grid_.Rows(), grid_.Cols());
    });
}

void Layout::Restore_CellDims() {
    here_.guarded("in frmMain: Sub Restore_CellDims - Line # ", [&](host::Step& step) {
        step = 10;
        grid_.Clear();
        for (int col = 0; col < FixedCols; ++col) {
            step = 20;
            grid_.ColWidth(col, values::to_int32(read(here_.user_store, keys::fixed_col_width(col))));
        }
        step = 30;
        for (int col = FixedCols; col < grid_.Cols(); ++col)
            grid_.ColWidth(col, StdColWidth);
        step = 40;
        for (int row = 1; row < grid_.Rows(); ++row)
            grid_.RowHeight(row, StdRowHeight);
    });
}

void Layout::Hide_DaysOff() {
    here_.guarded("in frmMain: Sub Hide_DaysOff - Line # ", [&](host::Step& step) {
        for (int col = FixedCols; col < grid_.Cols(); ++col) {
            step = 10;
            if (is_day_off(date_of_column(col)))
                grid_.ColWidth(col, 0);
            else if (grid_.ColWidth(col) == 0)
                grid_.ColWidth(col, StdColWidth);
        }
    });
}

} // namespace grid
