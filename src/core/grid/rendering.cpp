#include "core/grid/rendering.h"

#include "core/values/failure.h"
#include "core/values/numbers.h"
#include "core/values/text.h"

#include <vector>

namespace grid {

void Rendering::Display_Changes(const std::string& id) {
    here_.guarded("in modRefresh: Sub Display_Changes - Line # ", [&](host::Step& step) {
        table::GridModel& grid = layout_.msgSched();
        step = 10;
        SpanList.clear();
        step = 20;
        if (!id.empty())
            Clear_Dependents(id);
        step = 30;
        Drawing drawing{grid, layout_.Cells, writer_, SpanList};
        std::optional<table::Place> place;
        for (SlotNumber slot; slot.value < layout_.Slots.count(); ++slot)
            for (int col = layout_.FixedCols(); col <= layout_.Slots.last_col(); ++col) {
                if (layout_.is_day_off(layout_.date_of_column(col)))
                    continue;
                if (layout_.Slots(slot, col).Changed())
                    layout_.Slots(slot, col).Write_To_Grid(drawing, id, place);
            }
        step = 40;
        if (place) {
            grid.Row(place->row);
            grid.Col(place->col);
        } else {
            select_selected_cell();
        }
        step = 50;
        if (!SpanList.empty()) {
            // Writing moves the current cell, and the user's is the one that has just been made current.
            const int row = grid.Row(), col = grid.Col();
            Span_Activities(SpanList);
            grid.Row(row);
            grid.Col(col);
        }
    });
}

// No cell may be selected yet, or one of a grid that was larger.
void Rendering::select_selected_cell() {
    values::ignoring_failure([&] {
        const clsMsgSchedCell& selected = selection_.selected();
        layout_.msgSched().Row(selected.Row());
        layout_.msgSched().Col(selected.Col());
    });
}

void Rendering::Span_Activities(std::string_view span_list) {
    table::GridModel& grid = layout_.msgSched();
    std::vector<std::string> items = values::split(span_list, "|");
    if (!items.empty())
        items.pop_back(); // the list ends with a bar
    for (const std::string& item : items) {
        const std::vector<std::string> parts = values::split(item, ",");
        if (values::is_numeric(parts.at(0)) && values::is_numeric(parts.at(1))) {
            grid.Row(values::to_int16(parts[0]));
            grid.Col(values::to_int16(parts[1]));
        }
        if (!grid.Text().empty())
            continue;
        grid.Text(SpanText);
        values::ignoring_failure([&] { grid.ForeColor(values::to_int32(parts.at(2))); }); // it may be no number
        grid.CellAlignment(table::Alignment::left_centre);
    }
}

void Rendering::Clear_Dependents(std::string_view id) {
    table::GridModel& grid = layout_.msgSched();
    for (int row = 0; row < layout_.Cells.rows(); ++row)
        for (int col = 0; col < layout_.Cells.cols(); ++col) {
            clsMsgSchedCell& cell = layout_.Cells(row, col);
            if (cell.DependsOnActivity() != id)
                continue;
            if (cell.Text().empty()) {
                grid.Row(row);
                grid.Col(col);
                grid.Text({});
            }
            cell.DependsOnActivityX(0);
            cell.DependsOnActivityY(0);
            cell.DependsOnActivity({});
        }
}

} // namespace grid
