#pragma once

#include "support/grid_world.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

// A calendar of the week from Sunday, 7 January 2024, whose slots tests fill and draw.
class SlotWorld : public support::GridWorld {
public:
    struct Entry {
        std::string id;
        std::string user;
        std::string text;
        int goes_beyond = 0;
        std::string cleared = "0";
        std::string recurring = "0";
        std::string has_details = "0";
        std::string fore_color = "255";
        std::string back_color = "";
        std::string type = "1";
    };

    // Rows of nobody, so many to a slot.
    void open_with_rows(int rows_per_slot, int slots = 9) {
        set("Settings", "CellsPerSlot", std::to_string(rows_per_slot));
        set("Slots", "SlotsCount", std::to_string(slots));
        have_users({"Ann"});
        open(values::DateTime::of(2024, 1, 10), 7, false);
        clear_contents();
    }
    // A row for each user in every slot.
    void open_with_users(const std::vector<std::string>& names, int slots = 9) {
        set("Slots", "SlotsCount", std::to_string(slots));
        have_users(names);
        open(values::DateTime::of(2024, 1, 10));
        clear_contents();
    }

    // The detail text is the user's name, two bars and the text, as a refresh makes it.
    void put(int slot, int col, const Entry& entry) {
        calendar.layout.Slots(grid::SlotNumber(slot), col)
            .SetCell({.ActivityID = entry.id,
                      .ContactID = "CONTACT00001",
                      .Recurring = entry.recurring,
                      .Cleared = entry.cleared,
                      .BackColor = entry.back_color,
                      .ForeColor = entry.fore_color,
                      .Type = entry.type,
                      .Text = entry.text,
                      .Detail = entry.user + "||" + entry.text,
                      .HasDetails = entry.has_details,
                      .GoesBeyond = entry.goes_beyond});
    }

    // What a column shows from row 1 on: the picture's name without ending and a colon where there is a picture,
    // then the text with its leading blanks.
    std::vector<std::string> column(int col) const {
        std::vector<std::string> rows;
        for (int row = 1; row < calendar.msgSched.Rows(); ++row) {
            const table::GridCell& cell = calendar.msgSched.cell(row, col);
            const std::filesystem::path picture(calendar.msgSched.picture_path(cell));
            rows.push_back((picture.empty() ? "" : picture.stem().string() + ":") + cell.text);
        }
        return rows;
    }
    std::string place_of(const std::string& id) const { return calendar.writer.ActivityCells.at(id); }

private:
    // As a full refresh does: row titles have gone through the first day's column.
    void clear_contents() {
        table::GridModel& model = calendar.msgSched;
        grid::Layout& layout = calendar.layout;
        for (int row = 1; row < model.Rows(); ++row)
            for (int col = layout.FixedCols(); col < model.Cols(); ++col)
                layout.Cells(row, col).Clear();
        model.clear_contents({.rows = {1, layout.last_row()}, .cols = {layout.FixedCols(), layout.last_col()}});
    }
};

// Draws slots of that calendar.
class SlotDrawingTest : public testing::Test {
protected:
    void draw(int slot, int col, const std::string& sought = "") {
        grid::Drawing drawing{world.calendar.msgSched, layout.Cells, world.calendar.writer, span_list};
        layout.Slots(grid::SlotNumber(slot), col).Write_To_Grid(drawing, sought, result);
    }

    SlotWorld world;
    grid::Layout& layout = world.calendar.layout;
    std::string span_list;
    std::optional<table::Place> result;
};
