#include "core/shell/navigation.h"

#include "core/shell/jump_targets.h"
#include "core/values/text.h"
#include "core/values/text_forms.h"

namespace shell {

using grid::DayGrid;

namespace {

constexpr int enter = 13;
constexpr int days_of_week = 7;

} // namespace

void Navigation::cmdPrevious_Click() {
    here_.guarded("in frmMain: Sub cmdPrevious_Click - Line # ", [&](host::Step& step) {
        step = 10;
        step_by(-grid_.layout.NumDays());
    });
}

void Navigation::cmdNext_Click() {
    here_.guarded("in frmMain: Sub cmdNext_Click - Line # ", [&](host::Step& step) {
        step = 10;
        step_by(grid_.layout.NumDays());
    });
}

void Navigation::step_by(int days) {
    window_.show_hourglass();
    window_.focus_grid();
    window_.select_cboGoTo(0);
    Move_Start(days);
}

void Navigation::Move_Start(int days) {
    here_.guarded("in frmMain: Sub Move_Start - Line # ", [&](host::Step& step) {
        step = 10;
        window_.lock_updates();
        step = 20;
        grid_.background.Remove_Holidays();
        step = 30;
        grid_.layout.move_by(days);
        step = 60;
        grid_.titles.Write_ColTitles();
        step = 70;
        grid_.background.Insert_Holidays();
        step = 80;
        grid_.background.inactive_slots.Color_offSlots(grid_.msgSched, here_.window,
                                                       grid::InactiveSlots::GridKind::main);
        step = 90;
        engine_.refresh.Refresh_Data();
        step = 100;
        window_.unlock_updates();
    });
}

void Navigation::cboGoTo_KeyPress(int key) {
    if (key == enter)
        cboGoTo_Click();
}

// A cancelled pick leaves KeepCellDims on: a change of the view keeps the sizes then, until the next jump.
void Navigation::cboGoTo_Click() {
    here_.guarded("in frmMain: Sub cboGoTo_Click - Line # ", [&](host::Step& step) {
        grid::Layout& layout = grid_.layout;
        step = 10;
        const Jump* jump = find_jump(window_.cboGoTo_text());
        if (grid_.bLoading || !jump || jump->target == Jump::Target::none)
            return;
        step = 20;
        layout.KeepCellDims = true;
        window_.show_hourglass();
        window_.repaint();
        step = 30;
        const values::DateTime today = here_.clock.today();
        remember_last_jump(today);
        step = 40;
        if (jump->target == Jump::Target::asked) {
            dialogs_.show_frmMiniCalendar(dates);
            step = 50;
            if (dates.bDateNowCancel) {
                window_.show_default_pointer();
                return;
            }
        } else {
            dates.datNow = target_of(*jump, today);
        }
        step = 60;
        if (jump->target == Jump::Target::today)
            layout.Initialize_Dates(today);
        step = 70;
        layout.show(layout.first_day_for(dates.datNow), dates.datNow);
        step = 90;
        rebuild();
        step = 100;
        layout.KeepCellDims = false;
    });
}

// The mini calendar opens on the target of the last jump, unless that was today.
void Navigation::remember_last_jump(values::DateTime today) {
    const bool was_elsewhere =
        values::short_date(today, here_.locale) != values::default_text(dates.datNow, here_.locale) &&
        dates.datNow != values::DateTime();
    dates.datCurrentNow = was_elsewhere ? dates.datNow : today;
    dates.datNow = today;
}

void Navigation::chkView_Click(int index) {
    here_.guarded("in frmMain: Sub chkView_Click - Line # ", [&](host::Step& step) {
        step = 10;
        if (grid_.bLoading || !window_.chkView(index))
            return;
        step = 20;
        if (index == daily)
            show_day();
        else
            show_week();
    });
}

void Navigation::show_day() {
    grid::Layout& layout = grid_.layout;
    begin_view(weekly);
    layout.NumDays(1);
    layout.show(layout.first_day_for(grid_.selection.selected().DateDay()));
    rebuild();
    grid_.msgSched.Row(DayGrid::first_row);
    grid_.msgSched.Col(layout.FixedCols());
    grid_.selection.SelectedCell = layout.Cells.reference(DayGrid::first_row, layout.FixedCols());
}

void Navigation::show_week() {
    begin_view(daily);
    grid_.layout.NumDays(days_of_week);
    grid_.layout.Initialize_Dates(grid_.selection.selected().DateDay());
    rebuild();
}

void Navigation::begin_view(int other_box) {
    window_.focus_grid();
    window_.set_chkView(other_box, false);
    window_.show_hourglass();
    window_.repaint();
}

void Navigation::rebuild() {
    grid_.Setup_Calendar(grid_.layout.StartDate(), grid_.layout.EndDate());
    engine_.refresh.Refresh_Data();
}

void Navigation::Switch_View(int column) {
    here_.guarded("in frmMain: Sub Switch_View - Line # ", [&](host::Step& step) {
        step = 10;
        grid_.selection.SelectedCell = grid_.layout.Cells.reference(DayGrid::first_row, column);
        step = 20;
        const bool to_day = !window_.chkView(daily);
        step = 30;
        window_.set_chkView(daily, to_day);
        step = 40;
        window_.set_chkView(weekly, !to_day);
    });
}

void Navigation::chkAMPM_Click(int index) {
    here_.guarded("in frmMain: Sub chkAMPM_Click - Line # ", [&](host::Step& step) {
        step = 10;
        if (!window_.chkAMPM(index))
            return;
        step = 20;
        window_.focus_grid();
        step = 30;
        grid_.msgSched.TopRow(index == morning ? DayGrid::first_row : grid_.layout.FirstPMRow());
        step = 40;
        window_.set_chkAMPM(index == morning ? afternoon : morning, false);
    });
}

std::string Navigation::GetDate(int column) const {
    return here_.guarded("in frmMain: Function GetDate - Line # ", [&](host::Step& step) {
        step = 10;
        return values::default_text(grid_.layout.date_of_column(column), here_.locale);
    });
}

std::string Navigation::GetTime(int row) const {
    return here_.guarded("in frmMain: Function GetTime - Line # ", [&](host::Step& step) {
        step = 10;
        const grid::Layout& layout = grid_.layout;
        return layout.slot_times().start_text(layout.slot_of_row(row));
    });
}

std::string Navigation::GetButtonPicture(const std::string& path) const {
    return here_.guarded("in frmMain: Function GetButtonPicture - Line # ", [&](host::Step& step) {
        step = 10;
        const std::string folder = here_.folders.in_program_folder("");
        return values::replaced(path, folder, folder + "b");
    });
}

} // namespace shell
