#pragma once

#include "core/act/activity_kinds.h"
#include "core/values/date_time.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

// The records of the contact manager. Ids are texts of 12 characters; an empty id means none, and on a record
// that is about to be added, not yet given. Every member has a default, so that {.id = ...} makes a record.
namespace store {

using values::DateTime;

struct User {
    std::string id{};
    std::string name{};
    std::string security{}; // "Administrator", "Standard" or "Browse"
    std::string access{};   // "Enabled" or "Disabled"
};

struct Contact {
    std::string id{};
    std::map<int, std::string> fields{}; // by field number (contact_fields.h)
    std::int64_t revision = 0;
};

struct Group {
    std::string id{};
    std::string name{};
    std::vector<std::string> contacts{};
};

struct Note {
    std::string id{};
    std::string contact{};
    DateTime written{};
    std::string text{};
};

using act::ActivityType;
using act::Priority;
using act::RecurrenceKind;

struct Recurrence {
    RecurrenceKind kind = RecurrenceKind::none;
    int frequency = 1;               // days, weeks or months; the store never keeps less than 1
    std::optional<DateTime> until{}; // the last date; absent for a series without an end
    int days_of_week = 0;            // bit 0 Sunday to bit 6 Saturday
    int weeks_of_month = 0;          // bit 0 the first week to bit 4 the fifth
    std::uint32_t days_of_month = 0; // bit 0 the 1st to bit 30 the 31st

    bool operator==(const Recurrence&) const = default;
};

// The most minutes of a duration, and the last colour. What a file has beyond them isn't handed out.
inline constexpr int longest_duration = 32767;
inline constexpr std::int64_t last_colour = 0xFFFFFFFF;

struct Activity {
    std::string id{};
    DateTime edited{}; // set by the store at each change
    ActivityType type = ActivityType::meeting;
    Priority priority = Priority::low;
    std::string regarding{};
    std::optional<DateTime> start{}; // absent when imported data had none that could be read
    DateTime end{};                  // stored as start plus duration where it lies before the start
    int duration = 0;                // minutes; the store keeps 0 to longest_duration
    bool is_private = false;
    bool alarm = false;
    int alarm_lead = 0;                    // minutes; the store never keeps less than 0
    std::optional<std::uint32_t> colour{}; // blue, green, red from the high byte down
    std::string user{};                    // for whom it is scheduled
    std::string group{};
    std::vector<std::string> contacts{}; // the first is the activity's own contact
    bool cleared = false;
    std::string result{}; // how it ended, told when it was cleared
    std::string details{};
    Recurrence recurrence{};
    std::vector<DateTime> exceptions{}; // dates without an occurrence, rising
    std::int64_t revision = 0;          // rises with each change of any record; compares for changes since a read

    bool operator==(const Activity&) const = default;
};

} // namespace store
