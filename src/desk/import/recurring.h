#pragma once

#include "desk/import/entry.h"
#include "desk/import/work.h"

#include <cstddef>
#include <vector>

namespace importing {

// The units of work that it takes to write an activity into the database.
std::size_t units_to_write(const FoundActivity& found);

// What the dates of an entry are found with.
struct DateFinding {
    Times& times;
    values::DateTime today;
    Work& work;
};

// The activities that an entry is with all its dates: a series where the calendar shows one on just these dates,
// else single ones; none when its exceptions leave it no date. `told` is the entry as it stands in the file, and
// `replaced` are occurrences for which other entries stand. What is taken otherwise than it stands is added to the
// entry's changes.
std::vector<FoundActivity> activities_of(Entry& entry, const Component& told,
                                         const std::vector<ZonedTime>& replaced, const DateFinding& finding);

// The times of all the entry's properties of a kind.
std::vector<ZonedTime> times_of(const Entry& entry, icalproperty_kind kind, Times& times);

} // namespace importing
