#include "core/values/text.h"

#include "core/values/code_points.h"

#include <algorithm>
#include <array>

namespace values {

namespace {

// What Windows-1252 has from 0x80 to 0x9F. Its five empty places stand for the control characters of that number.
constexpr std::array<char32_t, 32> windows_1252_middle = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

char32_t lower(char32_t letter) {
    const bool ascii = letter >= 'A' && letter <= 'Z';
    const bool latin_1 = letter >= 0xC0 && letter <= 0xDE && letter != 0xD7;
    if (ascii || latin_1)
        return letter + 0x20;
    if (letter == 0x178)
        return 0xFF;
    const bool small_is_odd = (letter >= 0x100 && letter <= 0x137 && letter != 0x130 && letter != 0x131) ||
                              (letter >= 0x14A && letter <= 0x177);
    const bool small_is_even = (letter >= 0x139 && letter <= 0x148) || (letter >= 0x179 && letter <= 0x17E);
    if ((small_is_odd && letter % 2 == 0) || (small_is_even && letter % 2 == 1))
        return letter + 1;
    return letter;
}

bool starts_character(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }

} // namespace

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == text.npos ? std::string_view() : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string> split(std::string_view text, std::string_view separator) {
    std::vector<std::string> pieces;
    if (text.empty())
        return pieces;
    std::size_t start = 0;
    if (!separator.empty())
        for (std::size_t end; (end = text.find(separator, start)) != text.npos; start = end + separator.size())
            pieces.emplace_back(text.substr(start, end - start));
    pieces.emplace_back(text.substr(start));
    return pieces;
}

std::string replaced(std::string_view text, std::string_view what, std::string_view with) {
    if (what.empty())
        return std::string(text);
    std::string result;
    std::size_t start = 0;
    for (std::size_t end; (end = text.find(what, start)) != text.npos; start = end + what.size())
        result.append(text.substr(start, end - start)).append(with);
    return result.append(text.substr(start));
}

std::string lower(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const auto next = first_code_point(text);
        if (next)
            append_code_point(result, lower(next->value));
        else
            result += text.front();
        text.remove_prefix(next ? next->bytes : 1);
    }
    return result;
}

bool equal_ignoring_case(std::string_view left, std::string_view right) { return lower(left) == lower(right); }

std::size_t length(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), starts_character));
}

std::string first_characters(std::string_view text, std::size_t count) {
    std::size_t end = 0;
    while (end < text.size() && (!starts_character(text[end]) || count-- > 0))
        ++end;
    return std::string(text.substr(0, end));
}

bool is_utf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto next = first_code_point(bytes);
        if (!next)
            return false;
        bytes.remove_prefix(next->bytes);
    }
    return true;
}

std::string utf8_from_windows_1252(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        append_code_point(text, code >= 0x80 && code < 0xA0 ? windows_1252_middle[code - 0x80u] : code);
    }
    return text;
}

std::optional<std::string> windows_1252_from_utf8(std::string_view text) {
    std::string bytes;
    while (!text.empty()) {
        const auto next = first_code_point(text);
        if (!next)
            return std::nullopt;
        text.remove_prefix(next->bytes);
        const auto middle = std::find(windows_1252_middle.begin(), windows_1252_middle.end(), next->value);
        if (middle != windows_1252_middle.end())
            bytes += static_cast<char>(0x80 + (middle - windows_1252_middle.begin()));
        else if (next->value < 0x80 || (next->value >= 0xA0 && next->value < 0x100))
            bytes += static_cast<char>(next->value);
        else
            return std::nullopt;
    }
    return bytes;
}

} // namespace values
