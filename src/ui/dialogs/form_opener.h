#pragma once

#include "core/calendar/calendar.h"

class QWidget;

namespace ui {

// Opens the calendar's dialogs over its main window.
class FormOpener : public shell::Dialogs, public interaction::ActivityChange {
public:
    // The calendar may still be under construction; it is complete when the first dialog is shown.
    FormOpener(QWidget& window, calendar::Calendar& calendar) : window_(window), calendar_(calendar) {}

    void show_frmHolidays() override;
    void show_frmMiniCalendar(forms::JumpDates& dates) override;

private:
    Response ask() override;

    QWidget& window_;
    calendar::Calendar& calendar_;
};

} // namespace ui
