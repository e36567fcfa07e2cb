#pragma once

#include "core/forms/jump_dates.h"

namespace shell {

// The dialogs that the main window's commands open. Each call shows one and returns when it has closed.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual void show_frmHolidays() = 0;
    // Opens on datCurrentNow; sets datNow and bDateNowCancel.
    virtual void show_frmMiniCalendar(forms::JumpDates& dates) = 0;
};

} // namespace shell
