#pragma once

#include "core/act/activity_kinds.h"
#include "core/values/date_time.h"
#include "core/values/value.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace act {

using values::DateTime;
using values::Value;

// Numbers of the activity fields.
namespace activity_field {
inline constexpr int id = 1;
inline constexpr int edited = 3;
inline constexpr int is_private = 5;
inline constexpr int type = 25;     // ActivityType
inline constexpr int priority = 26; // Priority
inline constexpr int regarding = 27;
inline constexpr int start = 28;
inline constexpr int end = 29;
inline constexpr int duration = 30; // minutes
inline constexpr int alarm = 32;
inline constexpr int alarm_lead = 33;    // minutes
inline constexpr int colour = 34;        // decimal text, or empty
inline constexpr int scheduled_for = 37; // the user's id
inline constexpr int group = 39;         // the group's id
inline constexpr int contact = 40;       // the contact's id
inline constexpr int cleared = 41;       // "1" or "0"
inline constexpr int details = 45;
inline constexpr int contact_count = 100;
inline constexpr int occurrence_length = 101; // minutes from start to end, which needn't be the duration
inline constexpr int date = 200;
} // namespace activity_field

// The dates on which a series has no occurrence. They belong to the record that was current when the object was
// asked for; changes are stored at once.
class ExceptionInfo {
public:
    virtual ~ExceptionInfo() = default;
    virtual int Count() const = 0;
    virtual Value value(int index) const = 0; // from 1; fails with 9 outside 1 to Count
    virtual void Add(DateTime date) = 0;      // a date that is already there stays single
    virtual void Remove(DateTime date) = 0;   // an absent date is no failure
};

// The list of activities, ordered by start and then by id, with a current record. Every filter and scope takes
// effect at once and leaves the list on its first record. A member that needs a current record fails with 91
// where there is none, a store that can't answer with 440.
class Activity {
public:
    virtual ~Activity() = default;

    virtual void Rebuild() = 0; // reads the store afresh and stands on the first record
    virtual void MoveFirst() = 0;
    virtual void MoveNext() = 0; // beyond the last record isEOF holds
    virtual bool isEOF() const = 0;
    // Moves on, if the list knows of records from the current one on that are no series, start after `to` or end
    // before `from`, over those; to its end when no other follow. A walk for the series of these dates is so
    // spared the rest.
    virtual void SkipToRecurring([[maybe_unused]] DateTime from, [[maybe_unused]] DateTime to) {}
    // The same over records that weren't edited later than that.
    virtual void SkipToEdited([[maybe_unused]] DateTime since) {}
    // Of ids that were in the list at that moment of its database or came into it later, those that no record of
    // the list has now, in their order. None where only a walk over the list can tell.
    virtual std::optional<std::vector<std::string_view>>
    IdsGoneSince([[maybe_unused]] std::span<const std::string_view> ids, [[maybe_unused]] std::int64_t moment) {
        return std::nullopt;
    }
    // The character with which the ids of all activities of the database begin. None where they differ in it, or
    // where only a walk can tell.
    virtual std::optional<char> FirstCharacterOfIds() { return std::nullopt; }
    // Stands on the record of that id, inside the filters or not, and MoveNext goes on after it. False when it
    // doesn't exist: there is no current record then, and Data gives nothing.
    virtual bool Goto(const std::string& id) = 0;

    // Starts at or after `from` and before `to`.
    virtual void SetDateScope(DateTime from, DateTime to) = 0;
    virtual void ClearDateScope() = 0;
    virtual void SetTypeFilter(ActivityType type) = 0; // keeps that type out, beside those kept out before
    virtual void ClearTypeFilter() = 0;
    virtual void SetPriorityFilter(Priority priority) = 0; // keeps that priority out
    virtual void ClearPriorityFilter() = 0;
    virtual void SetClearedFilter() = 0; // keeps cleared activities out
    virtual void ClearClearedFilter() = 0;

    virtual Value Data(int field) const = 0;              // a field that there is not gives nothing
    virtual void Data(int field, const Value& value) = 0; // only between Edit or Add and Update
    // Whether Data(45) isn't empty, for which a list needn't read a long text.
    virtual bool HasDetails() const {
        const Value details = Data(activity_field::details);
        const auto* text = std::get_if<std::string>(&details);
        return text ? !text->empty() : !std::holds_alternative<std::monostate>(details);
    }

    virtual void Edit() = 0;
    virtual void Add() = 0; // a new record, unseen by others until Update
    // Stores the change durably as a whole and gives the record's id. Fails with an EditConflict (edit_conflict.h)
    // and stores nothing when another process changed or deleted the record since Edit.
    virtual std::string Update() = 0;
    virtual void Delete() = 0;
    // The record that Add began stands for the occurrence of a series on a day as long as that is edited. From its
    // Update on the database remembers that (database.h).
    virtual void StandsFor([[maybe_unused]] const std::string& series, [[maybe_unused]] DateTime day) {}

    virtual bool isRecurring() const = 0;
    virtual RecurrenceKind recurringType() const = 0;
    virtual int GetRecurringFrequency() const = 0;      // the step in days, weeks or months; at least 1
    virtual DateTime GetRecurringUntilDate() const = 0; // 31 December 2099 for a series without an end
    virtual int GetDaysOfWeekBits() const = 0;          // bit 0 Sunday to bit 6 Saturday
    virtual int GetDaysOfMonthBits() const = 0;         // bit 0 the 1st to bit 30 the 31st
    virtual int GetWeeksOfMonthBits() const = 0;        // bit 0 the first week to bit 4 the fifth
    virtual class ExceptionInfo& ExceptionInfo() = 0;
    virtual void RecurringChangeMode(RecurringChange change) = 0; // how the next Update applies to a series

    // Walk the contacts of the activity, its first one first; an empty text ends the walk. With an argument they
    // set the contact at the walk's place, at once.
    virtual std::string FirstScheduledWith() = 0;
    virtual std::string NextScheduledWith() = 0;
    virtual void FirstScheduledWith(const std::string& contact) = 0;
    virtual void NextScheduledWith(const std::string& contact) = 0;
};

} // namespace act
