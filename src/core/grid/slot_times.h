#pragma once

#include "values/date_time.h"
#include "values/locale.h"

#include <string>
#include <vector>

namespace settings {
class IniLib;
}

namespace grid {

// The time slots as the settings file tells them: section "Slots". Each read sees the file as it now is.
class SlotTimes {
public:
    SlotTimes(settings::IniLib& settings, const values::Locale& locale) : settings_(&settings), locale_(&locale) {}

    // When a slot starts; 8:00 plus so many hours when the file doesn't say. Such a start beyond midnight is on
    // the next day. Fails with 13 when the file's text is no time.
    values::DateTime start(int slot) const;
    std::string start_text(int slot) const; // the file's text, or the default's text form
    // How long a slot is, in minutes; "60" when the file doesn't say.
    std::string duration_text(int slot) const;
    int duration(int slot) const; // fails with 13 or 6 when the text is no 16-bit number

private:
    struct Read {
        std::string text;
        values::DateTime time;
    };

    settings::IniLib* settings_;
    const values::Locale* locale_;
    mutable std::vector<Read> read_; // by slot, what its text was when it was last made a time
};

} // namespace grid
