#pragma once

#include "host/files.h"
#include "host/guard.h"

#include <string>

namespace shell {

// The file of holidays: a first line that says nothing, then a line for each holiday, its date as text, "=" and
// its description.
class HolidayFile {
public:
    HolidayFile(const host::Files& files, const host::Guard& guarded) : files_(files), guarded_(guarded) {}

    // The dates of the file at a path, a bar on both sides of each; empty when there is no file. An empty line
    // among the holidays is a failure.
    std::string Get_Holidays(const std::string& path) const;

private:
    const host::Files& files_;
    const host::Guard& guarded_;
};

} // namespace shell
