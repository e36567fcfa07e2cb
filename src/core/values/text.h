#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Helpers for texts. Texts are UTF-8; lengths and positions count characters unless a name says bytes.
namespace values {

std::string_view trimmed(std::string_view text); // without leading and trailing blanks; tabs and line ends stay
std::vector<std::string> split(std::string_view text, std::string_view separator);         // "" gives no pieces
std::string replaced(std::string_view text, std::string_view what, std::string_view with); // every occurrence
std::string lower(std::string_view text); // for comparing names and keys: ASCII and western European letters
bool equal_ignoring_case(std::string_view left, std::string_view right);
inline bool contains(std::string_view text, std::string_view part) { return text.find(part) != text.npos; }

std::size_t length(std::string_view text);
std::string first_characters(std::string_view text, std::size_t count);

bool is_utf8(std::string_view bytes);
// Every byte has its character, so the way back always succeeds.
std::string utf8_from_windows_1252(std::string_view bytes);
// Absent when a character isn't in that code page.
std::optional<std::string> windows_1252_from_utf8(std::string_view text);

} // namespace values
