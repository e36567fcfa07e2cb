#include "core/grid/titles.h"

#include "core/settings/catalogue.h"
#include "core/values/failure.h"
#include "core/values/numbers.h"
#include "core/values/text_forms.h"

#include <array>

namespace grid {

using settings::read;
namespace keys = settings::keys;

void Titles::Write_ColTitles() {
    here_.guarded("in frmMain: Sub Write_ColTitles - Line # ", [&](host::Step& step) {
        table::GridModel& grid = layout_.msgSched();
        step = 10;
        writer_.Write_Cell(grid, 0, 0, {.text = ""});
        layout_.Cells(0, 0).Initialize(0, 0);
        step = 20;
        writer_.Write_Cell(grid, 0, 1, {.text = "Users"});
        layout_.Cells(0, 1).Initialize(0, 1, "Users");
        const std::string today = values::yyyymmdd(here_.clock.today());
        for (int col = layout_.FixedCols(); col < grid.Cols(); ++col) {
            step = 30;
            const values::DateTime date = layout_.date_of_column(col);
            const std::string title = values::weekday_name(date, here_.locale) + " " + GetMonth(date.month()) +
                                      " " + std::to_string(date.day());
            step = 40;
            writer_.Write_Cell(grid, 0, col, {.text = title, .bold = values::yyyymmdd(date) == today});
            step = 50;
            layout_.Cells(0, col).Initialize(0, col, title);
        }
    });
}

void Titles::Write_RowTitles() {
    here_.guarded("in frmMain: Sub Write_RowTitles - Line # ", [&](host::Step& step) {
        step = 10;
        const values::DateTime afternoon = values::to_date(read(settings_.ini, keys::pm), here_.locale);
        layout_.forget_row_times();
        for (SlotNumber slot; slot.value < layout_.SlotsCount(); ++slot) {
            step = 20;
            const values::DateTime start = layout_.slot_times().start(slot);
            layout_.note_slot_start(slot, start, afternoon);
            step = 30;
            for (int place = 0; place < layout_.CellsPerSlot(); ++place)
                write_row(layout_.lines().row_of(slot, place), place, start);
        }
    });
}

void Titles::write_row(int row, int place, values::DateTime start) {
    table::GridModel& grid = layout_.msgSched();
    const std::string title = place == 0 ? FormatTime(start) : std::string();
    writer_.Write_Cell(grid, row, 0,
                       {.text = title,
                        .bold = place == 0 ? std::optional(true) : std::nullopt,
                        .alignment = table::Alignment::centre});
    layout_.Cells(row, 0).Initialize(row, 0, title);

    const act::ItemList& users = users_.cboUsers;
    const std::string user = place < users.ListCount() ? users.List(place) : std::string();
    writer_.Write_Cell(grid, row, 1,
                       {.text = user,
                        .fore_color = values::to_int32(layout_.Color4()),
                        .alignment = table::Alignment::left_centre});
    layout_.Cells(row, 1).Initialize(row, 1, user);
}

std::string Titles::GetMonth(int month) {
    static constexpr std::array<const char*, 12> names = {"Jan.", "Feb.", "Mar.", "Apr.", "May",  "Jun.",
                                                          "Jul.", "Aug.", "Sep.", "Oct.", "Nov.", "Dec."};
    if (month < 1 || month > 12)
        throw values::Failure(values::FailureNumber::subscript_out_of_range);
    return names[static_cast<std::size_t>(month - 1)];
}

bool Titles::isMilitary() const { return here_.locale.is_24_hour(); }

std::string Titles::FormatTime(values::DateTime time) const {
    return isMilitary() ? values::h_nn(time) : values::medium_time(time, here_.locale);
}

} // namespace grid
