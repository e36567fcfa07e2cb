#include "core/grid/background.h"

#include "core/act/user_list.h"
#include "core/settings/catalogue.h"
#include "core/values/failure.h"
#include "core/values/numbers.h"
#include "core/values/text.h"
#include "core/values/text_forms.h"

namespace grid {

using settings::read;
using values::Failure;
using values::FailureNumber;
namespace keys = settings::keys;

void Background::Refresh_Colors() {
    here_.guarded("in modColorOffSlot: Sub Refresh_Colors - Line # ", [&](host::Step& step) {
        step = 10;
        here_.window.lock_updates();
        step = 20;
        titles_.Write_RowTitles();
        step = 30;
        Color_BackGround();
        step = 40;
        Insert_Holidays();
        step = 50;
        Color_offSlots(layout_.msgSched(), here_.window, true);
        step = 60;
        here_.window.unlock_updates();
    });
}

void Background::Color_BackGround() {
    here_.guarded("in modColorOffSlot: Sub Color_BackGround - Line # ", [&](host::Step& step) {
        step = 10;
        layout_.Color0 = read(here_.ini, keys::color_0);
        layout_.Color1 = read(here_.ini, keys::color_1);
        table::GridModel& grid = layout_.msgSched();
        for (int row = 1; row < grid.Rows(); ++row) {
            step = 20;
            grid.Row(row);
            const Band band = band_of_row(row);
            step = 30;
            for (int col = 0; col < grid.Cols(); ++col)
                paint(row, col, band);
        }
    });
}

Background::Band Background::band_of_row(int row) const {
    const bool even = layout_.slot_of_row(row) % 2 == 0;
    return {values::to_int32(even ? layout_.Color0 : layout_.Color1), even ? 1 : 2};
}

void Background::paint(int row, int col, const Band& band) {
    writer_.Write_Cell(layout_.msgSched(), row, col, {.back_color = band.color});
    writer_.Add_toGridID(row, col, {.back_color = band.selector});
}

std::string Background::date_text(int col) const {
    return values::short_date(layout_.date_of_column(col), here_.locale);
}

bool Background::is_holiday(int col) const { return values::contains(Holidays, "|" + date_text(col) + "|"); }

void Background::Insert_Holidays() {
    here_.guarded("in modColorOffSlot: Sub Insert_Holidays - Line # ", [&](host::Step& step) {
        step = 10;
        layout_.Color3 = read(here_.ini, keys::color_3);
        table::GridModel& grid = layout_.msgSched();
        const std::string today = values::yyyymmdd(here_.clock.today());
        for (int col = layout_.FixedCols; col < grid.Cols(); ++col) {
            step = 20;
            if (!is_holiday(col))
                continue;
            step = 30;
            const Band band{values::to_int32(layout_.Color3), holiday_or_inactive};
            for (int row = 1; row < grid.Rows(); ++row)
                paint(row, col, band);
            step = 40;
            std::string file = HolidaysFile;
            const std::string description =
                here_.ini.GetKeyValue(settings::sections::holidays, date_text(col), "", "", "", file);
            step = 50;
            const bool is_today = values::yyyymmdd(layout_.date_of_column(col)) == today;
            writer_.Write_Cell(
                grid, 0, col,
                {.text = description, .bold = is_today ? 2 : 1, .alignment = table::Alignment::centre});
        }
    });
}

void Background::Remove_Holidays() {
    here_.guarded("in modColorOffSlot: Sub Remove_Holidays - Line # ", [&](host::Step& step) {
        table::GridModel& grid = layout_.msgSched();
        for (int col = layout_.FixedCols; col < grid.Cols(); ++col) {
            step = 10;
            if (!is_holiday(col))
                continue;
            step = 20;
            for (int row = 1; row < grid.Rows(); ++row)
                paint(row, col, band_of_row(row));
        }
    });
}

table::Colour Background::GetBackGroundColor(int row) {
    return here_.guarded("in modColorOffSlot: Function GetBackGroundColor - Line # ",
                         [&](host::Step& step) -> table::Colour {
                             step = 10;
                             if (users_.NumUsers == 0)
                                 throw Failure(FailureNumber::overflow);
                             step = 20;
                             const bool even = (row - 1) / users_.NumUsers % 2 == 0;
                             return values::to_int32(even ? layout_.Color0 : layout_.Color1);
                         });
}

} // namespace grid
