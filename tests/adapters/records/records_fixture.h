#pragma once

#include "adapters/records/desk_database.h"
#include "core/values/failure.h"
#include "support/failure_number.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace support {

using act::Value;
using values::DateTime;

inline const DateTime monday = DateTime::of(2024, 3, 11);

inline std::string text(const Value& value) { return values::text_of(value, values::english_us()); }

// A meeting of an hour on that day of the week from Monday on, at that hour.
inline store::Activity meeting(const std::string& regarding, int day = 0, int hour = 10) {
    store::Activity activity;
    activity.regarding = regarding;
    activity.start = monday.plus_days(day).plus_minutes(60 * hour);
    activity.duration = 60;
    return activity;
}

inline store::Activity daily(const std::string& regarding, int day = 0, int hour = 10) {
    store::Activity activity = meeting(regarding, day, hour);
    activity.recurrence.kind = store::RecurrenceKind::daily;
    return activity;
}

// The subjects of a list from where it stands to its end.
inline std::string rest_of(act::Activity& list) {
    std::string names;
    for (; !list.isEOF(); list.MoveNext())
        names += text(list.Data(act::activity_field::regarding)) + " ";
    return names;
}

// A database that the calendar has open beside a store through which the desk changes it.
class DeskData : public testing::Test {
protected:
    TemporaryDatabase file;
    store::Store& store = file.store();
    std::unique_ptr<act::Database> database = records::make_database([this] { return file.path(); });

    void SetUp() override { database->OpenEx(""); }
};

} // namespace support
