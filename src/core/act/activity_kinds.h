#pragma once

// What activities are told apart by. Fields, filters and the database's file hold the numbers.
namespace act {

enum class ActivityType { call = 0, meeting = 1, to_do = 2 };
enum class Priority { high = 0, medium = 1, low = 2 };
enum class RecurrenceKind { none = 0, daily = 1, weekly = 2, days_of_month = 3, weekdays_of_month = 4 };

// What a change of a series applies to: all of it, or the date alone that its record tells.
enum class RecurringChange { whole_series = 0, only_this = 1 };

} // namespace act
