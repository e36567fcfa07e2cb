#pragma once

#include "core/grid/bands.h"
#include "core/grid/holiday_file.h"
#include "core/grid/inactive_slots.h"
#include "core/grid/titles.h"

namespace grid {

// The background of the grid in three passes, each over the one before: the bands of the slots, the holidays, the
// inactive time slots.
class Background {
public:
    Background(const host::Platform& here, const settings::Settings& settings, const act::UserList& users,
               Titles& titles)
        : holidays(here), bands(here, users, titles.writer()),
          inactive_slots(here, settings, holidays, bands, titles.writer()), here_(here), settings_(settings),
          layout_(titles.writer().layout()), titles_(titles) {}
    Background(const Background&) = delete; // its parts point to each other
    Background& operator=(const Background&) = delete;

    HolidayFile holidays;
    Bands bands;
    InactiveSlots inactive_slots;

    void Refresh_Colors(); // the row titles and all passes
    void Insert_Holidays();
    void Remove_Holidays(); // before StartDate changes

private:
    const host::Platform& here_;
    const settings::Settings& settings_;
    Layout& layout_;
    Titles& titles_;
};

} // namespace grid
