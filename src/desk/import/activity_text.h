#pragma once

#include <string>
#include <string_view>

// Texts of a file as the database is to have them: without control characters and of a sane length.
namespace importing {

std::string single_line(std::string_view text);   // line ends and tabs become blanks; at most 255 characters
std::string several_lines(std::string_view text); // line ends become "\n"; at most 20,000 characters

// Whether a summary or a category speaks of a telephone call.
bool begins_as_call(std::string_view summary);
bool names_call(std::string_view categories);

} // namespace importing
