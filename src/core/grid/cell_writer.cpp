#include "core/grid/cell_writer.h"

namespace grid {

void CellWriter::Write_Cell(table::GridModel& grid, int row, int col, const CellContent& content) {
    here_.guarded("in modRefresh: Sub Write_Cell - Line # ", [&](host::Step& step) {
        step = 10;
        grid.Row(row);
        grid.Col(col);
        step = 20;
        if (!content.activity_id.empty())
            record_place(content.activity_id, row, col);
        step = 30;
        if (content.alignment != table::Alignment::left_top)
            grid.CellAlignment(content.alignment);
        if (content.bold)
            grid.CellFontBold(*content.bold);
        step = 40;
        if (content.back_color != 0)
            grid.CellBackColor(content.back_color);
        if (!content.text)
            return;
        step = 50;
        grid.CellForeColor(content.fore_color);
        if (ShowIcons && content.type > 0) {
            step = 60;
            grid.CellPicture(GetPicture(content.type, content.recurring, content.has_details));
            grid.CellPictureAlignment(table::Alignment::left_top);
            grid.Text(std::string(picture_room).append(*content.text));
            step = 70;
            Add_toGridID(row, col, {.icon_index = (content.recurring ? 3 : 0) + content.type});
        } else {
            step = 80;
            if (ShowIcons && content.text->empty())
                grid.CellPicture({});
            grid.Text(std::string(*content.text));
        }
        step = 90;
        grid.CellFontStrikeThrough(content.strike_through);
    });
}

void CellWriter::Add_toGridID(int row, int col, const CellDetails& details) {
    here_.guarded("in modRefresh: Sub Add_toGridID - Line # ", [&](host::Step& step) {
        step = 10;
        clsMsgSchedCell& cell = layout_.Cells(row, col);
        if (!cell.Initialized())
            cell.Initialize(row, col);
        step = 20;
        if (details.activity_id)
            cell.ActivityID(*details.activity_id);
        if (details.contact_id)
            cell.ContactID(*details.contact_id);
        if (details.recurring)
            cell.Recurring(*details.recurring);
        if (details.cleared)
            cell.Cleared(*details.cleared);
        if (details.back_color)
            cell.BackColor(*details.back_color);
        if (details.fore_color)
            cell.ForeColor(*details.fore_color);
        if (details.icon_index)
            cell.IconIndex(*details.icon_index);
        if (details.has_details)
            cell.HasDetails(*details.has_details);
        if (!details.sort_text.empty())
            cell.SortText(details.sort_text);
        if (!details.text.empty())
            cell.Text(details.text);
    });
}

std::string CellWriter::GetPicture(int type, bool recurring, bool has_details) const {
    std::string name;
    if (type == 1)
        name = "call.gif";
    else if (type == 2)
        name = "meeting.gif";
    else if (type == 3)
        name = "todo.gif";
    if (has_details)
        name.insert(0, "wd");
    if (recurring)
        name.insert(0, "r");
    return here_.folders.in_program_folder(name);
}

std::string CellWriter::plus_picture() const { return here_.folders.in_program_folder("plus.gif"); }

void CellWriter::record_place(std::string_view activity_id, int row, int col) {
    ActivityCells.insert_or_assign(std::string(activity_id), std::to_string(row) + "|" + std::to_string(col));
}

} // namespace grid
