#pragma once

#include "core/forms/days_off.h"
#include "core/forms/holidays_form.h"

#include <QDialog>

#include <memory>
#include <vector>

class QCheckBox;

namespace Ui {
class frmHolidays;
}

namespace ui {

// The weekly days off and the holidays. It raises its events on the core's procedures and shows what they set.
class frmHolidays : public QDialog, private forms::HolidaysForm {
public:
    frmHolidays(const host::Platform& here, settings::Settings& settings, grid::HolidayFile& file,
                const grid::Layout& layout, QWidget* parent);
    ~frmHolidays() override;

    void done(int result) override;

private:
    void connect_controls();

    void show_first_tab() override;
    bool chkday(int weekday) const override;
    void set_chkday(int weekday, bool checked) override;
    values::DateTime dtpHol() const override;
    void set_dtpHol(values::DateTime date) override;
    void fill_lvwHol(std::span<const grid::Holiday> holidays) override;
    void insert_into_lvwHol(std::size_t place, const grid::Holiday& holiday) override;
    void remove_from_lvwHol(std::size_t place) override;
    std::optional<std::size_t> selected_in_lvwHol() const override;
    void set_cmdOK_enabled(bool enabled) override;
    void show_frmDescr(std::string& sDescr) override;
    void unload() override;

    const host::Platform& here_;
    std::unique_ptr<Ui::frmHolidays> controls_;
    const std::vector<QCheckBox*> chkday_; // Sunday first
    forms::DaysOff procedures_;
};

} // namespace ui
