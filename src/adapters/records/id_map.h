#pragma once

#include "desk/store/activity_reading.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace records {

// Values by id, in one block of memory: most questions are asked of thousands of records in a row, and each then
// waits for memory once. References to values live until the next change of the map.
template <typename Value>
class IdMap {
public:
    std::size_t size() const { return size_; }
    bool contains(const store::Id& id) const { return find(id) != nullptr; }
    // None for an id that there is not.
    const Value* find(const store::Id& id) const {
        if (slots_.empty())
            return nullptr;
        const Slot& slot = slots_[place_of(id)];
        return slot.in_use ? &slot.value : nullptr;
    }
    // The value of an id, an empty one where there was none.
    Value& operator[](const store::Id& id) {
        if (slots_.empty())
            grow();
        std::size_t place = place_of(id);
        if (!slots_[place].in_use) {
            if ((size_ + 1) * 3 > slots_.size() * 2) {
                grow();
                place = place_of(id);
            }
            slots_[place].id = id;
            slots_[place].in_use = 1;
            ++size_;
        }
        return slots_[place].value;
    }
    void erase(const store::Id& id) { // an absent one is no failure
        if (slots_.empty())
            return;
        const std::size_t place = place_of(id);
        if (!slots_[place].in_use)
            return;
        close_gap(place);
        --size_;
    }
    void clear() {
        slots_ = {};
        size_ = 0;
    }

private:
    // The mark fills the bytes between the 12 of an id and the value.
    struct Slot {
        store::Id id;
        std::uint32_t in_use = 0;
        Value value{};
    };
    static constexpr std::size_t least_slots = 64; // as all their numbers, a power of two

    std::size_t next(std::size_t place) const { return (place + 1) & (slots_.size() - 1); }
    std::size_t first_place_of(const store::Id& id) const {
        return std::hash<store::Id>()(id) & (slots_.size() - 1);
    }
    // Where the id stands or would have to. A third of the slots is free, so that the search ends.
    std::size_t place_of(const store::Id& id) const {
        std::size_t place = first_place_of(id);
        while (slots_[place].in_use && slots_[place].id != id)
            place = next(place);
        return place;
    }
    void grow() {
        std::vector<Slot> old(slots_.empty() ? least_slots : slots_.size() * 2);
        old.swap(slots_);
        for (Slot& slot : old)
            if (slot.in_use)
                slots_[place_of(slot.id)] = std::move(slot);
    }
    // Brings those that had to stand further on back, so that no search ends at the gap before it finds them.
    void close_gap(std::size_t gap) {
        for (std::size_t place = next(gap); slots_[place].in_use; place = next(place)) {
            const std::size_t mask = slots_.size() - 1;
            const std::size_t way = (place - first_place_of(slots_[place].id)) & mask;
            if (way < ((place - gap) & mask))
                continue;
            slots_[gap] = std::move(slots_[place]);
            gap = place;
        }
        slots_[gap] = {};
    }

    std::vector<Slot> slots_;
    std::size_t size_ = 0;
};

} // namespace records
