#include "ui/picture/pixel_lines.h"

#include "ui/picture/style.h"

#include <algorithm>
#include <cstdlib>

namespace picture {

PixelLines::PixelLines(const table::Axis& axis, int extent)
    : fixed_(std::min(axis.fixed(), axis.count())), extent_(extent) {
    const int count = axis.count();
    first_ = std::clamp(axis.first(), fixed_, count);
    edges_.resize(static_cast<std::size_t>(count) + 1);
    for (int line = 0; line <= count; ++line)
        edges_[static_cast<std::size_t>(line)] = (axis.offset(line) + twips_per_pixel / 2) / twips_per_pixel;
    rolled_ = edge(first_) - edge(fixed_);
    for (int line = 0; line < count; ++line) {
        if (size(line) == 0)
            continue;
        if (line >= fixed_)
            scrollable_.push_back(line);
        if ((line < fixed_ || line >= first_) && begin(line) < extent_)
            shown_.push_back(line);
    }
}

bool PixelLines::shows(int line) const { return std::binary_search(shown_.begin(), shown_.end(), line); }

int PixelLines::at(int place) const {
    if (place < 0 || place >= total_end())
        return -1;
    const int unrolled = place < fixed_end() ? place : place + rolled_;
    return static_cast<int>(std::upper_bound(edges_.begin(), edges_.end(), unrolled) - edges_.begin()) - 1;
}

int PixelLines::border_at(int place, int reach) const {
    for (const int line : shown_)
        if (std::abs(end(line) - place) <= reach)
            return line;
    return -1;
}

int PixelLines::twips_from_pixels(int place, const table::Axis& axis) const {
    const int line = at(place);
    if (line >= 0) {
        const int inside = picture::twips_from_pixels(place - begin(line)) + twips_per_pixel / 2;
        return axis.position(line) + std::clamp(inside, std::min(1, axis.size(line) - 1), axis.size(line) - 1);
    }
    const int end_of_all = axis.total() - axis.offset(first_) + axis.offset(fixed_);
    const int twips = picture::twips_from_pixels(place);
    return place < 0 ? twips : std::max(twips, end_of_all + 1);
}

int PixelLines::position_of(int line) const {
    return static_cast<int>(std::lower_bound(scrollable_.begin(), scrollable_.end(), line) - scrollable_.begin());
}

int PixelLines::first_that_leaves_room_for(int line) const {
    const int room = std::max(0, extent_ - fixed_end());
    const auto fits = std::lower_bound(edges_.begin(), edges_.end(), edge(line + 1) - room);
    return std::clamp(static_cast<int>(fits - edges_.begin()), fixed_, line);
}

int PixelLines::last_scroll_position() const {
    return scrollable_.empty() ? 0 : position_of(first_that_leaves_room_for(scrollable_.back()));
}

int PixelLines::lines_in_view() const {
    const auto whole_ones = std::count_if(shown_.begin(), shown_.end(),
                                          [this](int line) { return line >= fixed_ && end(line) <= extent_; });
    return std::max(1, static_cast<int>(whole_ones));
}

int PixelLines::first_to_show(int line) const {
    if (line < fixed_)
        return first_;
    return line <= first_ ? line : std::max(first_, first_that_leaves_room_for(line));
}

} // namespace picture
