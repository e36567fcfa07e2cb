#pragma once

#include "core/act/activity.h"
#include "core/values/locale.h"
#include "desk/store/activity_reading.h"

#include <set>

// The numbered fields of an activity.
namespace records {

// The fields that the entry of an activity tells; nothing for any other field.
bool is_entry_field(int field);
act::Value entry_field(const store::ActivityEntry& entry, int field);
// A field of the row, but for the details; nothing for a field that there is not.
act::Value row_field(const store::ActivityRow& row, int field);
// The row that a record is going to have.
store::ActivityRow row_of(const store::Activity& activity);

// Writes a field into a record. Fails with 13 for a value of a wrong type, 380 for one that the field can't have,
// 381 for a field that there is not, and 440 for one that the store alone sets.
void set_field(store::Activity& activity, int field, const act::Value& value, const values::Locale& locale);

// Brings start, end and duration of a record in line after the fields `written` were set. What was written stays
// as it was written. Where only the start was, or only the duration, the end becomes the start plus the duration;
// where the end was but not the duration, that of a plain activity becomes the time between them. The duration of
// a series stays its own.
void settle_times(store::Activity& activity, const std::set<int>& written);

} // namespace records
