#pragma once

#include "core/grid/cell_writer.h"
#include "core/grid/layout.h"

#include <string>

namespace act {
class UserList;
}

namespace grid {

// Writes the title row and the title columns.
class Titles {
public:
    Titles(const host::Platform& here, const settings::Settings& settings, const act::UserList& users,
           CellWriter& writer)
        : here_(here), settings_(settings), users_(users), layout_(writer.layout()), writer_(writer) {}

    CellWriter& writer() { return writer_; }

    void Write_ColTitles();
    // Row titles, RowTimes and FirstPMRow. The user names go to column 1 whatever the row scheme is.
    void Write_RowTitles();

    static std::string GetMonth(int month);              // 1 to 12: "Jan." to "Dec."
    bool isMilitary() const;                             // times are shown from 0 to 23
    std::string FormatTime(values::DateTime time) const; // "13:00" or "01:00 PM"

private:
    void write_row(int row, int place, values::DateTime start);

    const host::Platform& here_;
    const settings::Settings& settings_;
    const act::UserList& users_;
    Layout& layout_;
    CellWriter& writer_;
};

} // namespace grid
