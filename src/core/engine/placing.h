#pragma once

#include "core/act/connection.h"
#include "core/engine/cell_text.h"
#include "core/engine/displayed_ids.h"
#include "core/engine/slot_table.h"
#include "core/grid/layout.h"
#include "core/values/value.h"

#include <cstdint>
#include <string>
#include <unordered_map>

namespace engine {

using values::DateTime;

// Which colour an activity has in the grid; other numbers make it black.
enum class ActyColors { own = 0, fixed = 1, of_user = 2 };

// Puts single occurrences into the slots of the grid.
class Placing {
public:
    Placing(const host::Platform& here, const settings::Settings& settings, act::Connection& act,
            grid::Layout& layout, CellText& cell_text)
        : here_(here), settings_(settings), act_(act), layout_(layout), cell_text_(cell_text) {}

    DateTime LastRefresh; // when the last refresh of any kind began
    // Read at each full refresh.
    int ShowActyColorsMode = 0; // as ActyColors
    std::string FixedActyColor = "&H0";
    // The activities placed since then.
    DisplayedIds DisplayedIDs;
    std::int64_t displayed_from = 0; // the database's moment from which on they were

    // Takes from the settings what placing needs: slots, extra fields, users' colours. Each refresh begins so.
    void read_settings();

    // Places an occurrence of the current activity that starts at `date` and takes `duration` minutes. One that
    // finds no slot is dropped.
    enum class Kind { single, of_series };
    void Treat_Activity(DateTime date, int duration, Kind kind);
    // How many slots, counted from the given one, an occurrence covers that ends at that time; the date doesn't
    // count. Has no failure handler.
    int GetSlotSpan(grid::SlotNumber first_slot, DateTime end_time) const {
        return slots_.span(first_slot, end_time);
    }

private:
    // What an activity's occurrences have in common, as its slots get it.
    struct Shared {
        std::string own_colour{}, contact{}, type{}, id{};
        bool cleared = false;
        std::string user{};
        bool has_details = false;
        // Composed once an occurrence has found its slot, empty before.
        std::string colour{}, text{}, sort_text{};
    };
    std::string colour_of(const std::string& own_colour, const std::string& user_id);
    const std::string& user_name(const std::string& user_id) const;
    std::string start_text(const values::Value& start);
    const std::string& date_text(DateTime date);

    const host::Platform& here_;
    const settings::Settings& settings_;
    act::Connection& act_;
    grid::Layout& layout_;
    CellText& cell_text_;
    SlotTable slots_;
    Shared last_; // of the last activity, since the occurrences of a series follow one another
    std::unordered_map<std::string, std::string> user_colours_; // by name, as far as they were needed
    // Days by themselves and times by themselves as text, by their seconds: of these there are few.
    std::unordered_map<std::int64_t, std::string> date_texts_;
};

} // namespace engine
