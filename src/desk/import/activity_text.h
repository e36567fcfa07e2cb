#pragma once

#include <string>
#include <string_view>

// Texts of a file as the database is to have them: without control characters and of a sane length.
namespace importing {

inline constexpr std::size_t longest_single_line = 255; // characters
inline constexpr std::size_t longest_several_lines = 20000;

// Each notes in `is_cut`, where it is given, that the text was longer.
std::string single_line(std::string_view text, bool* is_cut = nullptr);   // line ends and tabs become blanks
std::string several_lines(std::string_view text, bool* is_cut = nullptr); // line ends become "\n"

// Whether a summary or a category speaks of a telephone call.
bool begins_as_call(std::string_view summary);
bool names_call(std::string_view categories);

} // namespace importing
