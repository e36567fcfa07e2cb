#include "ui/dialogs/form_opener.h"

#include "ui/dialogs/frm_holidays.h"
#include "ui/dialogs/frm_mini_calendar.h"

namespace ui {

void Dialogs::show_frmHolidays() {
    frmHolidays({.file = calendar_.holidays,
                 .background = calendar_.grid.background,
                 .layout = calendar_.grid.layout,
                 .ini = calendar_.ini,
                 .user_store = calendar_.user_store,
                 .locale = platform_.locale,
                 .clock = platform_.clock,
                 .box = platform_.box,
                 .shell = platform_.shell,
                 .application = platform_.application,
                 .guarded = calendar_.guarded()},
                &window_)
        .exec();
}

void Dialogs::show_frmMiniCalendar(forms::JumpDates& dates) {
    frmMiniCalendar(dates, calendar_.user_store, calendar_.guarded(), &window_).exec();
}

} // namespace ui
