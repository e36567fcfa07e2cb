#pragma once

#include "core/grid/cell_writer.h"
#include "core/grid/layout.h"
#include "core/grid/selection.h"

#include <string>
#include <string_view>

namespace grid {

// What a slot draws with.
struct Drawing {
    table::GridModel& grid;
    Cells& cells;
    CellWriter& writer;
    std::string& SpanList;
};

// Brings changed slots to the grid.
class Rendering {
public:
    Rendering(const host::Platform& here, CellWriter& writer, const Selection& selection)
        : here_(here), layout_(writer.layout()), writer_(writer), selection_(selection) {}

    std::string SpanText = "( Continued )"; // shown where an activity runs on
    // The continuation cells of the drawing under way: "row,column,colour|" each.
    std::string SpanList;

    // Draws every changed slot of the days shown. With an id, that activity's continuations are cleared first and
    // its cell becomes the current one; without one, or when nothing shows it, the selected cell does.
    void Display_Changes(const std::string& id);
    // Writes the continuation text into the listed cells that are empty; a colour that is no number leaves the
    // grid's as it is. Has no failure handler.
    void Span_Activities(std::string_view span_list);
    // Unlinks the continuation cells of an activity and empties those without a text of their own. Has no
    // failure handler.
    void Clear_Dependents(std::string_view id);

private:
    void select_selected_cell();

    const host::Platform& here_;
    Layout& layout_;
    CellWriter& writer_;
    const Selection& selection_;
};

} // namespace grid
