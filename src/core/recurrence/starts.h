#pragma once

#include "core/values/date_time.h"

#include <array>
#include <functional>
#include <optional>

// From the rule of a series to the starts that lie in the shown dates. Nothing here knows a list or a grid. Every
// walk gives exactly the starts that stepping on from the series' own start would give, in that order, but
// passes over the steps before the shown dates by arithmetic. The odd corners are wanted: they define what the
// calendar shows.
namespace recurrence {

using values::DateTime;

// What the store says of a series. A step below 1 counts as 1.
struct Rule {
    DateTime start;         // its time of day is that of every occurrence
    int frequency = 1;      // the step in days, weeks or months
    DateTime until;         // the last date
    int days_of_week = 0;   // bit 0 Sunday to bit 6 Saturday
    int weeks_of_month = 0; // bit 0 the first week to bit 4 the fifth
    int days_of_month = 0;  // bit 0 the 1st to bit 30 the 31st
};

// The first and the last shown date, both without a time of day. EndDate isn't before StartDate.
struct ShownDates {
    DateTime StartDate;
    DateTime EndDate;
};

// Whom a walk asks and tells. Only dates in the shown range are asked about.
struct Visitor {
    std::function<bool(DateTime)> Exception;  // the series has no occurrence on that date
    std::function<void(DateTime)> occurrence; // the start of one occurrence
};

// The date alone, as which dates are compared here: their times don't count.
inline DateTime Form_Dat(DateTime date) { return date.date(); }
bool InRange(DateTime date, const ShownDates& shown);
// From the first of StartDate's month to the end of EndDate's month, both in StartDate's year: false for every
// date where the shown dates cross a new year.
bool InMonth(DateTime date, const ShownDates& shown);

// Flags by number, from 1; [0] is never set. Bits beyond the last number set every flag.
std::array<bool, 8> GetDays(int days_of_week_bits);
std::array<bool, 6> GetWeek(int weeks_of_month_bits);
std::array<bool, 32> GetUniqueDays(int days_of_month_bits);

// A weekday in a week of a month.
struct WeekdayOfMonth {
    int day;  // 1 Sunday to 7 Saturday
    int week; // 1 the first to 5 the fifth
    int month;
    int year;
    bool week_4_flagged = false; // the rule names the fourth week too
};

// Its date. A fifth week that the month doesn't have gives the fourth, or nothing where week 4 is flagged itself;
// in December it runs on into January.
std::optional<DateTime> GetDateOfDay(const WeekdayOfMonth& wanted);

void daily_starts(const Rule& rule, const ShownDates& shown, const Visitor& visitor);
void weekly_starts(const Rule& rule, const ShownDates& shown, const Visitor& visitor);
// Days of the month. The year is StartDate's; a day that the month doesn't have rolls over, and the days after it
// go on from there.
void custom_starts(const Rule& rule, const ShownDates& shown, const Visitor& visitor);
// Weekdays in weeks of the month, always the month in which the series starts. Fails with 13 (type mismatch) at
// the first date that GetDateOfDay doesn't give; the starts before it stay told.
void monthly_starts(const Rule& rule, const ShownDates& shown, const Visitor& visitor);

} // namespace recurrence
