#include "core/grid/cell.h"

#include "core/grid/layout.h"
#include "core/values/failure.h"
#include "core/values/numbers.h"
#include "core/values/text.h"

namespace grid {

using values::Failure;
using values::FailureNumber;

void clsMsgSchedCell::Initialize(int row, int col, std::string_view text, std::string_view activity_id) {
    lines_ = layout_->lines();
    row_ = static_cast<std::int16_t>(row);
    col_ = static_cast<std::int16_t>(col);
    if (!text.empty())
        text_ = text;
    if (!activity_id.empty())
        activity_id_ = activity_id;
    duration_minutes_ = static_cast<std::int16_t>(layout_->slot_times().duration(Slot()));
    initialized_ = true;
}

SlotNumber clsMsgSchedCell::Slot() const { return lines_.slot_of(row_); }

values::DateTime clsMsgSchedCell::Time() const { return layout_->slot_times().start(Slot()); }

std::string clsMsgSchedCell::Duration() const { return layout_->slot_times().duration_text(Slot()); }

values::DateTime clsMsgSchedCell::Day() const {
    return layout_->StartDate().plus_days(lines_.day_of(col_)).date();
}

std::string_view clsMsgSchedCell::User() const {
    return layout_->OneRowPerUser() ? layout_->Cells(row_, 1).Text() : std::string_view();
}

std::string_view clsMsgSchedCell::Text() const { return values::trimmed(text_); }

void clsMsgSchedCell::Clear() {
    text_.clear();
    activity_id_.clear();
    contact_id_.clear();
    sort_text_.clear();
}

void Cells::rebuild(const Layout& layout, int rows, int cols) {
    const std::size_t count = static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols);
    records_ = std::make_shared<std::vector<clsMsgSchedCell>>(count, clsMsgSchedCell(layout));
    rows_ = rows;
    cols_ = cols;
}

CellReference Cells::reference(int row, int col) {
    return CellReference(std::shared_ptr<clsMsgSchedCell>(records_, &(*this)(row, col)));
}

std::size_t Cells::index(int row, int col) const {
    if (row < 0 || row >= rows_ || col < 0 || col >= cols_)
        throw Failure(FailureNumber::subscript_out_of_range);
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(cols_) + static_cast<std::size_t>(col);
}

} // namespace grid
