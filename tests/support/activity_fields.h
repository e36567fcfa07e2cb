#pragma once

#include "core/act/activity.h"
#include "desk/store/records.h"

#include <string>
#include <vector>

// One table of the numbered fields of an activity, for the list that the calendar reads in the database's file and
// the one that the running desk shows to other programs.
namespace support {

// An activity with all fields set, each to a value of its own.
inline store::Activity full_activity() {
    const values::DateTime monday = values::DateTime::of(2024, 3, 11);
    return {.id = "0000000001A ",
            .edited = values::DateTime::of(2024, 3, 1, 12, 30),
            .type = store::ActivityType::to_do,
            .priority = store::Priority::medium,
            .regarding = "Überprüfung",
            .start = monday.plus_minutes(600),
            .end = monday.plus_minutes(675),
            .duration = 60,
            .is_private = true,
            .alarm = true,
            .alarm_lead = 10,
            .colour = 0x8B0000,
            .user = "99887766554 ",
            .group = "G00000000007",
            .contacts = {"C00000000008", "C00000000009"},
            .cleared = true,
            .details = "Bring the papers"};
}

struct ActivityFieldCase {
    int number;
    act::Value value; // as the calendar reads it
    std::string text; // as the desk's list shows it, in American English
};

inline std::vector<ActivityFieldCase> fields_of_full_activity() {
    namespace field = act::activity_field;
    const store::Activity full = full_activity();
    const auto whole = [](int number) { return act::Value(std::int64_t{number}); };
    return {{field::id, full.id, full.id},
            {field::edited, full.edited, "3/1/2024 12:30:00 PM"},
            {field::is_private, whole(1), "1"},
            {field::type, whole(2), "2"},
            {field::priority, whole(1), "1"},
            {field::regarding, full.regarding, full.regarding},
            {field::start, *full.start, "3/11/2024 10:00:00 AM"},
            {field::end, full.end, "3/11/2024 11:15:00 AM"},
            {field::duration, whole(60), "60"},
            {field::alarm, whole(1), "1"},
            {field::alarm_lead, whole(10), "10"},
            {field::colour, std::string("9109504"), "9109504"},
            {field::scheduled_for, full.user, full.user},
            {field::group, full.group, full.group},
            {field::contact, full.contacts.front(), full.contacts.front()},
            {field::cleared, std::string("1"), "1"},
            {field::details, full.details, full.details},
            {field::contact_count, whole(2), "2"},
            {field::occurrence_length, whole(75), "75"},
            {field::date, full.start->date(), "3/11/2024"},
            {2, act::Value(), ""},
            {999, act::Value(), ""}};
}

} // namespace support
