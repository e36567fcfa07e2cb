#pragma once

#include <chrono>
#include <compare>
#include <cstdint>

namespace values {

// A wall-clock date and time: whole seconds since 1899-12-30 00:00. It knows no time zone, so daylight saving
// can't move an activity. The default value is the empty date, shown as 12:00:00 AM. Dates run from the year 100
// to 9999; arithmetic that leaves them fails with 5.
class DateTime {
public:
    constexpr DateTime() = default;
    // Takes what is no date too, as a database can hold it, but nothing further away than days can be counted.
    static constexpr DateTime from_seconds(std::int64_t seconds) {
        constexpr std::int64_t furthest = 86400 * (std::int64_t{1} << 40); // whole days
        DateTime result;
        result.seconds_ = seconds < -furthest ? -furthest : seconds > furthest ? furthest : seconds;
        return result;
    }
    // Months, days, hours, minutes and seconds outside their range roll over: the 31st of a month of 30 days
    // is the 1st of the next, month 13 is January of the next year.
    static DateTime of(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);
    // The time of day alone, on the empty date.
    static constexpr DateTime time_of_day(int hour, int minute, int second = 0) {
        return from_seconds(hour * 3600 + minute * 60 + second);
    }

    constexpr std::int64_t seconds() const { return seconds_; }
    bool is_date() const; // false for what from_seconds takes and no calendar has

    DateTime date() const;               // without its time of day
    DateTime time() const;               // the time of day on the empty date
    DateTime time_to_the_minute() const; // the same without its seconds

    int year() const;
    int month() const; // 1 to 12
    int day() const;   // 1 to 31
    int hour() const;
    int minute() const;
    int second() const;
    int weekday() const;               // 1 Sunday to 7 Saturday
    int weekday_from(int first) const; // 1 for the weekday `first` (1 Sunday) to 7 for the one before it

    DateTime plus_days(std::int64_t days) const;
    DateTime plus_minutes(std::int64_t minutes) const;
    // The day is kept where the month has it, else it is the month's last day; the time of day stays.
    DateTime plus_months(int months) const;

    friend constexpr auto operator<=>(DateTime, DateTime) = default;

private:
    std::int64_t seconds_ = 0;
};

// Whole days from the date of `from` to the date of `to`, negative when `to` is earlier. Times don't count.
std::int64_t days_between(DateTime from, DateTime to);

} // namespace values
