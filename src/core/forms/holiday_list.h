#pragma once

#include "core/grid/holiday_file.h"
#include "core/values/date_time.h"
#include "core/values/locale.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace forms {

// The holidays while they are being edited, in the order of the list.
class HolidayList {
public:
    // Takes a line of the file to the end. Fails with 9 when it has no "="; a second one cuts the description.
    void append(std::string_view line);

    const std::vector<grid::Holiday>& holidays() const { return holidays_; }
    // True when the date occurs in the dates as read. They are one text without separators, so that "1/1/2024"
    // occurs in "11/1/2024"; what was inserted isn't in it.
    bool has_read(std::string_view date) const { return dates_as_read_.find(date) != std::string::npos; }

    // Puts a holiday before the first one on or after its date, at the end if there is none, and tells its place.
    // Line ends in the description become blanks. Fails with 13 at a holiday whose date can't be read.
    std::size_t insert(values::DateTime date, std::string_view description, const values::Locale& locale);
    // Takes a holiday out, and every occurrence of its date out of the dates as read.
    void remove(std::size_t place);

private:
    std::vector<grid::Holiday> holidays_;
    std::string dates_as_read_;
};

} // namespace forms
