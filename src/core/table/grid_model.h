#pragma once

#include "core/table/axis.h"
#include "core/table/cell_range.h"

#include <cstdint>
#include <string>
#include <vector>

namespace table {

// A colour: blue, green, red from the high byte down, 0 black. default_colour stands for none of its own.
using Colour = std::int32_t;
inline constexpr Colour default_colour = -1;

// Where a text or picture stands in its cell; the numbers are those that callers pass about.
enum class Alignment : std::uint8_t {
    left_top = 0,
    left_centre = 1,
    left_bottom = 2,
    centre_top = 3,
    centre = 4,
    centre_bottom = 5,
    right_top = 6,
    right_centre = 7,
    right_bottom = 8,
};

// What one cell shows.
struct GridCell {
    std::string text; // a carriage return or a line feed begins a new line
    Colour back_colour = default_colour;
    Colour fore_colour = default_colour; // default_colour: the grid's own ForeColor
    std::uint16_t picture = 0;           // see GridModel::picture_path; 0 for none
    Alignment alignment = Alignment::left_top;
    Alignment picture_alignment = Alignment::left_top;
    bool bold = false;
    bool strike_through = false;
};

// What changed in a grid since its observers last looked.
enum class GridChange {
    cells,   // texts, colours, pictures, or a control-wide colour
    shape,   // the number of rows or columns, their sizes, or the scroll position
    current, // the current cell or the selection ends
    redraw,  // painting was switched on or off
};

class GridObserver {
public:
    virtual ~GridObserver() = default;
    // Called inside each change that makes a difference, so it has to be cheap: note it, paint later.
    virtual void grid_changed(GridChange change) = 0;
};

// A grid of cells with fixed rows and columns, a current cell, and selection ends apart from it. It knows no
// toolkit: a widget paints it, a printer reads it, tests look at it. Sizes and positions are twips. A row or
// column that there is not fails with 380 when it is made the current one and with 381 as an index.
class GridModel {
public:
    static constexpr int standard_row_height = 300;
    static constexpr int standard_col_width = 960;

    // One fixed row, one fixed column, no others.
    GridModel();

    int Rows() const { return rows_.count(); }
    int Cols() const { return cols_.count(); }
    // Cells that remain keep what they show; the current cell moves inside. Fails with 380 below the number of
    // fixed ones.
    void Rows(int count);
    void Cols(int count);
    int FixedRows() const { return rows_.fixed(); }
    int FixedCols() const { return cols_.fixed(); }
    void FixedCols(int count); // fails with 380 outside 0 to Cols

    // The current cell. Setting one coordinate collapses the selection to the current cell.
    int Row() const { return row_; }
    int Col() const { return col_; }
    void Row(int row);
    void Col(int col);
    // The far end of the selection.
    int RowSel() const { return row_end_; }
    int ColSel() const { return col_end_; }
    void RowSel(int row);
    void ColSel(int col);

    // What the current cell shows.
    const std::string& Text() const { return current().text; }
    void Text(std::string text);
    Colour CellBackColor() const { return current().back_colour; }
    void CellBackColor(Colour colour) { change(current().back_colour, colour); }
    Colour CellForeColor() const { return current().fore_colour; }
    void CellForeColor(Colour colour) { change(current().fore_colour, colour); }
    Alignment CellAlignment() const { return current().alignment; }
    void CellAlignment(Alignment alignment) { change(current().alignment, alignment); }
    bool CellFontBold() const { return current().bold; }
    void CellFontBold(bool bold) { change(current().bold, bold); }
    bool CellFontStrikeThrough() const { return current().strike_through; }
    void CellFontStrikeThrough(bool strike) { change(current().strike_through, strike); }
    // The picture's file; an empty path is no picture.
    const std::string& CellPicture() const { return picture_path(current()); }
    void CellPicture(const std::string& path);
    Alignment CellPictureAlignment() const { return current().picture_alignment; }
    void CellPictureAlignment(Alignment alignment) { change(current().picture_alignment, alignment); }

    // Any cell, without moving the current one.
    const GridCell& cell(int row, int col) const;
    const std::string& TextMatrix(int row, int col) const { return cell(row, col).text; }
    const std::string& picture_path(const GridCell& cell) const { return pictures_[cell.picture]; }

    // Every cell as new: no text, picture, colour, alignment or font of its own. Sizes stay.
    void Clear();
    // No text and no picture in the cells of a range; its last cell is the current one then. An empty range
    // changes nothing.
    void clear_contents(const CellRange& cells);

    // The colours of the cells that have none of their own.
    Colour ForeColor() const { return fore_colour_; }
    void ForeColor(Colour colour) { change(fore_colour_, colour); }
    Colour BackColor() const { return back_colour_; }
    void BackColor(Colour colour) { change(back_colour_, colour); }

    int RowHeight(int row) const;
    int ColWidth(int col) const;
    void RowHeight(int row, int twips); // 0 hides; fails with 380 below 0
    void ColWidth(int col, int twips);
    // The top edge of a row and the left edge of a column on the screen, with the scroll position counted in.
    int RowPos(int row) const;
    int ColPos(int col) const;
    // The first row and column shown after the fixed ones.
    int TopRow() const { return rows_.first(); }
    int LeftCol() const { return cols_.first(); }
    void TopRow(int row); // fails with 380 in the fixed rows or outside the grid
    void LeftCol(int col);
    const Axis& rows() const { return rows_; }
    const Axis& columns() const { return cols_; }

    bool Redraw() const { return redraw_; }
    void Redraw(bool on);

    void add_observer(GridObserver& observer);
    void remove_observer(GridObserver& observer);

private:
    std::size_t index(int row, int col) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(cols_.count()) +
               static_cast<std::size_t>(col);
    }
    GridCell& current() { return cells_[index(row_, col_)]; }
    const GridCell& current() const { return cells_[index(row_, col_)]; }
    void reshape(int rows, int cols);
    void notify(GridChange change);
    void move_to(int row, int col);

    template <typename T>
    void change(T& value, T to) {
        if (value == to)
            return;
        value = to;
        notify(GridChange::cells);
    }

    Axis rows_{standard_row_height};
    Axis cols_{standard_col_width};
    std::vector<GridCell> cells_;       // row by row
    std::vector<std::string> pictures_; // [0] empty
    int row_ = 0, col_ = 0, row_end_ = 0, col_end_ = 0;
    Colour fore_colour_ = default_colour, back_colour_ = default_colour;
    bool redraw_ = true;
    std::vector<GridObserver*> observers_;
};

} // namespace table
