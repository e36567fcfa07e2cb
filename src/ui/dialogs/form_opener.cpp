#include "ui/dialogs/form_opener.h"

#include "ui/dialogs/frm_activity_change.h"
#include "ui/dialogs/frm_holidays.h"
#include "ui/dialogs/frm_mini_calendar.h"

namespace ui {

void FormOpener::show_frmHolidays() {
    frmHolidays(calendar_.here(), calendar_.settings, calendar_.grid.background.holidays, calendar_.grid.layout,
                &window_)
        .exec();
}

void FormOpener::show_frmMiniCalendar(forms::JumpDates& dates) {
    frmMiniCalendar(calendar_.here(), calendar_.settings.user_store, dates, &window_).exec();
}

FormOpener::Response FormOpener::ask() {
    return frmActivityChange(QString::fromStdString(calendar_.here().application.title), &window_).ask();
}

} // namespace ui
