#include "core/grid/layout.h"

#include "core/settings/catalogue.h"
#include "core/values/failure.h"
#include "core/values/numbers.h"
#include "core/values/text_forms.h"

namespace grid {

using settings::read;
using values::DateTime;
using values::Failure;
using values::FailureNumber;
namespace keys = settings::keys;

namespace {

constexpr int days_of_week = 7;

} // namespace

Layout::Layout(const host::Platform& here, const settings::Settings& settings, const act::UserList& users,
               table::GridModel& msgSched)
    : here_(here), settings_(settings), users_(users), grid_(msgSched), slot_times_(settings.ini, here.locale) {}

void Layout::OneRowPerUser(bool on) {
    OneRowPerUser_ = on;
    lines_ = DayGrid(on ? 2 : 1, lines_.cells_per_slot());
}

std::string_view Layout::view_name() const { return NumDays_ == 1 ? settings::daily : settings::weekly; }

void Layout::show(DateTime first_day, DateTime year_of) {
    StartDate_ = first_day;
    EndDate_ = first_day.plus_days(NumDays_ - 1);
    lblYear_ = std::to_string(year_of.year());
}

void Layout::Initialize_Dates(DateTime date) {
    here_.guarded("in frmMain: Sub Initialize_Dates - Line # ", [&](host::Step& step) {
        step = 10;
        FirstDayOfWeek_ = values::to_int16(read(settings_.ini, keys::first_day));
        step = 20;
        show(first_day_for(date.date()));
    });
}

DateTime Layout::first_day_for(DateTime date) const {
    return NumDays_ == days_of_week ? GetFirstDayOf(date) : GetNextNotHiddenDay(date, Direction::forward);
}

void Layout::move_by(int days) {
    const DateTime moved = StartDate_.plus_days(days);
    show(days == 1 || days == -1 ? GetNextNotHiddenDay(moved, days < 0 ? Direction::backward : Direction::forward)
                                 : moved);
}

DateTime Layout::GetNextNotHiddenDay(DateTime date, Direction direction) const {
    DateTime candidate = date;
    for (int days = 0; days <= 6; ++days) {
        candidate = date.plus_days(direction == Direction::backward ? -days : days);
        if (!is_day_off(candidate))
            break;
    }
    return candidate;
}

DateTime Layout::GetFirstDayOf(DateTime date) const {
    if (FirstDayOfWeek_ < 1 || FirstDayOfWeek_ > days_of_week)
        throw Failure(FailureNumber::invalid_procedure_call);
    return date.date().plus_days(1 - date.weekday_from(FirstDayOfWeek_));
}

bool Layout::is_day_off(DateTime date) const {
    return DaysOff_.find(static_cast<char>('0' + date.weekday())) != std::string::npos;
}

void Layout::Initialize_Calendar(values::DateTime start, values::DateTime end) {
    here_.guarded("in frmMain: Sub Initialize_Calendar - Line # ", [&](host::Step& step) {
        step = 10;
        here_.window.lock_updates();
        StartDate_ = start;
        EndDate_ = end;
        step = 20;
        read_band_colors();
        read_off_color();
        Color4_ = read(settings_.ini, keys::color_4);
        step = 30;
        SlotsCount_ = values::to_int16(read(settings_.ini, keys::slots_count));
        step = 40;
        lines_ =
            DayGrid(FixedCols(), OneRowPerUser_ ? users_.cboUsers.ListCount()
                                                : values::to_int16(read(settings_.ini, keys::cells_per_slot)));
        step = 50;
        grid_.Cols(lines_.col_of(NumDays_));
        grid_.FixedCols(FixedCols());
        step = 60;
        grid_.Rows(values::to_int16(static_cast<double>(CellsPerSlot()) * SlotsCount_ + DayGrid::first_row));
        step = 70;
        Slots.rebuild(*this, here_.guarded);
        step = 80;
        Cells.rebuild(*this, grid_.Rows(), grid_.Cols());
    });
}

void Layout::Restore_CellDims() {
    here_.guarded("in frmMain: Sub Restore_CellDims - Line # ", [&](host::Step& step) {
        step = 10;
        grid_.Clear();
        for (int col = 0; col < FixedCols(); ++col) {
            step = 20;
            grid_.ColWidth(col, values::to_int32(read(settings_.user_store, keys::fixed_col_width(col))));
        }
        step = 30;
        for (int col = FixedCols(); col <= last_col(); ++col)
            grid_.ColWidth(col, StdColWidth_);
        step = 40;
        for (int row = DayGrid::first_row; row <= last_row(); ++row)
            grid_.RowHeight(row, StdRowHeight_);
    });
}

void Layout::Hide_DaysOff() {
    here_.guarded("in frmMain: Sub Hide_DaysOff - Line # ", [&](host::Step& step) {
        for (int col = FixedCols(); col <= last_col(); ++col) {
            step = 10;
            if (is_day_off(date_of_column(col)))
                grid_.ColWidth(col, 0);
            else if (grid_.ColWidth(col) == 0)
                grid_.ColWidth(col, StdColWidth_);
        }
    });
}

void Layout::read_band_colors() {
    Color0_ = read(settings_.ini, keys::color_0);
    Color1_ = read(settings_.ini, keys::color_1);
}

void Layout::read_off_color() { Color3_ = read(settings_.ini, keys::color_3); }

int Layout::GetDayCol(DateTime date) const {
    return here_.guarded("in modRefresh: Sub GetDayCol - Line # ", [&](host::Step& step) -> int {
        step = 10;
        return values::to_int16(static_cast<double>(values::days_between(StartDate_, date)) + lines_.col_of(0));
    });
}

void Layout::forget_row_times() {
    RowTimes_.assign(static_cast<std::size_t>(lines_.row_of(SlotNumber(SlotsCount_))), {});
    FirstPMRow_ = 0;
}

void Layout::note_slot_start(SlotNumber slot, DateTime start, DateTime afternoon) {
    if (FirstPMRow_ == 0 && start >= afternoon)
        FirstPMRow_ = lines_.row_of(slot);
    for (int row = lines_.row_of(slot); row <= lines_.last_row_of(slot); ++row)
        RowTimes_[static_cast<std::size_t>(row)] = values::default_text(start, here_.locale);
}

} // namespace grid
