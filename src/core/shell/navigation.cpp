#include "core/shell/navigation.h"

#include "core/shell/jump_targets.h"
#include "core/values/text.h"
#include "core/values/text_forms.h"

namespace shell {

namespace {

constexpr int enter = 13;
constexpr int days_of_week = 7;

} // namespace

void Navigation::cmdPrevious_Click() {
    need_.guarded("in frmMain: Sub cmdPrevious_Click - Line # ",
                  [&](host::Step& step) { step_by(-need_.grid.layout.NumDays, step); });
}

void Navigation::cmdNext_Click() {
    need_.guarded("in frmMain: Sub cmdNext_Click - Line # ",
                  [&](host::Step& step) { step_by(need_.grid.layout.NumDays, step); });
}

void Navigation::step_by(int days, host::Step& step) {
    step = 10;
    need_.window.show_hourglass();
    step = 20;
    need_.window.focus_grid();
    step = 30;
    need_.window.select_cboGoTo(0);
    step = 40;
    Move_Start(days);
}

void Navigation::Move_Start(int days) {
    need_.guarded("in frmMain: Sub Move_Start - Line # ", [&](host::Step& step) {
        grid::Layout& layout = need_.grid.layout;
        step = 10;
        need_.window.lock_updates();
        step = 20;
        need_.grid.background.Remove_Holidays();
        step = 30;
        layout.StartDate = layout.StartDate.plus_days(days);
        step = 40;
        if (days == 1 || days == -1)
            layout.StartDate = layout.GetNextNotHiddenDay(layout.StartDate, days < 0);
        step = 50;
        layout.EndDate = layout.StartDate.plus_days(layout.NumDays - 1);
        layout.set_year_label(layout.StartDate);
        step = 60;
        need_.grid.titles.Write_ColTitles();
        step = 70;
        need_.grid.background.Insert_Holidays();
        step = 80;
        need_.grid.background.Color_offSlots(need_.grid.msgSched, need_.window, true);
        step = 90;
        need_.engine.refresh.Refresh_Data();
        step = 100;
        need_.window.unlock_updates();
    });
}

void Navigation::cboGoTo_KeyPress(int key) {
    if (key == enter)
        cboGoTo_Click();
}

// A cancelled pick leaves KeepCellDims on: a change of the view keeps the sizes then, until the next jump.
void Navigation::cboGoTo_Click() {
    need_.guarded("in frmMain: Sub cboGoTo_Click - Line # ", [&](host::Step& step) {
        grid::Layout& layout = need_.grid.layout;
        step = 10;
        const Jump* jump = find_jump(need_.window.cboGoTo_text());
        if (need_.bLoading || !jump || jump->target == Jump::Target::none)
            return;
        step = 20;
        layout.KeepCellDims = true;
        need_.window.show_hourglass();
        need_.window.repaint();
        step = 30;
        const values::DateTime today = need_.clock.today();
        remember_last_jump(today);
        step = 40;
        if (jump->target == Jump::Target::asked) {
            need_.dialogs.show_frmMiniCalendar(dates);
            step = 50;
            if (dates.bDateNowCancel) {
                need_.window.show_default_pointer();
                return;
            }
        } else {
            dates.datNow = target_of(*jump, today);
        }
        step = 60;
        const bool to_today = jump->target == Jump::Target::today;
        if (to_today)
            layout.Initialize_Dates(today);
        step = 70;
        layout.StartDate = layout.NumDays == days_of_week ? layout.GetFirstDayOf(dates.datNow)
                                                          : layout.GetNextNotHiddenDay(dates.datNow, false);
        layout.set_year_label(dates.datNow);
        step = 80;
        if (!to_today)
            layout.EndDate = layout.StartDate.plus_days(layout.NumDays - 1);
        step = 90;
        rebuild();
        step = 100;
        layout.KeepCellDims = false;
    });
}

// The mini calendar opens on the target of the last jump, unless that was today.
void Navigation::remember_last_jump(values::DateTime today) {
    const bool was_elsewhere =
        values::short_date(today, need_.locale) != values::default_text(dates.datNow, need_.locale) &&
        dates.datNow != values::DateTime();
    dates.datCurrentNow = was_elsewhere ? dates.datNow : today;
    dates.datNow = today;
}

void Navigation::chkView_Click(int index) {
    need_.guarded("in frmMain: Sub chkView_Click - Line # ", [&](host::Step& step) {
        step = 10;
        if (need_.bLoading || !need_.window.chkView(index))
            return;
        if (index == daily)
            show_day(step);
        else
            show_week(step);
    });
}

void Navigation::show_day(host::Step& step) {
    grid::Layout& layout = need_.grid.layout;
    step = 20;
    begin_view(weekly);
    step = 30;
    layout.NumDays = 1;
    layout.StartDate = layout.GetNextNotHiddenDay(need_.grid.selection.selected().DateDay(), false);
    layout.EndDate = layout.StartDate;
    layout.set_year_label(layout.StartDate);
    step = 40;
    rebuild();
    step = 50;
    need_.grid.msgSched.Row(1);
    need_.grid.msgSched.Col(layout.FixedCols);
    step = 60;
    need_.grid.selection.SelectedCell = layout.Cells.reference(1, layout.FixedCols);
}

void Navigation::show_week(host::Step& step) {
    grid::Layout& layout = need_.grid.layout;
    step = 70;
    begin_view(daily);
    step = 80;
    layout.NumDays = days_of_week;
    layout.Initialize_Dates(need_.grid.selection.selected().DateDay());
    step = 90;
    rebuild();
}

void Navigation::begin_view(int other_box) {
    need_.window.focus_grid();
    need_.window.set_chkView(other_box, false);
    need_.window.show_hourglass();
    need_.window.repaint();
}

void Navigation::rebuild() {
    need_.grid.Setup_Calendar(need_.grid.layout.StartDate, need_.grid.layout.EndDate);
    need_.engine.refresh.Refresh_Data();
}

void Navigation::Switch_View(int column) {
    need_.guarded("in frmMain: Sub Switch_View - Line # ", [&](host::Step& step) {
        step = 10;
        need_.grid.selection.SelectedCell = need_.grid.layout.Cells.reference(1, column);
        step = 20;
        const bool to_day = !need_.window.chkView(daily);
        step = 30;
        need_.window.set_chkView(daily, to_day);
        step = 40;
        need_.window.set_chkView(weekly, !to_day);
    });
}

void Navigation::chkAMPM_Click(int index) {
    need_.guarded("in frmMain: Sub chkAMPM_Click - Line # ", [&](host::Step& step) {
        step = 10;
        if (!need_.window.chkAMPM(index))
            return;
        step = 20;
        need_.window.focus_grid();
        step = 30;
        need_.grid.msgSched.TopRow(index == morning ? 1 : need_.grid.layout.FirstPMRow);
        step = 40;
        need_.window.set_chkAMPM(index == morning ? afternoon : morning, false);
    });
}

std::string Navigation::GetDate(int column) const {
    return need_.guarded("in frmMain: Function GetDate - Line # ", [&](host::Step& step) {
        step = 10;
        return values::default_text(need_.grid.layout.date_of_column(column), need_.locale);
    });
}

std::string Navigation::GetTime(int row) const {
    return need_.guarded("in frmMain: Function GetTime - Line # ", [&](host::Step& step) {
        step = 10;
        const grid::Layout& layout = need_.grid.layout;
        return layout.slot_times().start_text(layout.slot_of_row(row));
    });
}

std::string Navigation::GetButtonPicture(const std::string& path) const {
    return need_.guarded("in frmMain: Function GetButtonPicture - Line # ", [&](host::Step& step) {
        step = 10;
        const std::string folder = need_.folders.in_program_folder("");
        return values::replaced(path, folder, folder + "b");
    });
}

} // namespace shell
