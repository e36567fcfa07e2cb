#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Numbers from text and back, as the platform converts them: blanks around a number are allowed, halves round to
// even, a text that is no number fails with 13 and one out of range with 6. "&H" texts are hexadecimal: up to four
// digits make a signed number of 16 bits, up to eight one of 32 bits, so that "&HFFFF" is -1; with "&" after them
// the 16-bit form isn't taken and "&HFFFF&" is 65535.
namespace values {

// Absent when the text isn't a number. The decimal point is ".".
std::optional<double> parse_number(std::string_view text);
inline bool is_numeric(std::string_view text) { return parse_number(text).has_value(); }
// The number at the start of the text, 0 if there is none. Blanks, tabs and line feeds don't count, not even
// between digits. Never fails; a number beyond the range of double is infinite.
double leading_number(std::string_view text);

double to_double(std::string_view text);
std::int16_t to_int16(std::string_view text);
std::int32_t to_int32(std::string_view text);
std::int16_t to_int16(double number);
std::int32_t to_int32(double number);

std::string single_text(double number); // seven significant digits, no trailing zeros: "4815", "0.25"

} // namespace values
