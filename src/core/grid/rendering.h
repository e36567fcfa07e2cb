#pragma once

#include "core/grid/cell_writer.h"
#include "core/grid/layout.h"
#include "core/grid/selection.h"
#include "core/host/guard.h"

#include <string>
#include <string_view>

namespace grid {

// What a slot draws with.
struct Drawing {
    table::GridModel& grid;
    CellWriter& writer;
    std::string& SpanList;
};

// Brings changed slots to the grid.
class Rendering {
public:
    Rendering(Layout& layout, CellWriter& writer, Selection& selection, const host::Guard& guarded)
        : layout_(layout), writer_(writer), selection_(selection), guarded_(guarded) {}

    std::string SpanText = "( Continued )"; // shown where an activity runs on
    // The continuation cells of the drawing under way: "row,column,colour|" each.
    std::string SpanList;

    // Draws every changed slot of the days shown. With an id, that activity's continuations are cleared first and
    // its cell becomes the current one; without one, or when nothing shows it, the selected cell does.
    void Display_Changes(const std::string& id);
    // Writes the continuation text into the listed cells that are empty. Has no failure handler.
    void Span_Activities(std::string_view span_list);
    // Unlinks the continuation cells of an activity and empties those without a text of their own. Has no
    // failure handler.
    void Clear_Dependents(std::string_view id);

private:
    void select_selected_cell();

    Layout& layout_;
    CellWriter& writer_;
    Selection& selection_;
    const host::Guard& guarded_;
};

} // namespace grid
