#pragma once

#include "core/act/connection.h"
#include "core/engine/placing.h"
#include "core/grid/layout.h"
#include "core/recurrence/starts.h"

#include <string_view>

namespace engine {

// Expands the series of the activity list into the shown dates.
class Recurring {
public:
    Recurring(const host::Platform& here, act::Connection& act, const grid::Layout& layout, Placing& placing)
        : here_(here), act_(act), layout_(layout), placing_(placing) {}

    Placing& placing() { return placing_; }

    // Every series of the list, with its filters and without its date scope. The list is at its end afterwards.
    void Treat_Recurring();
    // The current record by its kind; nothing for one that is no series. `duration` is in minutes.
    void treat_series(DateTime start, int duration);

    void Treat_Daily(DateTime start, int duration);
    void Treat_Weekly(DateTime start, int duration);
    void Treat_Custom(DateTime start, int duration);
    void Treat_Monthly(DateTime start, int duration);
    // Whether the current record has no occurrence on that date.
    bool Exception(DateTime date);

private:
    using Walk = void (*)(const recurrence::Rule&, const recurrence::ShownDates&, const recurrence::Visitor&);
    void treat(std::string_view place, Walk walk, DateTime start, int duration);

    const host::Platform& here_;
    act::Connection& act_;
    const grid::Layout& layout_;
    Placing& placing_;
};

} // namespace engine
