#pragma once

#include "core/act/activity.h"

#include <initializer_list>
#include <map>
#include <span>

namespace changes {

// Fields of an activity by their numbers, in rising order.
using Fields = std::map<int, act::Value>;

// Of the current record, in the order given.
Fields read_fields(const act::Activity& activity, std::span<const int> numbers);
inline Fields read_fields(const act::Activity& activity, std::initializer_list<int> numbers) {
    return read_fields(activity, std::span(numbers.begin(), numbers.size()));
}
// Into the record that is being edited or added, in rising order of their numbers.
void write_fields(act::Activity& activity, const Fields& fields);

} // namespace changes
