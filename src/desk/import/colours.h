#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace importing {

// A colour as activities have it, from its CSS name in any case or "#rgb" or "#rrggbb"; absent for any other text.
std::optional<std::uint32_t> colour_of(std::string_view text);

// The CSS name that comes nearest to an activity's colour.
std::string_view nearest_name(std::uint32_t colour);

} // namespace importing
