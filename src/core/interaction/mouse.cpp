#include "core/interaction/mouse.h"

namespace interaction {

namespace {

constexpr int left_button = 1, right_button = 2;
constexpr int ctrl_alone = 2;

} // namespace

void Mouse::msgSched_MouseDown(int Button, int Shift, int X, int Y) {
    guarded_("in frmMain: Sub msgSched_MouseDown - Line # ", [&](host::Step& step) {
        step = 10;
        work_out(X, Y);
        step = 20;
        if (!click_.on_anything()) {
            make_row_current(Y);
            make_col_current(X);
        }
        step = 30;
        click_.ClickOnTitles = click_.ClickOnTitleRow || click_.ClickOnTitleCol;
        step = 40;
        if (click_.MultiSelected)
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
    click_.MultiSelected = spans_several();
    click_.ClickOnTitleRow = places_.is_in_title_row(Y);
    click_.ClickOnTitleCol = places_.is_in_title_col(X);
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
    if (click_.on_corner()) {
        click_.MultiSelected = false;
    } else if (click_.ClickOnTitleRow) {
        if (msgSched_.ColSel() != msgSched_.Col())
            click_.ClickOnTitleRow = false;
        else
            click_.MultiSelected = false;
    } else if (click_.ClickOnTitleCol) {
        if (msgSched_.RowSel() != msgSched_.Row())
            click_.ClickOnTitleCol = false;
        else
            click_.MultiSelected = false;
    }
}

void Mouse::select_lines(int X, int Y) {
    if (click_.on_title_row_only()) {
        make_col_current(X);
        msgSched_.Row(0);
        msgSched_.RowSel(msgSched_.Rows() - 1);
    } else if (click_.on_title_col_only()) {
        make_row_current(Y);
        msgSched_.Col(0);
        msgSched_.ColSel(msgSched_.Cols() - 1);
    } else if (click_.on_corner()) {
        msgSched_.Col(grid_.layout.FixedCols);
        msgSched_.Row(1);
        msgSched_.ColSel(msgSched_.Cols() - 1);
        msgSched_.RowSel(msgSched_.Rows() - 1);
    }
}

void Mouse::select_cell() {
    grid_.selection.SelectedCell = grid_.layout.Cells.reference(msgSched_.Row(), msgSched_.Col());
}

void Mouse::open_menu() {
    menu_.prepare(click_, grid_.selection.selected());
    click_.PopupOpen = true;
    presenter_.show_mnuPopup(menu_);
}

void Mouse::begin_drag() {
    if (msgSched_.Text().empty() || click_.MultiSelected)
        return;
    grid_.selection.DragSourceCell = grid_.layout.Cells.reference(msgSched_.Row(), msgSched_.Col());
    presenter_.show_drag_icon(DragIcon::permitted);
    presenter_.begin_drag();
}

void Mouse::cursor_moved() {
    guarded_("in frmMain: Sub msgSched_SelChange - Line # ", [&](host::Step& step) {
        step = 10;
        click_ = {.MultiSelected = spans_several(), .PopupOpen = click_.PopupOpen};
        step = 20;
        select_cell();
    });
}

} // namespace interaction
