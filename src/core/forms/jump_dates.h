#pragma once

#include "core/values/date_time.h"

namespace forms {

// What passes between the jump list and the mini calendar.
struct JumpDates {
    values::DateTime datNow;        // the target of the jump under way, afterwards of the last one
    values::DateTime datCurrentNow; // where the mini calendar opens
    bool bDateNowCancel = false;    // the mini calendar was last closed without a pick
};

} // namespace forms
