#include "core/shell/jump_targets.h"

#include <algorithm>

namespace shell {

const Jump* find_jump(std::string_view text) {
    const auto found =
        std::find_if(jumps.begin(), jumps.end(), [&](const Jump& jump) { return jump.text == text; });
    return found == jumps.end() ? nullptr : &*found;
}

values::DateTime target_of(const Jump& jump, values::DateTime today) {
    switch (jump.target) {
    case Jump::Target::months:
        return today.plus_months(jump.months);
    case Jump::Target::day:
        return values::DateTime::of(today.year(), today.month() + jump.months, jump.day);
    case Jump::Target::none:
    case Jump::Target::asked:
    case Jump::Target::today:
        break;
    }
    return today;
}

} // namespace shell
