#pragma once

#include "core/act/session.h"
#include "core/act/user_list.h"
#include "core/grid/cell.h"
#include "core/host/guard.h"
#include "core/values/locale.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace interaction {

// Whom an activity is scheduled with: its contact, and the further ones up to the empty text that ended the walk.
struct ScheduledWith {
    std::string first;
    std::vector<std::string> further;
};

// What an instance was when it was made, as texts.
struct InstanceSnapshot {
    std::map<int, std::string> fields; // by activity field
    ScheduledWith contacts;
};

// What the comparison of an instance with its snapshot tells.
enum class InstanceChange { none = 0, changed = 1, recurrence_touched = 2 };

// Occurrences of a series as records of their own: made, compared with what they were, copied to the series and
// given up. But for Change_Instance nothing here has a failure handler.
class Instances {
public:
    Instances(act::Session& session, const act::UserList& users, const values::Locale& locale,
              const host::Guard& guarded)
        : session_(session), users_(users), locale_(locale), guarded_(guarded) {}

    // Adds a record like the series on which the activity list stands, at the target's day and slot for so many
    // minutes and for the target's user; the source's day becomes an exception of the series. Gives the new id,
    // an empty text after a failure, which undoes nothing.
    std::string Change_Instance(const grid::clsMsgSchedCell& source, const grid::clsMsgSchedCell& target,
                                std::int32_t duration);
    // The cell's day becomes an exception of the cell's activity.
    void Add_Exception(const grid::clsMsgSchedCell& cell);
    // The day has its occurrence back.
    void Remove_Exception(const std::string& id, values::DateTime date);

    // Compares the record with the snapshot of the last Change_Instance.
    InstanceChange Compare_Instance(const std::string& id);
    // Copies everything but the dates.
    void Apply_To_Series(const std::string& instance, const std::string& series);
    // Deletes the instance; the cell's activity has its occurrence of that day back.
    void Delete_Instance(const std::string& id, const grid::clsMsgSchedCell& cell);

private:
    act::Activity& activity() const { return *session_.ActActivity; }
    ScheduledWith scheduled_with() const;
    int schedule_with(const ScheduledWith& contacts); // gives how many those are
    std::string user_of(const grid::clsMsgSchedCell& cell) const;
    std::string text(int field) const;

    act::Session& session_;
    const act::UserList& users_;
    const values::Locale& locale_;
    const host::Guard& guarded_;
    InstanceSnapshot snapshot_;
};

} // namespace interaction
