#include "core/grid/layout.h"

#include "core/settings/catalogue.h"
#include "core/values/failure.h"
#include "core/values/numbers.h"

namespace grid {

using values::Failure;
using values::FailureNumber;

Layout::Layout(table::GridModel& msgSched, act::UserList& users, const Surroundings& surroundings)
    : grid_(msgSched), users_(users), here_(surroundings), slot_times_(surroundings.ini, surroundings.locale) {}

void Layout::Initialize_Dates(values::DateTime date) {
    here_.guarded("in frmMain: Sub Initialize_Dates - Line # ", [&](host::Step& step) {
        step = 10;
        FirstDayOfWeek = values::to_int16(settings::read(here_.ini, settings::keys::first_day));
        step = 20;
        StartDate = NumDays == 7 ? GetFirstDayOf(date) : GetNextNotHiddenDay(date.date(), false);
        step = 30;
        set_year_label(StartDate);
        step = 40;
        EndDate = StartDate.plus_days(NumDays - 1);
    });
}

void Layout::set_year_label(values::DateTime date) { lblYear = std::to_string(date.year()); }

values::DateTime Layout::GetNextNotHiddenDay(values::DateTime date, bool backward) const {
    values::DateTime candidate = date;
    for (int days = 0; days <= 6; ++days) {
        candidate = date.plus_days(backward ? -days : days);
        if (!is_day_off(candidate))
            break;
    }
    return candidate;
}

values::DateTime Layout::GetFirstDayOf(values::DateTime date) const {
    if (FirstDayOfWeek < 1 || FirstDayOfWeek > 7)
        throw Failure(FailureNumber::invalid_procedure_call);
    return date.date().plus_days(1 - date.weekday_from(FirstDayOfWeek));
}

bool Layout::is_day_off(values::DateTime date) const {
    return DaysOff.find(static_cast<char>('0' + date.weekday())) != std::string::npos;
}

int Layout::GetDayCol(values::DateTime date) const {
    return here_.guarded("in modRefresh: Sub GetDayCol - Line # ", [&](host::Step& step) -> int {
        step = 10;
        return values::to_int16(static_cast<double>(values::days_between(StartDate, date)) + FixedCols);
    });
}

int Layout::slot_of_row(int row) const {
    if (CellsPerSlot == 0)
        throw Failure(FailureNumber::overflow);
    return (row - 1) / CellsPerSlot;
}

} // namespace grid
