#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// The code points inside UTF-8 texts.
namespace values {

// The code point at the start of the text and how many bytes it takes. Absent when the bytes there aren't UTF-8.
struct CodePoint {
    char32_t value = 0;
    std::size_t bytes = 0;
};
std::optional<CodePoint> first_code_point(std::string_view text);

void append_code_point(std::string& text, char32_t value);

} // namespace values
