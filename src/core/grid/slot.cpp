#include "core/grid/slot.h"

#include "core/grid/layout.h"
#include "core/values/failure.h"

#include <algorithm>
#include <utility>

namespace grid {

void clsMsgSchedSlot::Initialize(int slot_number, int col) {
    slot_number_ = static_cast<std::int16_t>(slot_number);
    col_ = static_cast<std::int16_t>(col);
    fixed_cols_ = static_cast<std::int16_t>(layout_->FixedCols);
    cells_per_slot_ = static_cast<std::int16_t>(layout_->CellsPerSlot);
    start_date_ = layout_->StartDate;
    filled_ = first_free_ = 0;
}

void clsMsgSchedSlot::SetCell(std::string_view activity_id, std::string_view contact_id,
                              std::string_view recurring, std::string_view cleared, std::string_view back_color,
                              std::string_view fore_color, std::string_view type, std::string_view text,
                              std::string_view detail, std::string_view has_details, int goes_beyond) {
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
        record.ActivityID = activity_id;
        record.ContactID = contact_id;
        record.Recurring = recurring;
        record.Cleared = cleared;
        record.BackColor = back_color;
        record.ForeColor = fore_color;
        record.Type = type;
        record.Text = text;
        record.Detail = detail;
        record.HasDetails = has_details;
        record.GoesBeyond = goes_beyond;
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

values::DateTime clsMsgSchedSlot::Day() const { return start_date_.plus_days(col_ - fixed_cols_).date(); }

int clsMsgSchedSlot::record_count() const {
    return std::max(static_cast<int>(filled_), static_cast<int>(cells_per_slot_));
}

const SlotRecord& clsMsgSchedSlot::record(int index) const {
    static const SlotRecord never_filled;
    if (index < 0 || index >= record_count())
        throw values::Failure(values::FailureNumber::subscript_out_of_range);
    return index < static_cast<int>(filled_) ? records_[static_cast<std::size_t>(index)] : never_filled;
}

void Slots::rebuild(const Layout& layout, const host::Guard& guarded, int slots, int first_col, int cols) {
    slots_ = std::max(slots, 0);
    first_col_ = first_col;
    cols_ = cols;
    records_.clear();
    records_.reserve(static_cast<std::size_t>(slots_) * static_cast<std::size_t>(cols - first_col));
    for (int slot = 0; slot < slots_; ++slot)
        for (int col = first_col; col < cols; ++col)
            records_.emplace_back(layout, guarded).Initialize(slot, col);
}

std::size_t Slots::index(int slot, int col) const {
    if (slot < 0 || slot >= slots_ || col < first_col_ || col >= cols_)
        throw values::Failure(values::FailureNumber::subscript_out_of_range);
    return static_cast<std::size_t>(slot) * static_cast<std::size_t>(cols_ - first_col_) +
           static_cast<std::size_t>(col - first_col_);
}

} // namespace grid
