#pragma once

#include "core/host/platform.h"

#include <span>
#include <string>
#include <string_view>
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
    explicit HolidayFile(const host::Platform& here) : here_(here) {}

    std::string HolidaysFile; // its path
    std::string Holidays;     // the short dates that it held when they were last taken in, each between two bars

    // Whether the day is one of Holidays.
    bool holds(values::DateTime day) const;

    // The dates of the file, a bar on both sides of each; empty when there is no file. An empty line among the
    // holidays is a failure.
    std::string Get_Holidays() const;
    // The lines after the first one; none when there is no file. Fails with 75 when the file can't be read.
    std::vector<std::string> lines() const;
    // Makes these holidays the file's content. A file that is there keeps its encoding where that has all the
    // characters. Fails with 75, with the file untouched, when it can't be written or would be too large to be
    // read again.
    void write(std::span<const Holiday> holidays);

private:
    const host::Platform& here_;
};

} // namespace grid
