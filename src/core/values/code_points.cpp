#include "core/values/code_points.h"

namespace values {

std::optional<CodePoint> first_code_point(std::string_view text) {
    if (text.empty())
        return std::nullopt;
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80)
        return CodePoint{lead, 1};
    if (lead < 0xC2 || lead > 0xF4)
        return std::nullopt;
    const std::size_t bytes = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (text.size() < bytes)
        return std::nullopt;
    char32_t value = lead & (0x7F >> bytes);
    for (std::size_t i = 1; i < bytes; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0) != 0x80)
            return std::nullopt;
        value = value << 6 | (next & 0x3F);
    }
    const bool overlong = (bytes == 3 && value < 0x800) || (bytes == 4 && value < 0x10000);
    const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
    if (overlong || surrogate || value > 0x10FFFF)
        return std::nullopt;
    return CodePoint{value, bytes};
}

void append_code_point(std::string& text, char32_t value) {
    const auto tail = [value](int shift) { return static_cast<char>(0x80 | (value >> shift & 0x3F)); };
    if (value < 0x80) {
        text += static_cast<char>(value);
    } else if (value < 0x800) {
        text += static_cast<char>(0xC0 | value >> 6);
        text += tail(0);
    } else if (value < 0x10000) {
        text += static_cast<char>(0xE0 | value >> 12);
        text += tail(6);
        text += tail(0);
    } else {
        text += static_cast<char>(0xF0 | value >> 18);
        text += tail(12);
        text += tail(6);
        text += tail(0);
    }
}

} // namespace values
