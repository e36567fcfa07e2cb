#pragma once

namespace table {

// A cell by its row and column; -1 where there is none.
struct Place {
    int row = -1;
    int col = -1;

    bool operator==(const Place&) const = default;
};

// The lines from a first to a last one, both inside; none when the last comes before the first.
struct LineRange {
    int first = 0;
    int last = -1;

    bool holds(int line) const { return line >= first && line <= last; }
    int count() const { return last < first ? 0 : last - first + 1; }
    bool operator==(const LineRange&) const = default;
};

// The cells where rows and columns cross.
struct CellRange {
    LineRange rows;
    LineRange cols;

    bool holds(Place cell) const { return rows.holds(cell.row) && cols.holds(cell.col); }
    int count() const { return rows.count() * cols.count(); }
    bool operator==(const CellRange&) const = default;
};

} // namespace table
