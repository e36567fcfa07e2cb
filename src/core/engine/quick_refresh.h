#pragma once

#include "core/act/connection.h"
#include "core/engine/placing.h"
#include "core/engine/recurring.h"
#include "core/grid/calendar_grid.h"

#include <optional>
#include <string>
#include <string_view>

namespace engine {

// The cheaper ways to bring the grid up to date between two full refreshes.
class QuickRefresh {
public:
    QuickRefresh(const host::Platform& here, const settings::Settings& settings, act::Connection& act,
                 grid::CalendarGrid& grid, Recurring& recurring)
        : here_(here), settings_(settings), act_(act), grid_(grid), placing_(recurring.placing()),
          recurring_(recurring) {}

    // The quick refresh: what changed or vanished since then is read again. Callers pass LastRefresh.
    void Add_New(DateTime since);
    // The id of the activity last in the list of those edited after that moment, followed by the displayed ids
    // that the list no longer holds.
    std::string Find_New(DateTime since);
    // Reads one activity again, from a new list without filters and scope, after clearing the selected cell or
    // not.
    enum class SelectedCell { stays, cleared };
    void Refresh_Activity(std::string id, SelectedCell selected);
    // What a command may have changed: the activity of the selected cell, and then a second one at a place of its
    // own, none where its id is empty. Nothing is known where neither is.
    struct Touched {
        bool selected = false;
        std::string second_id{};
        table::Place second_place{};
    };
    // After a command: the activity of the selected cell is read again where it was touched, and then the second
    // one, whose place becomes the selected cell; else a quick refresh finds out.
    void Ask_Refresh(const Touched& touched);
    // The contacts with whom the current activity is scheduled, appended to a list of ids that may hold them.
    std::string AddOtherIDs(std::string ids);
    // Takes the first cell that shows the activity off the grid, and its id out of DisplayedIDs.
    void Erase_Slot(std::string_view id);

private:
    std::optional<std::string> missing_without_walk(act::Activity& activity) const;
    void clear_cell_of(const std::string& id, std::string& treated);
    bool passes_filters(const act::Activity& activity) const;
    void place_single(act::Activity& activity);
    void place_series(act::Activity& activity);
    std::string text(const act::Activity& activity, int field) const;

    const host::Platform& here_;
    const settings::Settings& settings_;
    act::Connection& act_;
    grid::CalendarGrid& grid_;
    Placing& placing_;
    Recurring& recurring_;
};

} // namespace engine
