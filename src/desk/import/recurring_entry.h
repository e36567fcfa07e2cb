#pragma once

#include "desk/import/entry.h"
#include "desk/import/work.h"

#include <cstddef>
#include <string>
#include <vector>

namespace importing {

// Names one of several activities of an entry. It stays the same as long as the date does.
std::string name_of_occurrence(store::DateTime start);

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
// entry's changes, and it is cut when they aren't all.
std::vector<FoundActivity> activities_of(Entry& entry, const Component& told,
                                         const std::vector<ZonedTime>& replaced, const DateFinding& finding);

// The times of all the entry's properties of a kind.
std::vector<ZonedTime> times_of(const Entry& entry, icalproperty_kind kind, Times& times);

} // namespace importing
