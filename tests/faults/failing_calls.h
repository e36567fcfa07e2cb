#pragma once

#include <string>

// The calls by which this process changes files: opening for writing, writing, flushing, resizing, renaming and
// linking. One of them, counted from 1, can be made to fail as on a disk that is full or breaks.
namespace faults {

enum class Fault {
    once,      // the call of the number, as by a disk that breaks
    full_disk, // from the call of the number on all that need room
};

// From now on counts the calls for files below the folder, and has those of that number fail.
void begin(const std::string& folder, Fault fault, int number);
void end(); // counts and fails no further
// What failed first since the last begin, as "fsync /tmp/a"; empty as long as nothing has.
std::string failed_call();

} // namespace faults
