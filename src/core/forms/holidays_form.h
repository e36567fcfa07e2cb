#pragma once

#include "core/grid/holiday_file.h"
#include "core/values/date_time.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>

namespace forms {

// The controls of frmHolidays, as far as its procedures touch them.
class HolidaysForm {
public:
    virtual ~HolidaysForm() = default;

    virtual void show_first_tab() = 0;
    virtual bool chkday(int weekday) const = 0; // 1 Sunday to 7 Saturday
    virtual void set_chkday(int weekday, bool checked) = 0;

    // A date without a time of day. Fails with a sentence for the user when what was typed is none.
    virtual values::DateTime dtpHol() const = 0;
    virtual void set_dtpHol(values::DateTime date) = 0;
    // lvwHol, by place from 0.
    virtual void fill_lvwHol(std::span<const grid::Holiday> holidays) = 0; // the first one is selected
    virtual void insert_into_lvwHol(std::size_t place, const grid::Holiday& holiday) = 0;
    virtual void remove_from_lvwHol(std::size_t place) = 0;
    virtual std::optional<std::size_t> selected_in_lvwHol() const = 0;

    virtual void set_cmdOK_enabled(bool enabled) = 0;
    // Shows frmDescr and waits; its OK replaces the text.
    virtual void show_frmDescr(std::string& sDescr) = 0;
    virtual void unload() = 0; // closes it, which raises Form_Unload
};

} // namespace forms
