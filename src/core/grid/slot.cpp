#include "core/grid/slot.h"

#include "core/grid/layout.h"
#include "core/grid/rendering.h"
#include "core/grid/sort_table.h"
#include "core/values/failure.h"
#include "core/values/numbers.h"
#include "core/values/text.h"

#include <algorithm>
#include <utility>

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

void clsMsgSchedSlot::Initialize(SlotNumber slot_number, int col) {
    slot_number_ = slot_number;
    col_ = static_cast<std::int16_t>(col);
    lines_ = layout_->lines();
    start_date_ = layout_->StartDate();
    filled_ = first_free_ = 0;
}

void clsMsgSchedSlot::SetCell(const SlotEntry& entry) {
    (*guarded_)("in clsMsgSchedSlot: Sub SetCell - Line # ", [&](host::Step& step) {
        step = 10;
        while (first_free_ < filled_ && records_[first_free_].InUse)
            ++first_free_;
        if (first_free_ == records_.size())
            records_.emplace_back();
        filled_ = std::max(filled_, first_free_ + 1);
        step = 20;
        SlotRecord& record = records_[first_free_];
        record.InUse = true;
        record.ActivityID = entry.ActivityID;
        record.ContactID = entry.ContactID;
        record.Recurring = entry.Recurring;
        record.Cleared = entry.Cleared;
        record.BackColor = entry.BackColor;
        record.ForeColor = entry.ForeColor;
        record.Type = entry.Type;
        record.Text = entry.Text;
        record.Detail = entry.Detail;
        record.HasDetails = entry.HasDetails;
        record.GoesBeyond = entry.GoesBeyond;
        changed_ = true;
    });
}

void clsMsgSchedSlot::DeleteCell(std::string_view activity_id) {
    (*guarded_)("in clsMsgSchedSlot: Sub DeleteCell - Line # ", [&](host::Step& step) {
        for (int index = 0; index < record_count(); ++index) {
            step = 10;
            if (record(index).ActivityID != activity_id)
                continue;
            step = 20;
            if (const auto place = static_cast<std::size_t>(index); place < filled_) {
                records_[place].InUse = false;
                first_free_ = std::min(first_free_, place);
            }
            changed_ = true;
            return;
        }
    });
}

void clsMsgSchedSlot::ClearCells() {
    (*guarded_)("in clsMsgSchedSlot: Sub ClearCells - Line # ", [&](host::Step& step) {
        step = 10;
        filled_ = first_free_ = 0;
    });
}

values::DateTime clsMsgSchedSlot::Time() const { return layout_->slot_times().start(slot_number_); }

values::DateTime clsMsgSchedSlot::Day() const { return start_date_.plus_days(lines_.day_of(col_)).date(); }

int clsMsgSchedSlot::record_count() const { return std::max(static_cast<int>(filled_), lines_.cells_per_slot()); }

const SlotRecord& clsMsgSchedSlot::record(int index) const {
    static const SlotRecord never_filled;
    if (index < 0 || index >= record_count())
        throw values::Failure(values::FailureNumber::subscript_out_of_range);
    return index < static_cast<int>(filled_) ? records_[static_cast<std::size_t>(index)] : never_filled;
}

std::string clsMsgSchedSlot::ExtractUserName(std::string_view detail) {
    return std::string(detail.substr(0, detail.find("||")));
}

int clsMsgSchedSlot::GetCorrectCell(const table::GridModel& grid, std::string_view user_name,
                                    int first_row) const {
    const Cells& cells = layout_->Cells;
    for (int row = first_row; row < first_row + lines_.cells_per_slot(); ++row)
        if (cells(row, grid.Col()).User() == user_name)
            return row;
    return -1;
}

void clsMsgSchedSlot::Write_To_Grid(Drawing& drawing, std::string_view activity_id_sought,
                                    std::optional<table::Place>& result) {
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
            if (layout_->OneRowPerUser()) {
                if (!take_user_row(drawing, record))
                    continue;
            } else {
                ++drawn;
                drawing.grid.Row(drawing.grid.Row() + 1);
                if (record_count() > lines_.cells_per_slot() && drawn == lines_.cells_per_slot()) {
                    drawing.grid.CellPicture(drawing.writer.plus_picture());
                    overflow = true;
                }
            }
            step = 50;
            draw_record(drawing, record, overflow);
            step = 60;
            if (record.ActivityID == activity_id_sought)
                result = {drawing.grid.Row(), drawing.grid.Col()};
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
        drawing.cells(row, col_).Clear();
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
    const int type = values::to_int16(record.Type);

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
                        .icon_index = type + (recurring ? 3 : 0), // pictures shown or not
                        .sort_text = record.Detail,
                        .has_details = has_details};
    if (!record.Text.empty()) {
        if (writer.ShowIcons) {
            if (!overflow)
                grid.CellPicture(writer.GetPicture(type, recurring, has_details));
            grid.CellPictureAlignment(table::Alignment::left_top);
            record.Text = std::string(CellWriter::picture_room).append(values::trimmed(record.Text));
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
    // Any other text is ignored at drawing, and could hold the list's own marks.
    const std::string colour = values::is_numeric(record.ForeColor) ? record.ForeColor : std::string();
    for (int further = 1; further <= record.GoesBeyond; ++further) {
        const int row_below = lines_.row_below(row, further);
        drawing.SpanList += std::to_string(row_below) + "," + std::to_string(col) + "," + colour + "|";
        clsMsgSchedCell& below = drawing.cells(row_below, col);
        below.DependsOnActivity(record.ActivityID);
        below.DependsOnActivityX(row);
        below.DependsOnActivityY(col);
    }
}

void Slots::rebuild(const Layout& layout, const host::Guard& guarded) {
    slots_ = std::max(layout.SlotsCount(), 0);
    first_col_ = layout.FixedCols();
    cols_ = layout.last_col() + 1;
    records_.clear();
    records_.reserve(static_cast<std::size_t>(slots_) * static_cast<std::size_t>(cols_ - first_col_));
    for (SlotNumber slot; slot.value < slots_; ++slot)
        for (int col = first_col_; col < cols_; ++col)
            records_.emplace_back(layout, guarded).Initialize(slot, col);
}

std::size_t Slots::index(SlotNumber slot, int col) const {
    if (slot.value < 0 || slot.value >= slots_ || col < first_col_ || col >= cols_)
        throw values::Failure(values::FailureNumber::subscript_out_of_range);
    return static_cast<std::size_t>(slot.value) * static_cast<std::size_t>(cols_ - first_col_) +
           static_cast<std::size_t>(col - first_col_);
}

} // namespace grid
