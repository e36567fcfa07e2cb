#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// The entry that the fuzzing engine calls with one input after the other. What is wrong ends the process: by a
// sanitizer, or by `require`.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

namespace fuzz {

inline std::string_view text_of(const std::uint8_t* bytes, std::size_t size) {
    return {reinterpret_cast<const char*>(bytes), size};
}

inline void require(bool holds) {
    if (!holds)
        __builtin_trap();
}

} // namespace fuzz
