#pragma once

#include "core/act/connection.h"
#include "core/changes/scheduled_with.h"
#include "core/grid/cell.h"
#include "core/host/platform.h"

#include <cstdint>
#include <map>
#include <string>

namespace interaction {

// What an instance was when it was made, as texts.
struct InstanceSnapshot {
    std::map<int, std::string> fields; // by activity field
    changes::ScheduledWith contacts;
};

// What the comparison of an instance with its snapshot tells.
enum class InstanceChange { none = 0, changed = 1, recurrence_touched = 2 };

// How long an instance is to stand: for good, or while it is edited. Should the program die meanwhile, the next
// one takes it back.
enum class Lifetime { lasting, temporary };

// Occurrences of a series as records of their own: made, compared with what they were, copied to the series and
// given up. But for Change_Instance nothing here has a failure handler.
class Instances {
public:
    Instances(const host::Platform& here, act::Connection& act) : here_(here), act_(act) {}

    // Adds a record like the series on which the activity list stands, at the target's day and slot for so many
    // minutes and for the target's user; the source's day becomes an exception of the series. Gives the new id,
    // an empty text after a failure, which undoes nothing.
    std::string Change_Instance(const grid::clsMsgSchedCell& source, const grid::clsMsgSchedCell& target,
                                std::int32_t duration, Lifetime lifetime = Lifetime::lasting);
    // A temporary instance stays for good, or is gone by other ways than Delete_Instance.
    void Keep(const std::string& id) { act_.session.ActDatabase->Forget_Instance(id); }
    // Whether the cell shows the first occurrence of the series, which is the series itself.
    bool is_first_occurrence(const std::string& series, const grid::clsMsgSchedCell& cell);

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
    act::Activity& activity() { return *act_.session.ActActivity; }
    std::string user_of(const grid::clsMsgSchedCell& cell);
    std::string text(int field);

    const host::Platform& here_;
    act::Connection& act_;
    InstanceSnapshot snapshot_;
};

} // namespace interaction
