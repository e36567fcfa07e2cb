#include "core/interaction/instances.h"

#include "core/interaction/cell_times.h"
#include "core/values/ids.h"
#include "core/values/text.h"
#include "core/values/text_forms.h"
#include "core/values/value.h"

#include <span>

namespace interaction {

namespace field = act::activity_field;
using values::DateTime;
using values::Value;

namespace {

std::map<int, Value> read_fields(const act::Activity& activity, std::initializer_list<int> numbers) {
    std::map<int, Value> fields;
    for (const int number : numbers)
        fields[number] = activity.Data(number);
    return fields;
}

// In rising order.
void write_fields(act::Activity& activity, const std::map<int, Value>& fields) {
    for (const auto& [number, value] : fields)
        activity.Data(number, value);
}

} // namespace

std::string Instances::Change_Instance(const grid::clsMsgSchedCell& source, const grid::clsMsgSchedCell& target,
                                       std::int32_t duration) {
    return guarded_("in frmMain: Function Change_Instance - Line # ", [&](host::Step& step) {
        step = 10;
        const DateTime start = start_of(target, locale_);
        const DateTime end = start.plus_minutes(duration);
        step = 20;
        std::map<int, Value> fields = read_fields(
            activity(), {field::is_private, field::alarm_lead, field::duration, field::regarding, field::type,
                         field::priority, field::details, field::colour, field::alarm, field::group});
        step = 30;
        const ScheduledWith contacts = scheduled_with();
        step = 40;
        fields[field::start] = start;
        fields[field::end] = end;
        fields[field::scheduled_for] = user_of(target);
        step = 50;
        activity().Add();
        step = 60;
        write_fields(activity(), fields);
        step = 70;
        std::string id = activity().Update();
        step = 80;
        activity().Goto(id);
        step = 90;
        schedule_with(contacts);
        step = 100;
        Add_Exception(source);
        step = 110;
        snapshot_ = {.fields = {}, .contacts = contacts};
        for (const auto& [number, value] : fields)
            snapshot_.fields[number] = values::text_of(value, locale_);
        return id;
    });
}

void Instances::Add_Exception(const grid::clsMsgSchedCell& cell) {
    activity().Goto(cell.ActivityID());
    activity().ExceptionInfo().Add(cell.DateDay());
}

void Instances::Remove_Exception(const std::string& id, DateTime date) {
    activity().Goto(id);
    activity().ExceptionInfo().Remove(date);
}

InstanceChange Instances::Compare_Instance(const std::string& id) {
    activity().Goto(id);
    if (activity().recurringType() != act::RecurrenceKind::none)
        return InstanceChange::recurrence_touched;
    for (const int number : {field::type, field::priority, field::regarding, field::start, field::end,
                             field::duration, field::alarm, field::alarm_lead, field::colour, field::scheduled_for,
                             field::group, field::details, field::duration, field::is_private})
        if (text(number) != snapshot_.fields[number])
            return InstanceChange::changed;
    if (activity().FirstScheduledWith() != snapshot_.contacts.first)
        return InstanceChange::changed;
    for (const std::string& contact : snapshot_.contacts.further)
        if (activity().NextScheduledWith() != contact)
            return InstanceChange::changed;
    return InstanceChange::none;
}

void Instances::Apply_To_Series(const std::string& instance, const std::string& series) {
    activity().Goto(instance);
    const std::map<int, Value> fields =
        read_fields(activity(), {field::is_private, field::alarm_lead, field::duration, field::regarding,
                                 field::type, field::priority, field::details, field::colour, field::alarm,
                                 field::scheduled_for, field::group});
    const ScheduledWith contacts = scheduled_with();
    activity().Goto(series);
    activity().Edit();
    activity().RecurringChangeMode(act::RecurringChange::whole_series);
    write_fields(activity(), fields);
    activity().Update();
    // Whom the user took out of the instance goes from the series as well.
    const int kept = schedule_with(contacts);
    for (int count = values::int32_of(activity().Data(field::contact_count)); count > kept; --count)
        activity().NextScheduledWith("");
}

void Instances::Delete_Instance(const std::string& id, const grid::clsMsgSchedCell& cell) {
    activity().Goto(id);
    activity().Delete();
    Remove_Exception(cell.ActivityID(), cell.DateDay());
}

ScheduledWith Instances::scheduled_with() const {
    ScheduledWith contacts{.first = activity().FirstScheduledWith(), .further = {}};
    do
        contacts.further.push_back(activity().NextScheduledWith());
    while (!contacts.further.back().empty());
    return contacts;
}

int Instances::schedule_with(const ScheduledWith& contacts) {
    int count = contacts.first.empty() ? 0 : 1;
    activity().FirstScheduledWith(contacts.first);
    for (const std::string& contact : contacts.further) {
        if (values::length(contact) != values::id_length)
            break;
        activity().NextScheduledWith(contact);
        ++count;
    }
    return count;
}

// A row that belongs to nobody leaves the occurrence with the series' user.
std::string Instances::user_of(const grid::clsMsgSchedCell& cell) const {
    const auto user = users_.UserNameToId.find(std::string(cell.User()));
    return user != users_.UserNameToId.end() ? user->second : text(field::scheduled_for);
}

std::string Instances::text(int number) const { return values::text_of(activity().Data(number), locale_); }

} // namespace interaction
