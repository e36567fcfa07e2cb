#include "core/changes/scheduled_with.h"

#include "core/values/ids.h"
#include "core/values/text.h"
#include "core/values/value.h"

namespace changes {

ScheduledWith scheduled_with(act::Activity& activity) {
    ScheduledWith contacts{.first = activity.FirstScheduledWith(), .further = {}};
    do
        contacts.further.push_back(activity.NextScheduledWith());
    while (!contacts.further.back().empty());
    return contacts;
}

int schedule_with(act::Activity& activity, const ScheduledWith& contacts) {
    int count = contacts.first.empty() ? 0 : 1;
    activity.FirstScheduledWith(contacts.first);
    for (const std::string& contact : contacts.further) {
        if (values::length(contact) != values::id_length)
            break;
        activity.NextScheduledWith(contact);
        ++count;
    }
    return count;
}

void schedule_with_only(act::Activity& activity, const ScheduledWith& contacts) {
    const int kept = schedule_with(activity, contacts);
    for (int count = values::int32_of(activity.Data(act::activity_field::contact_count)); count > kept; --count)
        activity.NextScheduledWith("");
}

} // namespace changes
