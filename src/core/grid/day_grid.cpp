#include "core/grid/day_grid.h"

#include "core/values/failure.h"

namespace grid {

SlotNumber DayGrid::slot_of(int row) const {
    if (cells_per_slot_ == 0)
        throw values::Failure(values::FailureNumber::overflow);
    return SlotNumber((row - first_row) / cells_per_slot_);
}

} // namespace grid
