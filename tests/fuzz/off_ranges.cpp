#include "fuzz/calendar_target.h"

// The inactive ranges of each weekday of the week that is shown.
int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string ranges(fuzz::text_of(bytes, size));
    std::string settings = "[Off]\r\n";
    for (const char* day : {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"})
        settings.append(day).append("=").append(ranges).append("\r\n");
    fuzz::start_calendar(settings, "");
    return 0;
}
