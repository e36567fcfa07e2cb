#pragma once

#include "core/table/axis.h"

#include <vector>

namespace picture {

// The rows or the columns of a grid in the pixels of a view: what is drawn where. Places and sizes are pixels
// along the axis, from the edge of the view. Scrolling goes by whole lines, so the first one after the fixed lines
// always begins exactly at their end.
class PixelLines {
public:
    PixelLines() = default;
    // The lines as they show in a view of that many pixels, scrolled as the axis says.
    PixelLines(const table::Axis& axis, int extent);

    int count() const { return static_cast<int>(edges_.size()) - 1; }
    int begin(int line) const { return edge(line) - (line < fixed_ ? 0 : rolled_); }
    int end(int line) const { return begin(line) + size(line); }
    int size(int line) const { return edge(line + 1) - edge(line); }
    int fixed() const { return fixed_; }
    int fixed_end() const { return edge(fixed_); }
    // Where the last line ends.
    int total_end() const { return edge(count()) - rolled_; }

    // The lines of some size that show at least in part, the fixed ones first.
    const std::vector<int>& shown() const { return shown_; }
    bool shows(int line) const;
    // The line at a place; -1 before the first and after the last one.
    int at(int place) const;
    // The line whose far border is within reach of a place; -1 if none is.
    int border_at(int place, int reach) const;
    // A place in pixels as one in the axis' twips. It falls into the same line there, though pixels are rounded.
    int twips_from_pixels(int place, const table::Axis& axis) const;

    // The lines of some size after the fixed ones.
    const std::vector<int>& scrollable() const { return scrollable_; }
    // Position in scrollable() of the first line that shows.
    int scroll_position() const { return position_of(first_); }
    // The highest position that leaves no room after the last line.
    int last_scroll_position() const;
    // How many scrollable lines show whole, at least 1.
    int lines_in_view() const;
    // The first line to scroll to for a line to show whole; the present one when it does.
    int first_to_show(int line) const;

private:
    int edge(int line) const { return edges_[static_cast<std::size_t>(line)]; }
    int position_of(int line) const;
    int first_that_leaves_room_for(int line) const;

    std::vector<int> edges_{0}; // one more than there are lines, nothing scrolled
    std::vector<int> shown_, scrollable_;
    int fixed_ = 0, first_ = 0, extent_ = 0, rolled_ = 0;
};

} // namespace picture
