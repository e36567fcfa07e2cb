#pragma once

#include <compare>

namespace grid {

// The number of a time slot of a day, from 0. It doesn't pass for a row, nor a row for it.
struct SlotNumber {
    int value = 0;

    SlotNumber() = default;
    constexpr explicit SlotNumber(int number) : value(number) {}

    SlotNumber& operator++() { return ++value, *this; }
    constexpr SlotNumber next() const { return SlotNumber(value + 1); }
    constexpr bool is_even() const { return value % 2 == 0; }
    constexpr auto operator<=>(const SlotNumber&) const = default;
    friend constexpr bool operator==(SlotNumber slot, int number) { return slot.value == number; }
};

} // namespace grid
