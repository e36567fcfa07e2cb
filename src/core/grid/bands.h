#pragma once

#include "core/grid/cell_writer.h"

namespace grid {

// The bands of the grid: even and odd slots differ in colour, the title columns with them.
class Bands {
public:
    Bands(const host::Platform& here, const act::UserList& users, CellWriter& writer)
        : here_(here), users_(users), layout_(writer.layout()), writer_(writer) {}

    void Color_BackGround();
    // The colour of the row's band, reckoned by the number of users shown, whatever the row scheme is.
    table::Colour GetBackGroundColor(int row) const;

    // What tells which of the calendar's colours a cell has.
    static constexpr int even_selector = 1, odd_selector = 2, off_selector = 3;
    struct Band {
        table::Colour color;
        int selector;
    };
    Band band_of(int row) const;
    // Gives a cell the colour, and its record the selector.
    void paint(int row, int col, const Band& band);

private:
    const host::Platform& here_;
    const act::UserList& users_;
    Layout& layout_;
    CellWriter& writer_;
};

} // namespace grid
