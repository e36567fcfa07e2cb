#pragma once

#include "core/calendar/calendar.h"
#include "core/shell/dialogs.h"

class QWidget;

namespace ui {

// The dialogs over the main window.
class Dialogs : public shell::Dialogs {
public:
    // The calendar may still be under construction; it is complete when the first dialog is shown.
    Dialogs(QWidget& window, const calendar::Platform& platform, calendar::Calendar& calendar)
        : window_(window), platform_(platform), calendar_(calendar) {}

    void show_frmHolidays() override;
    void show_frmMiniCalendar(forms::JumpDates& dates) override;

private:
    QWidget& window_;
    calendar::Platform platform_;
    calendar::Calendar& calendar_;
};

} // namespace ui
