#include "core/changes/rewriting.h"

namespace changes {

void Rewriting::apply(act::Activity& activity) const {
    activity.Edit();
    if (record == Record::whole_series)
        activity.RecurringChangeMode(act::RecurringChange::whole_series);
    write_fields(activity, fields);
    activity.Update();
    if (contacts)
        schedule_with_only(activity, *contacts);
}

Rewriting Rewriting::inverse(act::Activity& activity) const {
    Rewriting back{.record = record, .fields = {}};
    for (const auto& [number, value] : fields)
        back.fields[number] = activity.Data(number);
    if (contacts)
        back.contacts = scheduled_with(activity);
    return back;
}

} // namespace changes
