#include "core/interaction/mouse.h"

#include <utility>

namespace interaction {

namespace {

constexpr int left_button = 1, right_button = 2;
constexpr int ctrl_alone = 2;

} // namespace

void Mouse::msgSched_MouseDown(int Button, int Shift, int X, int Y) {
    here_.guarded("in frmMain: Sub msgSched_MouseDown - Line # ", [&](host::Step& step) {
        step = 10;
        work_out(X, Y);
        step = 20;
        if (!click.on_anything()) {
            make_row_current(Y);
            make_col_current(X);
        }
        step = 30;
        click.ClickOnTitles = click.ClickOnTitleRow || click.ClickOnTitleCol;
        step = 40;
        if (click.MultiSelected)
            decide_on_selection();
        step = 50;
        select_lines(X, Y);
        step = 60;
        select_cell();
        step = 70;
        if (Button == right_button)
            open_menu();
        step = 80;
        if (Button == left_button && Shift == ctrl_alone)
            begin_drag();
    });
}

void Mouse::work_out(int X, int Y) {
    click.MultiSelected = spans_several();
    click.ClickOnTitleRow = places_.is_in_title_row(Y);
    click.ClickOnTitleCol = places_.is_in_title_col(X);
}

void Mouse::make_row_current(int Y) {
    if (const auto row = places_.row_at(Y))
        msgSched_.Row(*row);
}

void Mouse::make_col_current(int X) {
    if (const auto col = places_.col_at(X))
        msgSched_.Col(*col);
}

// On a title of a selection that spans several columns or rows, the selection is meant; else the title is.
void Mouse::decide_on_selection() {
    if (click.on_corner()) {
        click.MultiSelected = false;
    } else if (click.ClickOnTitleRow) {
        if (msgSched_.ColSel() != msgSched_.Col())
            click.ClickOnTitleRow = false;
        else
            click.MultiSelected = false;
    } else if (click.ClickOnTitleCol) {
        if (msgSched_.RowSel() != msgSched_.Row())
            click.ClickOnTitleCol = false;
        else
            click.MultiSelected = false;
    }
}

void Mouse::select_lines(int X, int Y) {
    if (click.on_title_row_only()) {
        make_col_current(X);
        msgSched_.Row(0);
        msgSched_.RowSel(msgSched_.Rows() - 1);
    } else if (click.on_title_col_only()) {
        make_row_current(Y);
        msgSched_.Col(0);
        msgSched_.ColSel(msgSched_.Cols() - 1);
    } else if (click.on_corner()) {
        msgSched_.Col(grid_.layout.FixedCols());
        msgSched_.Row(1);
        msgSched_.ColSel(msgSched_.Cols() - 1);
        msgSched_.RowSel(msgSched_.Rows() - 1);
    }
}

void Mouse::select_cell() {
    grid_.selection.SelectedCell = grid_.layout.Cells.reference(msgSched_.Row(), msgSched_.Col());
}

bool Mouse::takes_double_click() {
    if (click.ClickOnTitleRow) {
        navigation_.Switch_View(msgSched_.Col());
        return true;
    }
    select_cell();
    return std::exchange(click.ClickOnTitles, false);
}

void Mouse::open_menu() {
    menu_.prepare(click, grid_.selection.selected());
    click.PopupOpen = true;
    presenter_.show_mnuPopup(menu_);
}

void Mouse::begin_drag() {
    if (msgSched_.Text().empty() || click.MultiSelected)
        return;
    grid_.selection.DragSourceCell = grid_.layout.Cells.reference(msgSched_.Row(), msgSched_.Col());
    presenter_.show_drag_icon(DragIcon::permitted);
    presenter_.begin_drag();
}

void Mouse::cursor_moved() {
    here_.guarded("in frmMain: Sub msgSched_SelChange - Line # ", [&](host::Step& step) {
        step = 10;
        click = {.MultiSelected = spans_several(), .PopupOpen = click.PopupOpen};
        step = 20;
        select_cell();
    });
}

} // namespace interaction
