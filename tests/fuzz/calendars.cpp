#include "fuzz/import_target.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::import_and_forget(fuzz::text_of(bytes, size), "input.ics");
    return 0;
}
