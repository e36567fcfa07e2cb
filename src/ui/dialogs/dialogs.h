#pragma once

#include "shell/calendar.h"
#include "shell/dialogs.h"

class QWidget;

namespace ui {

// The dialogs over the main window.
class Dialogs : public shell::Dialogs {
public:
    // The calendar may still be under construction; it is complete when the first dialog is shown.
    Dialogs(QWidget& window, const shell::Platform& platform, shell::Calendar& calendar)
        : window_(window), platform_(platform), calendar_(calendar) {}

    void show_frmHolidays() override;
    void show_frmMiniCalendar(shell::JumpDates& dates) override;

private:
    QWidget& window_;
    shell::Platform platform_;
    shell::Calendar& calendar_;
};

} // namespace ui
