#include "core/table/axis.h"

#include <algorithm>
#include <cstddef>

namespace table {

void Axis::resize(int count) {
    sizes_.resize(static_cast<std::size_t>(count), standard_size_);
    offsets_.clear();
    keep_first_inside();
}

void Axis::set_fixed(int fixed) {
    fixed_ = fixed;
    keep_first_inside();
}

void Axis::keep_first_inside() { first_ = std::max(fixed_, std::min(first_, count() - 1)); }

void Axis::set_size(int line, int twips) {
    sizes_[static_cast<std::size_t>(line)] = twips;
    offsets_.clear();
}

int Axis::offset(int line) const {
    if (offsets_.empty()) {
        offsets_.reserve(sizes_.size() + 1);
        offsets_.push_back(0);
        for (const int size : sizes_)
            offsets_.push_back(offsets_.back() + size);
    }
    return offsets_[static_cast<std::size_t>(line)];
}

int Axis::position(int line) const {
    return line < fixed_ ? offset(line) : offset(fixed_) + offset(line) - offset(first_);
}

} // namespace table
