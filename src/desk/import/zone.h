#pragma once

#include "core/values/date_time.h"

#include <cstdint>
#include <vector>

namespace importing {

// A time zone: by how many seconds its clocks are ahead of UTC, and since when.
class Zone {
public:
    // What is known of zones ends with this year; the times of an import don't lie later.
    static constexpr int last_year = 2500;

    struct Change {
        values::DateTime utc{};
        std::int64_t before = 0; // seconds ahead of UTC
        std::int64_t after = 0;
    };

    // With a change or more, in any order, what was before the first of them holds from the beginning.
    explicit Zone(std::int64_t seconds_ahead = 0, std::vector<Change> changes = {});

    // A time that the clocks pass over in spring is what they would show if they hadn't been put forward; one
    // that comes twice in autumn is the first of the two.
    values::DateTime utc(values::DateTime wall_clock) const;
    values::DateTime wall_clock(values::DateTime utc) const;

private:
    std::int64_t at_first_;
    std::vector<Change> changes_;
    std::vector<values::DateTime> wall_clocks_; // of each change: the first time that is only met after it
};

// A time so many seconds later.
values::DateTime plus_seconds(values::DateTime time, std::int64_t seconds);

} // namespace importing
