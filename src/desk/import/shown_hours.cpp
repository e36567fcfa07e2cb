#include "desk/import/shown_hours.h"

namespace importing {

bool is_in_shown_hours(values::DateTime start) {
    const int minute = start.hour() * 60 + start.minute() - first_slot;
    return minute >= 0 && minute / slot_minutes < slot_count && minute % slot_minutes < slot_minutes - 1;
}

} // namespace importing
