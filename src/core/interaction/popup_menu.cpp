#include "core/interaction/popup_menu.h"

namespace interaction {

void PopupMenu::prepare(const Click& click, const grid::clsMsgSchedCell& selected) {
    set_caption(click);
    set_visible(click);
    if (!click.MultiSelected)
        set_enabled(selected);
}

void PopupMenu::set_caption(const Click& click) {
    lookup_caption = "Create Lookup (All cells)";
    if (click.MultiSelected)
        lookup_caption = "Create Lookup (Selection)";
    if (click.on_title_row_only())
        lookup_caption = "Create Lookup (Column)";
    if (click.on_title_col_only())
        lookup_caption = "Create Lookup (Row)";
    if (click.on_corner())
        lookup_caption = "Create Lookup (All)";
}

void PopupMenu::set_visible(const Click& click) {
    mnuResetRowHeight.visible = click.ClickOnTitleCol && !click.MultiSelected;
    mnuResetColumnWidth.visible = click.ClickOnTitleRow && !click.MultiSelected;
    mnuSep4.visible = mnuResetColumnWidth.visible; // so the separator stays away from a row's title
    for (Entry* entry : {&mnupopSchedule, &mnupopReschedule, &mnupopDetails, &mnupopSend, &mnuSep1, &mnupopClear,
                         &mnuSep2, &mnupopGoto})
        entry->visible = !click.on_anything();
    // It belongs to a cell, so a selection of several shows the lookup alone.
    mnuPopRecurring.visible = !click.MultiSelected;
}

void PopupMenu::set_enabled(const grid::clsMsgSchedCell& selected) {
    const bool occupied = selected.IsOccupied();
    const bool open = occupied && !selected.Cleared();
    mnupopSchedule.enabled = !occupied;
    mnupopReschedule.enabled = occupied ? open : !selected.DependsOnActivity().empty();
    mnupopDetails.enabled = open;
    mnupopSend.enabled = open;
    mnupopClear.enabled = open;
    mnupopGoto.enabled = occupied;
    mnuPopRecurring.enabled = occupied && selected.Recurring();
}

} // namespace interaction
