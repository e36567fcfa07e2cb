#include "fuzz/calendar_target.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::start_calendar("", std::string(fuzz::text_of(bytes, size)));
    return 0;
}
