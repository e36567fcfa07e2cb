#include "core/shell/sizing.h"

#include "core/values/numbers.h"

namespace shell {

namespace {

constexpr int round_grid = 1800; // twips of the window's height that aren't the grid's

} // namespace

void Sizing::Form_Resize() {
    here_.guarded("in frmMain: Sub Form_Resize - Line # ", [&](host::Step& step) {
        step = 10;
        if (window_.window_state() == WindowState::minimised)
            return;
        step = 20;
        const int width = window_.present_width() - beside_grid;
        const int height = window_.present_height() - round_grid;
        window_.set_lblYear_width(width);
        step = 30;
        window_.set_grid_size(width, height);
        step = 40;
        if (grid_.bLoading)
            return;
        step = 50;
        keep_column_widths(width);
    });
}

// The share of each column in the room right of the first two is taken of the same room that it is given back of, so
// that the columns stay as wide as they are.
void Sizing::keep_column_widths(int grid_width) {
    const auto room = [&] { return grid_width - msgSched_.ColWidth(0) - msgSched_.ColWidth(1); };
    const int whole = room();
    if (whole == 0)
        return;
    for (int col = 1; col < msgSched_.Cols(); ++col) {
        const double width = static_cast<double>(room()) / whole * msgSched_.ColWidth(col);
        msgSched_.ColWidth(col, values::to_int32(width));
    }
}

} // namespace shell
