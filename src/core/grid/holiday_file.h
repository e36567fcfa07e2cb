#pragma once

#include "core/host/files.h"
#include "core/host/guard.h"

#include <span>
#include <string>
#include <vector>

namespace grid {

struct Holiday {
    std::string date; // the short date in the locale of whoever wrote it
    std::string description;
};

// The file of holidays: a first line that says nothing, then a line for each holiday, its date as text, "=" and
// its description.
class HolidayFile {
public:
    HolidayFile(host::Files& files, const host::Guard& guarded) : files_(files), guarded_(guarded) {}

    // The dates of the file at a path, a bar on both sides of each; empty when there is no file. An empty line
    // among the holidays is a failure.
    std::string Get_Holidays(const std::string& path) const;

    // The lines behind the first one; none when there is no file. Fails with 75 when the file can't be read.
    std::vector<std::string> lines(const std::string& path) const;
    // Makes these holidays the file's content. A file that is there keeps its encoding where that has all the
    // characters. Fails with 75, with the file untouched, when it can't be written
    // or would be too large to be read again.
    void write(const std::string& path, std::span<const Holiday> holidays);

private:
    host::Files& files_;
    const host::Guard& guarded_;
};

} // namespace grid
