#pragma once

namespace interaction {

// What the last press fell on. It stays until the next press; the double click and the commands read it.
struct Click {
    bool ClickOnTitleRow = false;
    bool ClickOnTitleCol = false;
    bool MultiSelected = false; // on a selection of more than the current cell
    bool ClickOnTitles = false; // on a title of either kind, until a double click has consumed it
    bool PopupOpen = false;     // the context menu has been opened

    bool on_title_row_only() const { return ClickOnTitleRow && !ClickOnTitleCol; }
    bool on_title_col_only() const { return ClickOnTitleCol && !ClickOnTitleRow; }
    bool on_corner() const { return ClickOnTitleRow && ClickOnTitleCol; }
    bool on_anything() const { return ClickOnTitleRow || ClickOnTitleCol || MultiSelected; }
};

} // namespace interaction
