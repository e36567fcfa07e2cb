#include "core/grid/background.h"

#include "core/settings/catalogue.h"
#include "core/values/numbers.h"
#include "core/values/text_forms.h"

namespace grid {

void Background::Refresh_Colors() {
    here_.guarded("in modColorOffSlot: Sub Refresh_Colors - Line # ", [&](host::Step& step) {
        step = 10;
        here_.window.lock_updates();
        step = 20;
        titles_.Write_RowTitles();
        step = 30;
        bands.Color_BackGround();
        step = 40;
        Insert_Holidays();
        step = 50;
        inactive_slots.Color_offSlots(layout_.msgSched(), here_.window, InactiveSlots::GridKind::main);
        step = 60;
        here_.window.unlock_updates();
    });
}

void Background::Insert_Holidays() {
    here_.guarded("in modColorOffSlot: Sub Insert_Holidays - Line # ", [&](host::Step& step) {
        step = 10;
        layout_.read_off_color();
        const std::string today = values::yyyymmdd(here_.clock.today());
        for (int col = layout_.FixedCols(); col <= layout_.last_col(); ++col) {
            step = 20;
            const values::DateTime day = layout_.date_of_column(col);
            if (!holidays.holds(day))
                continue;
            step = 30;
            const Bands::Band band{values::to_int32(layout_.Color3()), Bands::off_selector};
            for (int row = DayGrid::first_row; row <= layout_.last_row(); ++row)
                bands.paint(row, col, band);
            step = 40;
            std::string file = holidays.HolidaysFile;
            const std::string description = settings_.ini.GetKeyValue(
                settings::sections::holidays, values::short_date(day, here_.locale), "", "", "", file);
            step = 50;
            titles_.writer().Write_Cell(layout_.msgSched(), 0, col,
                                        {.text = description,
                                         .bold = values::yyyymmdd(day) == today,
                                         .alignment = table::Alignment::centre});
        }
    });
}

void Background::Remove_Holidays() {
    here_.guarded("in modColorOffSlot: Sub Remove_Holidays - Line # ", [&](host::Step& step) {
        for (int col = layout_.FixedCols(); col <= layout_.last_col(); ++col) {
            step = 10;
            if (!holidays.holds(layout_.date_of_column(col)))
                continue;
            step = 20;
            for (int row = DayGrid::first_row; row <= layout_.last_row(); ++row)
                bands.paint(row, col, bands.band_of(row));
        }
    });
}

} // namespace grid
