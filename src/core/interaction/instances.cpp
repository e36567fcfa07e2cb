#include "core/interaction/instances.h"

#include "core/changes/addition.h"
#include "core/changes/rewriting.h"
#include "core/interaction/cell_times.h"
#include "core/values/value.h"

namespace interaction {

namespace field = act::activity_field;
using values::DateTime;

std::string Instances::Change_Instance(const grid::clsMsgSchedCell& source, const grid::clsMsgSchedCell& target,
                                       std::int32_t duration, Lifetime lifetime) {
    return here_.guarded("in frmMain: Function Change_Instance - Line # ", [&](host::Step& step) {
        step = 10;
        const DateTime start = start_of(target, here_.locale);
        const DateTime end = start.plus_minutes(duration);
        step = 20;
        changes::Addition instance{
            .fields = changes::read_fields(
                activity(), {field::is_private, field::alarm_lead, field::duration, field::regarding, field::type,
                             field::priority, field::details, field::colour, field::alarm, field::group}),
            .contacts = {}};
        step = 30;
        instance.contacts = changes::scheduled_with(activity());
        step = 40;
        instance.fields[field::start] = start;
        step = 50;
        instance.fields[field::end] = end;
        step = 60;
        instance.fields[field::scheduled_for] = user_of(target);
        step = 70;
        if (lifetime == Lifetime::temporary)
            instance.stands_for = occurrence_in(source);
        std::string id = instance.store(activity());
        step = 80;
        activity().Goto(id);
        step = 90;
        changes::schedule_with(activity(), instance.contacts);
        step = 100;
        Add_Exception(source);
        step = 110;
        snapshot_ = {.fields = {}, .contacts = instance.contacts};
        for (const auto& [number, value] : instance.fields)
            snapshot_.fields[number] = values::text_of(value, here_.locale);
        if (lifetime == Lifetime::temporary)
            act_.session.ActDatabase->Instance_Is_Made(id);
        return id;
    });
}

bool Instances::is_first_occurrence(const std::string& series, const grid::clsMsgSchedCell& cell) {
    activity().Goto(series);
    const auto start = values::date_of(activity().Data(field::start), here_.locale);
    return start && start->date() == cell.DateDay();
}

void Instances::Add_Exception(const grid::clsMsgSchedCell& cell) { occurrence_in(cell).except(activity()); }

void Instances::Remove_Exception(const std::string& id, DateTime date) {
    changes::Occurrence{.series = id, .day = date}.undo(activity());
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

// Whom the user took out of the instance goes from the series as well.
void Instances::Apply_To_Series(const std::string& instance, const std::string& series) {
    activity().Goto(instance);
    changes::Rewriting change{.record = changes::Rewriting::Record::whole_series,
                              .fields = changes::read_fields(
                                  activity(), {field::is_private, field::alarm_lead, field::duration,
                                               field::regarding, field::type, field::priority, field::details,
                                               field::colour, field::alarm, field::scheduled_for, field::group})};
    change.contacts = changes::scheduled_with(activity());
    activity().Goto(series);
    change.apply(activity());
}

void Instances::Delete_Instance(const std::string& id, const grid::clsMsgSchedCell& cell) {
    changes::Addition::undo(activity(), id);
    occurrence_in(cell).undo(activity());
    Keep(id);
}

// A row that belongs to nobody leaves the occurrence with the series' user.
std::string Instances::user_of(const grid::clsMsgSchedCell& cell) {
    const auto user = act_.users.UserNameToId.find(std::string(cell.User()));
    return user != act_.users.UserNameToId.end() ? user->second : text(field::scheduled_for);
}

std::string Instances::text(int number) { return values::text_of(activity().Data(number), here_.locale); }

} // namespace interaction
