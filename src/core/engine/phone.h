#pragma once

#include <string>
#include <string_view>

namespace engine {

// A phone number that begins with "+1" as "(555) 123-4567": its digits fill that pattern from the right, those
// that are too many stand between the brackets. Where more than digits is left, such as an extension, the
// number comes without its brackets, hyphens and blanks. Any other text is returned unchanged.
std::string Format_Phone(std::string_view text);

} // namespace engine
