#include "core/values/numbers.h"

#include "core/values/failure.h"
#include "core/values/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>

namespace values {

namespace {

bool is_digit(char letter) { return letter >= '0' && letter <= '9'; }

struct Read {
    double number = 0;
    std::size_t length = 0; // characters taken; 0 when there is no number
};

std::size_t digits_from(std::string_view text, std::size_t start) {
    const auto end = std::find_if_not(text.begin() + static_cast<std::ptrdiff_t>(start), text.end(), is_digit);
    return static_cast<std::size_t>(end - text.begin()) - start;
}

Read read_hexadecimal(std::string_view text) {
    if (text.size() < 3 || text[0] != '&' || (text[1] != 'H' && text[1] != 'h'))
        return {};
    std::uint64_t bits = 0;
    const auto [end, error] = std::from_chars(text.data() + 2, text.data() + text.size(), bits, 16);
    const auto digits = static_cast<std::size_t>(end - text.data()) - 2;
    if (error != std::errc() || digits == 0 || bits > std::numeric_limits<std::uint32_t>::max())
        return {};
    const std::size_t length = digits + 2;
    if (text.substr(length).starts_with('&'))
        return {static_cast<double>(static_cast<std::int32_t>(bits)), length + 1};
    if (digits <= 4)
        return {static_cast<double>(static_cast<std::int16_t>(bits)), length};
    return {static_cast<double>(static_cast<std::int32_t>(bits)), length};
}

double decimal_value(const std::string& digits) {
    double number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc::result_out_of_range)
        return number;
    // Too large and too small look alike there; a stream in the classic locale tells them apart.
    std::istringstream stream(digits);
    stream.imbue(std::locale::classic());
    stream >> number;
    return std::abs(number) > 1 ? std::copysign(std::numeric_limits<double>::infinity(), number) : 0;
}

Read read_number(std::string_view text) {
    if (const Read hexadecimal = read_hexadecimal(text); hexadecimal.length > 0)
        return hexadecimal;
    const bool has_sign = text.starts_with('-') || text.starts_with('+');
    const std::size_t start = has_sign ? 1 : 0;
    const std::size_t whole = digits_from(text, start);
    std::size_t end = start + whole;
    if (end < text.size() && text[end] == '.') {
        const std::size_t fraction = digits_from(text, end + 1);
        if (whole == 0 && fraction == 0)
            return {};
        end += 1 + fraction;
    } else if (whole == 0) {
        return {};
    }
    if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
        const std::size_t sign = end + 1 < text.size() && (text[end + 1] == '-' || text[end + 1] == '+') ? 1 : 0;
        const std::size_t exponent = digits_from(text, std::min(end + 1 + sign, text.size()));
        if (exponent > 0)
            end += 1 + sign + exponent;
    }
    const std::string_view taken = text.substr(0, end);
    return {decimal_value(std::string(taken.starts_with('+') ? taken.substr(1) : taken)), end};
}

// Absent when the whole text isn't one number; may be infinite.
std::optional<double> whole_number(std::string_view text) {
    text = trimmed(text);
    const Read read = read_number(text);
    return read.length > 0 && read.length == text.size() ? std::optional(read.number) : std::nullopt;
}

double half_to_even(double number) {
    const double below = std::floor(number);
    const double rest = number - below;
    if (rest < 0.5)
        return below;
    if (rest > 0.5)
        return below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

template <typename Integer>
Integer rounded(double number) {
    const double whole = half_to_even(number);
    if (!(whole >= std::numeric_limits<Integer>::min() && whole <= std::numeric_limits<Integer>::max()))
        throw Failure(FailureNumber::overflow);
    return static_cast<Integer>(whole);
}

} // namespace

std::optional<double> parse_number(std::string_view text) {
    const auto number = whole_number(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

double leading_number(std::string_view text) {
    std::string dense(text);
    std::erase_if(dense, [](char letter) { return letter == ' ' || letter == '\t' || letter == '\n'; });
    return read_number(dense).number;
}

double to_double(std::string_view text) {
    const auto number = whole_number(text);
    if (!number)
        throw Failure(FailureNumber::type_mismatch);
    if (!std::isfinite(*number))
        throw Failure(FailureNumber::overflow);
    return *number;
}

std::int16_t to_int16(std::string_view text) { return to_int16(to_double(text)); }
std::int32_t to_int32(std::string_view text) { return to_int32(to_double(text)); }
std::int16_t to_int16(double number) { return rounded<std::int16_t>(number); }
std::int32_t to_int32(double number) { return rounded<std::int32_t>(number); }

std::string single_text(double number) {
    char digits[32];
    const auto [end, error] = std::to_chars(digits, digits + sizeof digits, number, std::chars_format::general, 7);
    std::string text(digits, end);
    std::replace(text.begin(), text.end(), 'e', 'E');
    return text;
}

} // namespace values
