#pragma once

#include <string>

// The calls by which this process changes files: opening for writing, writing, flushing, resizing, renaming and
// linking. One of them, counted from 1, can be made to fail as on a disk that is full or breaks.
namespace faults {

// From now on counts the calls for files below the folder and has the one of that number fail; 0 lets all pass.
void begin(const std::string& folder, int number);
void end(); // counts and fails no further
// What failed since the last begin, as "fsync /tmp/a"; empty as long as nothing has.
std::string failed_call();

} // namespace faults
