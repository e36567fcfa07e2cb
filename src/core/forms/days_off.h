#pragma once

#include "core/forms/holiday_list.h"
#include "core/forms/holidays_form.h"
#include "core/grid/background.h"
#include "core/grid/holiday_file.h"
#include "core/grid/layout.h"
#include "core/host/application_info.h"
#include "core/host/clock.h"
#include "core/host/guard.h"
#include "core/host/message_box.h"
#include "core/settings/ini_lib.h"
#include "core/settings/per_user_store.h"
#include "core/values/locale.h"

#include <string>

namespace forms {

// The procedures of frmHolidays, for one opening of it: the weekly days off, which are settings, and the holidays,
// which stand in a file of their own.
class DaysOff {
public:
    struct Needs {
        HolidaysForm& form;
        grid::HolidayFile& file;
        grid::Background& background; // knows the file's place, and the holidays that the grid shows
        const grid::Layout& layout;
        settings::IniLib& ini;
        settings::PerUserStore& user_store;
        const values::Locale& locale;
        const host::Clock& clock;
        host::MessageBox& box;
        const host::ApplicationInfo& application;
        const host::Guard& guarded;
    };
    explicit DaysOff(const Needs& needs) : need_(needs) {}

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

    Needs need_;
    HolidayList list_;
};

} // namespace forms
