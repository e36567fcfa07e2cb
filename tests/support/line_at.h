#pragma once

#include "core/table/axis.h"

namespace support {

// The line at a place on the screen, in twips, fixed lines first; -1 beyond the last one.
inline int line_at(const table::Axis& axis, int place) {
    for (int line = 0; line < axis.count(); ++line) {
        const bool is_rolled_away = line >= axis.fixed() && line < axis.first();
        const int begin = axis.position(line);
        if (!is_rolled_away && place >= begin && place < begin + axis.size(line))
            return line;
    }
    return -1;
}

} // namespace support
