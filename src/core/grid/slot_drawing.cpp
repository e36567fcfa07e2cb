#include "core/grid/rendering.h"
#include "core/grid/slot.h"
#include "core/grid/sort_table.h"
#include "core/values/failure.h"
#include "core/values/numbers.h"
#include "core/values/text.h"

#include <algorithm>

namespace grid {

namespace {

// A colour's text as a colour; absent when it is empty or no number.
std::optional<table::Colour> colour_in(const std::string& text) {
    if (text.empty())
        return {};
    try {
        return values::to_int32(text);
    } catch (const values::Failure&) {
        return {};
    }
}

} // namespace

void Sort_Table(std::vector<SortEntry>& table) {
    std::stable_sort(table.begin(), table.end(),
                     [](const SortEntry& left, const SortEntry& right) { return left.key < right.key; });
}

std::string clsMsgSchedSlot::ExtractUserName(std::string_view detail) {
    return std::string(detail.substr(0, detail.find("||")));
}

int clsMsgSchedSlot::GetCorrectCell(const table::GridModel& grid, std::string_view user_name,
                                    int first_row) const {
    const Cells& cells = layout_->Cells;
    for (int row = first_row; row < first_row + cells_per_slot_; ++row)
        if (cells(row, grid.Col()).User() == user_name)
            return row;
    return -1;
}

void clsMsgSchedSlot::Write_To_Grid(Drawing& drawing, std::string_view activity_id_sought, bool one_row_per_user,
                                    std::string& result) {
    (*guarded_)("in clsMsgSchedSlot: Sub Write_To_Grid - Line # ", [&](host::Step& step) {
        step = 10;
        std::vector<SortEntry> table;
        for (std::size_t index = 0; index < filled_; ++index)
            table.push_back({static_cast<int>(index), records_[index].Detail});
        step = 20;
        Sort_Table(table);
        step = 30;
        clear_cells(drawing);
        drawing.grid.Row(FirstRow() - 1);
        int drawn = 0;
        bool overflow = false;
        for (const SortEntry& entry : table) {
            SlotRecord& record = records_[static_cast<std::size_t>(entry.record)];
            if (!record.InUse)
                continue;
            step = 40;
            if (one_row_per_user) {
                if (!take_user_row(drawing, record))
                    continue;
            } else {
                ++drawn;
                drawing.grid.Row(drawing.grid.Row() + 1);
                if (record_count() > cells_per_slot_ && drawn == cells_per_slot_) {
                    drawing.grid.CellPicture(drawing.writer.plus_picture());
                    overflow = true;
                }
            }
            step = 50;
            draw_record(drawing, record, overflow);
            step = 60;
            if (record.ActivityID == activity_id_sought)
                result = std::to_string(drawing.grid.Col()) + "," + std::to_string(drawing.grid.Row());
            step = 70;
            if (record.Cleared != "1")
                continue_below(drawing, record);
        }
        changed_ = false;
    });
}

void clsMsgSchedSlot::clear_cells(Drawing& drawing) const {
    for (int row = FirstRow(); row <= LastRow(); ++row) {
        drawing.grid.Row(row);
        drawing.grid.Col(col_);
        drawing.grid.Text({});
        layout_->Cells(row, col_).Clear();
        drawing.grid.CellPicture({});
    }
}

bool clsMsgSchedSlot::take_user_row(Drawing& drawing, const SlotRecord& record) const {
    table::GridModel& grid = drawing.grid;
    const int row = GetCorrectCell(grid, ExtractUserName(record.Detail), FirstRow());
    if (row == -1)
        return false;
    grid.Row(row);
    const clsMsgSchedCell& cell = layout_->Cells(row, grid.Col());
    if (cell.ActivityID() == record.ActivityID)
        return false;
    if (!cell.IsOccupied())
        return true;
    grid.CellPicture(drawing.writer.plus_picture());
    if (!drawing.writer.ShowIcons)
        grid.Text(std::string(CellWriter::picture_room) + grid.Text());
    return false;
}

void clsMsgSchedSlot::draw_record(Drawing& drawing, SlotRecord& record, bool overflow) const {
    table::GridModel& grid = drawing.grid;
    CellWriter& writer = drawing.writer;
    const int row = grid.Row();
    const int col = grid.Col();
    const bool recurring = record.Recurring == "1";
    const bool has_details = record.HasDetails == "1";
    const bool cleared = record.Cleared == "1";

    writer.record_place(record.ActivityID, row, col);
    grid.CellAlignment(table::Alignment::left_top);
    if (!record.BackColor.empty())
        grid.CellBackColor(values::to_int32(record.BackColor));
    const std::optional<table::Colour> fore_color = colour_in(record.ForeColor);
    if (record.ForeColor.empty())
        grid.CellForeColor(0);
    else if (fore_color)
        grid.CellForeColor(*fore_color);

    CellDetails details{.activity_id = record.ActivityID,
                        .contact_id = record.ContactID,
                        .recurring = recurring,
                        .cleared = cleared,
                        .fore_color = fore_color,
                        .sort_text = record.Detail,
                        .has_details = has_details};
    if (!record.Text.empty()) {
        if (writer.ShowIcons) {
            const int type = values::to_int16(record.Type);
            if (!overflow)
                grid.CellPicture(writer.GetPicture(type, recurring, has_details));
            grid.CellPictureAlignment(table::Alignment::left_top);
            record.Text = std::string(CellWriter::picture_room).append(values::trimmed(record.Text));
            details.icon_index = type + (recurring ? 3 : 0);
        }
        grid.CellFontStrikeThrough(cleared);
        grid.Text(overflow ? std::string(CellWriter::picture_room) + record.Text : record.Text);
    }
    details.text = record.Text;
    writer.Add_toGridID(row, col, details);
}

void clsMsgSchedSlot::continue_below(Drawing& drawing, const SlotRecord& record) const {
    const int row = drawing.grid.Row();
    const int col = drawing.grid.Col();
    for (int further = 1; further <= record.GoesBeyond; ++further) {
        const int row_below = row + further * cells_per_slot_;
        drawing.SpanList += std::to_string(row_below) + "," + std::to_string(col) + "," + record.ForeColor + "|";
        clsMsgSchedCell& below = layout_->Cells(row_below, col);
        below.DependsOnActivity(record.ActivityID);
        below.DependsOnActivityX(row);
        below.DependsOnActivityY(col);
    }
}

} // namespace grid
