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
    const bool is_complete = here_.guarded("in frmHolidays: Sub Form_Load - Line # ", [&](host::Step& step) {
        step = 10;
        bLoading = true;
        changed = false;
        step = 20;
        for (const std::string& line : file_.lines())
            list_.append(line);
        step = 30;
        form_.set_dtpHol(here_.clock.today());
        step = 40;
        for (int weekday = 1; weekday <= 7; ++weekday)
            form_.set_chkday(weekday, is_stored(weekday));
        step = 50;
        form_.show_first_tab();
        bLoading = false;
        return true;
    });
    form_.fill_lvwHol(list_.holidays());
    form_.set_cmdOK_enabled(is_complete);
}

void DaysOff::Form_Unload() {
    here_.guarded("in frmHolidays: Sub Form_Unload - Line # ", [&](host::Step& step) {
        step = 10;
        if (changed) // whatever the answer
            here_.box.show({.text = "You will need to restart the program for the changes to take effect.",
                            .title = here_.application.title,
                            .icon = host::Icon::information,
                            .buttons = host::Buttons::cancel_try_continue});
    });
}

void DaysOff::cmdOK_Click() {
    here_.guarded("in frmHolidays: Sub cmdOK_Click - Line # ", [&](host::Step& step) {
        step = 10;
        file_.write(list_.holidays());
        step = 20;
        file_.Holidays = file_.Get_Holidays();
        step = 30;
        for (int weekday = 1; weekday <= 7; ++weekday)
            store(weekday);
        step = 40;
        form_.unload();
    });
}

void DaysOff::cmdCancel_Click() {
    here_.guarded("in frmHolidays: Sub cmdCancel_Click - Line # ", [&](host::Step& step) {
        step = 10;
        form_.unload();
    });
}

void DaysOff::cmdAdd_Click() {
    here_.guarded("in frmHolidays: Sub cmdAdd_Click - Line # ", [&](host::Step& step) {
        step = 10;
        const values::DateTime date = form_.dtpHol();
        if (list_.has_read(values::short_date(date, here_.locale)))
            return;
        step = 20;
        form_.show_frmDescr(sDescr);
        step = 30;
        if (!sDescr.empty()) {
            step = 40;
            const std::size_t place = list_.insert(date, sDescr, here_.locale);
            form_.insert_into_lvwHol(place, list_.holidays()[place]);
        }
        step = 50;
        changed = true;
    });
}

void DaysOff::cmdDelete_Click() {
    here_.guarded("in frmHolidays: Sub cmdDelete_Click - Line # ", [&](host::Step& step) {
        step = 10;
        const std::optional<std::size_t> place = form_.selected_in_lvwHol();
        if (!place)
            throw Failure(FailureNumber::object_not_set);
        if (list_.holidays()[*place].date.empty())
            return;
        step = 20;
        const host::Answer answer = here_.box.show({.text = "Do you really want to delete this item?",
                                                    .title = here_.application.title,
                                                    .icon = host::Icon::critical,
                                                    .buttons = host::Buttons::yes_no,
                                                    .second_is_default = true});
        step = 30;
        if (answer == host::Answer::yes) {
            list_.remove(*place);
            form_.remove_from_lvwHol(*place);
        }
        step = 40;
        changed = true;
    });
}

void DaysOff::chkday_Click(int) {
    here_.guarded("in frmHolidays: Sub chkday_Click - Line # ", [&](host::Step& step) {
        step = 10;
        if (!bLoading)
            changed = true;
    });
}

bool DaysOff::is_stored(int weekday) const {
    return values::leading_number(settings::read(settings_.ini, keys::day_off(weekday))) == 1;
}

// A day that comes back into use gives up its saved width, that of a hidden column.
void DaysOff::store(int weekday) {
    const bool is_off = form_.chkday(weekday);
    if (!is_off && is_stored(weekday)) {
        const std::string width =
            settings::read(settings_.ini, keys::std_col_width, std::to_string(layout_.StdColWidth()));
        settings::write(settings_.user_store, keys::col_width(layout_.nth_day_col(weekday)), width);
    }
    settings::write(settings_.ini, keys::day_off(weekday), is_off ? "1" : "0");
}

} // namespace forms
