#pragma once

#include "core/forms/holiday_list.h"
#include "core/forms/holidays_form.h"
#include "core/grid/holiday_file.h"
#include "core/grid/layout.h"
#include "core/settings/settings.h"

#include <string>

namespace forms {

// The procedures of frmHolidays, for one opening of it: the weekly days off, which are settings, and the holidays,
// which stand in a file of their own.
class DaysOff {
public:
    DaysOff(const host::Platform& here, settings::Settings& settings, HolidaysForm& form, grid::HolidayFile& file,
            const grid::Layout& layout)
        : here_(here), settings_(settings), form_(form), file_(file), layout_(layout) {}

    std::string sDescr;    // handed over by frmDescr, and kept when that is cancelled
    bool bLoading = false; // stays on after a failure in Form_Load
    bool changed = false;  // the closing message is due

    // Of a file that it can't read to its end the form shows the holidays before the failure, and can't be
    // confirmed: what wasn't read would be lost.
    void Form_Load();
    void Form_Unload();

    // Writes the holidays' file and the days off, and closes the form. A failure leaves it open.
    void cmdOK_Click();
    void cmdCancel_Click();
    void cmdAdd_Click();
    void cmdDelete_Click();
    void chkday_Click(int weekday);

private:
    bool is_stored(int weekday) const;
    void store(int weekday);

    const host::Platform& here_;
    settings::Settings& settings_;
    HolidaysForm& form_;
    grid::HolidayFile& file_;
    const grid::Layout& layout_;
    HolidayList list_;
};

} // namespace forms
