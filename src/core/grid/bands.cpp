#include "core/grid/bands.h"

#include "core/values/numbers.h"

namespace grid {

void Bands::Color_BackGround() {
    here_.guarded("in modColorOffSlot: Sub Color_BackGround - Line # ", [&](host::Step& step) {
        step = 10;
        layout_.read_band_colors();
        table::GridModel& grid = layout_.msgSched();
        for (int row = DayGrid::first_row; row <= layout_.last_row(); ++row) {
            step = 20;
            grid.Row(row);
            const Band band = band_of(row);
            step = 30;
            for (int col = 0; col <= layout_.last_col(); ++col)
                paint(row, col, band);
        }
    });
}

Bands::Band Bands::band_of(int row) const {
    const bool even = layout_.slot_of_row(row).is_even();
    return {values::to_int32(even ? layout_.Color0() : layout_.Color1()), even ? even_selector : odd_selector};
}

void Bands::paint(int row, int col, const Band& band) {
    writer_.Write_Cell(layout_.msgSched(), row, col, {.back_color = band.color});
    writer_.Add_toGridID(row, col, {.back_color = band.selector});
}

table::Colour Bands::GetBackGroundColor(int row) const {
    return here_.guarded("in modColorOffSlot: Function GetBackGroundColor - Line # ",
                         [&](host::Step& step) -> table::Colour {
                             step = 10;
                             const bool even = DayGrid(0, users_.NumUsers).slot_of(row).is_even();
                             step = 20;
                             return values::to_int32(even ? layout_.Color0() : layout_.Color1());
                         });
}

} // namespace grid
