#pragma once

#include <vector>

namespace table {

// The rows or the columns of a grid: their sizes in twips, 0 for a hidden one, and where each begins. The fixed
// ones stand still; the others scroll, the first visible one being `first`.
class Axis {
public:
    explicit Axis(int standard_size) : standard_size_(standard_size) {}

    int count() const { return static_cast<int>(sizes_.size()); }
    void resize(int count); // new lines get the standard size
    bool holds(int line) const { return line >= 0 && line < count(); }

    int fixed() const { return fixed_; }
    void set_fixed(int fixed);
    int first() const { return first_; }
    void set_first(int line) { first_ = line; }

    int size(int line) const { return sizes_[static_cast<std::size_t>(line)]; }
    void set_size(int line, int twips);

    // Where a line begins, counted from the axis' own beginning, as if nothing were scrolled.
    int offset(int line) const;
    int total() const { return offset(count()); }
    // Where a line begins on the screen, that is with the lines from fixed() to first() rolled away under the
    // fixed ones: negative, or inside the fixed lines, for one of those.
    int position(int line) const;

private:
    void keep_first_inside();

    int standard_size_;
    int fixed_ = 1;
    int first_ = 1;
    std::vector<int> sizes_;
    mutable std::vector<int> offsets_; // one more than sizes_; empty when out of date
};

} // namespace table
