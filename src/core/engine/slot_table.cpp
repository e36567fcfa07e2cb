#include "core/engine/slot_table.h"

namespace engine {

namespace {

// What the reading gives, or how it failed.
template <typename Reading>
auto outcome(Reading reading) -> std::variant<decltype(reading()), values::Failure> {
    try {
        return reading();
    } catch (const values::Failure& failure) {
        return failure;
    }
}

template <typename T>
const T& result_of(const std::variant<T, values::Failure>& read) {
    if (const auto* failure = std::get_if<values::Failure>(&read))
        throw *failure;
    return std::get<T>(read);
}

} // namespace

void SlotTable::read(const grid::SlotTimes& times, int count) {
    slots_.clear();
    for (grid::SlotNumber slot; slot.value < count; ++slot)
        slots_.push_back({.start = outcome([&] { return times.start(slot); }),
                          .duration = outcome([&] { return times.duration(slot); })});
}

values::DateTime SlotTable::start(std::size_t slot) const { return result_of(slots_[slot].start); }

std::optional<grid::SlotNumber> SlotTable::slot_of(values::DateTime time) const {
    const values::DateTime minute = time.time_to_the_minute();
    for (std::size_t slot = 0; slot < slots_.size(); ++slot) {
        if (minute < start(slot))
            continue;
        if (slot + 1 < slots_.size() && minute >= start(slot + 1))
            continue;
        if (minute < start(slot).plus_minutes(result_of(slots_[slot].duration) - 1))
            return grid::SlotNumber(static_cast<int>(slot));
    }
    return std::nullopt;
}

int SlotTable::span(grid::SlotNumber first, values::DateTime end_time) const {
    const values::DateTime minute = end_time.time_to_the_minute();
    int count = 0;
    for (auto slot = static_cast<std::size_t>(first.value); slot < slots_.size() && minute > start(slot); ++slot)
        ++count;
    return count;
}

} // namespace engine
