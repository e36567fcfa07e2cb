#include "fuzz/calendar_target.h"

// The settings of the time slots and of what lies round them.
int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::start_calendar("[Settings]\r\n" + std::string(fuzz::text_of(bytes, size)), "");
    return 0;
}
