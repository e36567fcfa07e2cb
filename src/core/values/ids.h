#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Ids of activities, contacts and users: texts of 12 characters, of which the last can be a blank. Lists of ids
// are such texts joined with no separator.
namespace values {

inline constexpr std::size_t id_length = 12;

// An id that lost its trailing blank on the way through a file gets it back; any other text stays.
std::string whole_id(std::string_view id);
// The ids of a list in order. A rest shorter than an id forms none.
std::vector<std::string> ids_in(std::string_view list);

} // namespace values
