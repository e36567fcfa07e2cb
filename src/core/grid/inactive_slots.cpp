#include "core/grid/inactive_slots.h"

#include "core/settings/catalogue.h"
#include "core/values/failure.h"
#include "core/values/numbers.h"
#include "core/values/text.h"
#include "core/values/text_forms.h"

namespace grid {

using values::Failure;
using values::FailureNumber;

void InactiveSlots::Color_offSlots(table::GridModel& grid, host::Window& owner, GridKind kind) {
    here_.guarded("in modColorOffSlot: Sub Color_offSlots - Line # ", [&](host::Step& step) {
        step = 10;
        owner.show_hourglass();
        owner.lock_updates();
        for (int day = 1; day <= layout_.NumDays(); ++day) {
            step = 20;
            const std::string ranges =
                settings::read(settings_.ini, settings::keys::inactive_ranges(weekday_of(day, kind)));
            if (ranges.empty())
                continue;
            step = 30;
            read_ranges(ranges);
            const int col = kind == GridKind::main ? layout_.off_col(day) : day;
            for (int row = DayGrid::first_row; row < grid.Rows(); ++row) {
                step = 40;
                if (In_Slot(row, day, kind)) {
                    step = 50;
                    grid.Row(row);
                    grid.Col(col);
                    grid.CellBackColor(values::to_int32(layout_.Color3()));
                    if (kind == GridKind::main)
                        writer_.Add_toGridID(row, col, {.back_color = Bands::off_selector});
                } else if (kind == GridKind::main) {
                    step = 60;
                    grid.Row(row);
                    grid.Col(col);
                    if (grid.CellBackColor() == values::to_int32(layout_.Color3()) &&
                        !holidays_.holds(layout_.date_of_column(col)))
                        grid.CellBackColor(bands_.GetBackGroundColor(row));
                }
            }
        }
        step = 70;
        owner.unlock_updates();
        owner.show_default_pointer();
    });
}

std::string InactiveSlots::weekday_of(int day, GridKind kind) const {
    if (kind == GridKind::main)
        return values::weekday_name(layout_.nth_day(day), here_.locale);
    if (layout_.FirstDayOfWeek() < 1 || layout_.FirstDayOfWeek() > 7)
        throw Failure(FailureNumber::invalid_procedure_call);
    return here_.locale.weekdays[static_cast<std::size_t>((layout_.FirstDayOfWeek() - 1 + day - 1) % 7)];
}

void InactiveSlots::read_ranges(const std::string& ranges) {
    OffStarts.clear();
    OffEnds.clear();
    for (const std::string& range : values::split(ranges, ",")) {
        const std::vector<std::string> ends = values::split(range, "|");
        if (ends.size() < 2)
            throw Failure(FailureNumber::subscript_out_of_range);
        OffStarts.push_back(values::to_date(ends[0], here_.locale));
        OffEnds.push_back(values::to_date(ends[1], here_.locale));
    }
}

bool InactiveSlots::In_Slot(int row, int day, GridKind kind) {
    return here_.guarded("in modColorOffSlot: Function In_Slot - Line # ", [&](host::Step& step) {
        step = 10;
        const values::DateTime time = kind == GridKind::main ? time_of_row(row) : time_of_cell(row, day);
        step = 20;
        for (std::size_t range = 0; range < OffStarts.size(); ++range)
            if (time >= OffStarts[range] && time < OffEnds[range])
                return true;
        return false;
    });
}

values::DateTime InactiveSlots::time_of_row(int row) {
    if (row < 0 || row >= static_cast<int>(layout_.RowTimes().size()))
        throw Failure(FailureNumber::subscript_out_of_range);
    const std::string& text = layout_.RowTimes()[static_cast<std::size_t>(row)];
    if (text != row_time_text_) {
        row_time_ = values::to_date(text, here_.locale);
        row_time_text_ = text;
    }
    return row_time_;
}

values::DateTime InactiveSlots::time_of_cell(int row, int day) const {
    clsMsgSchedCell spare(layout_);
    spare.Initialize(row, day);
    return spare.Time();
}

} // namespace grid
