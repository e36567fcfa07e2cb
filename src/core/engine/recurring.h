#pragma once

#include "core/act/session.h"
#include "core/act/user_list.h"
#include "core/engine/placing.h"
#include "core/grid/layout.h"
#include "core/host/guard.h"
#include "core/recurrence/starts.h"
#include "core/values/locale.h"

#include <string_view>

namespace engine {

// Expands the series of the activity list into the shown dates.
class Recurring {
public:
    Recurring(act::Session& session, const act::UserList& users, Placing& placing, const grid::Layout& layout,
              const values::Locale& locale, const host::Guard& guarded)
        : session_(session), users_(users), placing_(placing), layout_(layout), locale_(locale),
          guarded_(guarded) {}

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

    act::Session& session_;
    const act::UserList& users_;
    Placing& placing_;
    const grid::Layout& layout_;
    const values::Locale& locale_;
    const host::Guard& guarded_;
};

} // namespace engine
