#pragma once

#include "core/grid/slot_number.h"

#include "core/settings/ini_lib.h"
#include "core/values/date_time.h"
#include "core/values/locale.h"

#include <string>
#include <unordered_map>

namespace grid {

// The time slots as the settings file tells them. Each read sees the file as it now is.
class SlotTimes {
public:
    SlotTimes(const settings::IniLib& ini, const values::Locale& locale) : ini_(ini), locale_(locale) {}

    // When a slot starts; 8:00 plus so many hours when the file doesn't say. Such a start beyond midnight is on
    // the next day. Fails with 13 when the file's text is no time.
    values::DateTime start(SlotNumber slot) const;
    std::string start_text(SlotNumber slot) const; // the file's text, or the default's text form
    // How long a slot is, in minutes; "60" when the file doesn't say.
    std::string duration_text(SlotNumber slot) const;
    int duration(SlotNumber slot) const; // fails with 13 or 6 when the text is no 16-bit number

private:
    // What belongs to one slot, kept so that thousands of reads don't make the same key and time again.
    struct Known {
        std::string start_name, start_default, duration_name, duration_default;
        std::string text; // the start's text when it was last made a time
        values::DateTime time;
    };
    Known& known(SlotNumber slot) const;

    const settings::IniLib& ini_;
    const values::Locale& locale_;
    mutable std::unordered_map<int, Known> known_;
};

} // namespace grid
