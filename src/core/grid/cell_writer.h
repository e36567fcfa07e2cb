#pragma once

#include "core/grid/layout.h"
#include "core/table/grid_model.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace grid {

// What Write_Cell writes. Anything left at its default leaves the cell as it is, but for fore_color, which goes
// with the text.
struct CellContent {
    std::string_view activity_id = {};
    std::optional<std::string_view> text = {};
    std::optional<bool> bold = {};
    table::Colour back_color = 0;
    table::Colour fore_color = 0;
    table::Alignment alignment = table::Alignment::left_top;
    int type = 0; // 1 call, 2 meeting, 3 to-do
    bool recurring = false;
    bool strike_through = false;
    bool has_details = false;
};

// What Add_toGridID stores in a cell's record. What is absent, or an empty text, leaves the field as it was.
struct CellDetails {
    std::optional<std::string_view> activity_id = {};
    std::optional<std::string_view> contact_id = {};
    std::optional<bool> recurring = {};
    std::optional<bool> cleared = {};
    std::optional<table::Colour> back_color = {};
    std::optional<table::Colour> fore_color = {};
    std::optional<int> icon_index = {};
    std::string_view sort_text = {};
    std::string_view text = {};
    std::optional<bool> has_details = {};
};

// Writes single cells of a grid and the records behind the main one.
class CellWriter {
public:
    CellWriter(const host::Platform& here, Layout& layout) : here_(here), layout_(layout) {}

    bool ShowIcons = false; // read at each full refresh
    // Activity id to "row|column" of the cell that was last written for it.
    std::unordered_map<std::string, std::string> ActivityCells;

    // Makes the cell current and writes it. With the usual failure handler.
    void Write_Cell(table::GridModel& grid, int row, int col, const CellContent& content);
    void Add_toGridID(int row, int col, const CellDetails& details);
    // The file of an activity's picture; a type that there is not gives the program's folder alone.
    std::string GetPicture(int type, bool recurring, bool has_details) const;
    // The picture of a cell that hides further activities.
    std::string plus_picture() const;

    // Remembers that a cell shows an activity.
    void record_place(std::string_view activity_id, int row, int col);

    Layout& layout() { return layout_; }

    // Leading blanks that keep a text clear of the picture.
    static constexpr std::string_view picture_room = "       ";

private:
    const host::Platform& here_;
    Layout& layout_;
};

} // namespace grid
