#pragma once

#include "core/grid/slot_times.h"
#include "core/values/date_time.h"
#include "core/values/failure.h"

#include <optional>
#include <variant>
#include <vector>

namespace engine {

// The time slots as the settings told them when they were last read. A start or length that can't be read fails
// where it is needed.
class SlotTable {
public:
    void read(const grid::SlotTimes& times, int count);

    // The slot in which an activity of that time of day begins; none for one before the first slot, in a gap, in
    // the last minute of a slot, or after the last slot's length.
    std::optional<grid::SlotNumber> slot_of(values::DateTime time) const;
    // How many slots from `first` on an activity covers that ends at that time of day. An end at the start of a
    // slot doesn't cover it.
    int span(grid::SlotNumber first, values::DateTime end_time) const;

private:
    template <typename T>
    using Read = std::variant<T, values::Failure>;
    struct Slot {
        Read<values::DateTime> start;
        Read<int> duration; // minutes
    };
    values::DateTime start(std::size_t slot) const;

    std::vector<Slot> slots_;
};

} // namespace engine
