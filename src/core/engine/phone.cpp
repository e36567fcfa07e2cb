#include "core/engine/phone.h"

#include "core/values/text.h"

#include <algorithm>

namespace engine {

std::string Format_Phone(std::string_view text) {
    if (!text.starts_with("+1"))
        return std::string(text);
    std::string digits = values::replaced(text, "+1", "");
    std::erase_if(digits, [](char one) { return one == '(' || one == ')' || one == '-' || one == ' '; });
    if (digits.empty() ||
        !std::all_of(digits.begin(), digits.end(), [](char one) { return one >= '0' && one <= '9'; }))
        return digits;
    const std::size_t last_four = digits.size() - std::min<std::size_t>(digits.size(), 4);
    const std::size_t middle_three = last_four - std::min<std::size_t>(last_four, 3);
    return "(" + digits.substr(0, middle_three) + ") " + digits.substr(middle_three, last_four - middle_three) +
           "-" + digits.substr(last_four);
}

} // namespace engine
