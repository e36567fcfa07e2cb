#include "core/forms/days_off.h"

#include "core/settings/catalogue.h"
#include "core/values/failure.h"
#include "core/values/numbers.h"
#include "core/values/text_forms.h"

namespace forms {

namespace keys = settings::keys;
using values::Failure;
using values::FailureNumber;

void DaysOff::Form_Load() {
    const bool is_complete = need_.guarded("in frmHolidays: Sub Form_Load - Line # ", [&](host::Step& step) {
        step = 10;
        bLoading = true;
        changed = false;
        step = 20;
        for (const std::string& line : need_.file.lines(need_.background.HolidaysFile))
            list_.append(line);
        step = 30;
        need_.form.set_dtpHol(need_.clock.today());
        step = 40;
        for (int weekday = 1; weekday <= 7; ++weekday)
            need_.form.set_chkday(weekday, is_stored(weekday));
        step = 50;
        need_.form.show_first_tab();
        bLoading = false;
        return true;
    });
    need_.form.fill_lvwHol(list_.holidays());
    need_.form.set_cmdOK_enabled(is_complete);
}

void DaysOff::Form_Unload() {
    need_.guarded("in frmHolidays: Sub Form_Unload - Line # ", [&](host::Step& step) {
        step = 10;
        if (changed) // whatever the answer
            need_.box.show({.text = "You will need to restart the program for the changes to take effect.",
                            .title = need_.application.title,
                            .icon = host::Icon::information,
                            .buttons = host::Buttons::cancel_try_continue});
    });
}

void DaysOff::cmdOK_Click() {
    need_.guarded("in frmHolidays: Sub cmdOK_Click - Line # ", [&](host::Step& step) {
        step = 10;
        need_.file.write(need_.background.HolidaysFile, list_.holidays());
        step = 20;
        need_.background.Holidays = need_.file.Get_Holidays(need_.background.HolidaysFile);
        step = 30;
        for (int weekday = 1; weekday <= 7; ++weekday)
            store(weekday);
        step = 40;
        need_.form.unload();
    });
}

void DaysOff::cmdCancel_Click() {
    need_.guarded("in frmHolidays: Sub cmdCancel_Click - Line # ", [&](host::Step& step) {
        step = 10;
        need_.form.unload();
    });
}

void DaysOff::cmdAdd_Click() {
    need_.guarded("in frmHolidays: Sub cmdAdd_Click - Line # ", [&](host::Step& step) {
        step = 10;
        const values::DateTime date = need_.form.dtpHol();
        if (list_.has_read(values::short_date(date, need_.locale)))
            return;
        step = 20;
        need_.form.show_frmDescr(sDescr);
        step = 30;
        if (!sDescr.empty()) {
            step = 40;
            const std::size_t place = list_.insert(date, sDescr, need_.locale);
            need_.form.insert_into_lvwHol(place, list_.holidays()[place]);
        }
        step = 50;
        changed = true;
    });
}

void DaysOff::cmdDelete_Click() {
    need_.guarded("in frmHolidays: Sub cmdDelete_Click - Line # ", [&](host::Step& step) {
        step = 10;
        const std::optional<std::size_t> place = need_.form.selected_in_lvwHol();
        if (!place)
            throw Failure(FailureNumber::object_not_set);
        if (list_.holidays()[*place].date.empty())
            return;
        step = 20;
        const host::Answer answer = need_.box.show({.text = "Do you really want to delete this item?",
                                                    .title = need_.application.title,
                                                    .icon = host::Icon::critical,
                                                    .buttons = host::Buttons::yes_no,
                                                    .second_is_default = true});
        step = 30;
        if (answer == host::Answer::yes) {
            list_.remove(*place);
            need_.form.remove_from_lvwHol(*place);
        }
        step = 40;
        changed = true;
    });
}

void DaysOff::chkday_Click(int) {
    need_.guarded("in frmHolidays: Sub chkday_Click - Line # ", [&](host::Step& step) {
        step = 10;
        if (!bLoading)
            changed = true;
    });
}

bool DaysOff::is_stored(int weekday) const {
    return values::leading_number(settings::read(need_.ini, keys::day_off(weekday))) == 1;
}

// A day that comes back into use gives up its saved width, that of a hidden column.
void DaysOff::store(int weekday) {
    const bool is_off = need_.form.chkday(weekday);
    if (!is_off && is_stored(weekday)) {
        const std::string width =
            settings::read(need_.ini, keys::std_col_width, std::to_string(need_.layout.StdColWidth));
        settings::write(need_.user_store, keys::col_width(need_.layout.FixedCols + weekday - 1), width);
    }
    if (!settings::write(need_.ini, keys::day_off(weekday), is_off ? "1" : "0"))
        throw Failure(FailureNumber::path_file_access);
}

} // namespace forms
