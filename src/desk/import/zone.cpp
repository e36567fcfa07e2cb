#include "desk/import/zone.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace importing {

using values::DateTime;

DateTime plus_seconds(DateTime time, std::int64_t seconds) {
    return DateTime::from_seconds(time.seconds() + seconds);
}

Zone::Zone(std::int64_t seconds_ahead, std::vector<Change> changes)
    : at_first_(seconds_ahead), changes_(std::move(changes)) {
    std::ranges::stable_sort(changes_, {}, &Change::utc);
    if (!changes_.empty())
        at_first_ = changes_.front().before;
    for (const Change& change : changes_) {
        const DateTime wall_clock = plus_seconds(change.utc, std::max(change.before, change.after));
        // Out of order only in a zone that makes no sense.
        wall_clocks_.push_back(wall_clocks_.empty() ? wall_clock : std::max(wall_clocks_.back(), wall_clock));
    }
}

DateTime Zone::utc(DateTime wall_clock) const {
    const auto passed = std::ranges::upper_bound(wall_clocks_, wall_clock) - wall_clocks_.begin();
    return plus_seconds(wall_clock,
                        -(passed == 0 ? at_first_ : changes_[static_cast<std::size_t>(passed) - 1].after));
}

DateTime Zone::wall_clock(DateTime utc) const {
    const auto next = std::ranges::upper_bound(changes_, utc, {}, &Change::utc);
    return plus_seconds(utc, next == changes_.begin() ? at_first_ : std::prev(next)->after);
}

} // namespace importing
