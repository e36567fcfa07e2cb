#pragma once

#include "core/recurrence/starts.h"

#include <chrono>
#include <vector>

// The rules of recurrence stepped one after the other from the series' start, over the standard calendar types:
// slow and plain, to hold the quick walks against.
namespace plain {

using Day = std::chrono::sys_days;
using Month = std::chrono::year_month;

struct Rule {
    int kind; // 1 daily, 2 weekly, 3 days of the month, 4 weekdays of it
    Day start;
    int seconds; // the start's time of day
    int frequency;
    Day until;
    int days_of_week, weeks_of_month, days_of_month;
};

struct Start {
    Day day;
    int seconds;
    bool operator==(const Start&) const = default;
};

struct Result {
    std::vector<Start> starts;
    bool failed = false; // the walk ended at a date that is none
};

inline std::chrono::year_month_day date_of(Day day) { return std::chrono::year_month_day(day); }
inline Day day_of(Month month, int day) { return Day(month / 1) + std::chrono::days(day - 1); }
inline Month month_of(Day day) { return date_of(day).year() / date_of(day).month(); }
inline int weekday_of(Day day) { return static_cast<int>(std::chrono::weekday(day).c_encoding()) + 1; }

class Walk {
public:
    Walk(const Rule& rule, Day first, Day last, const std::vector<Day>& exceptions)
        : rule_(rule), first_(first), last_(last), exceptions_(exceptions) {}

    Result result() {
        switch (rule_.kind) {
        case 1:
            daily();
            break;
        case 2:
            weekly();
            break;
        case 3:
            custom();
            break;
        case 4:
            monthly();
            break;
        }
        return result_;
    }

private:
    bool in_range(Day day) const { return first_ <= day && day <= last_; }
    bool is_exception(Day day) const {
        for (const Day exception : exceptions_)
            if (exception == day)
                return true;
        return false;
    }
    bool in_month(Day day) const {
        const auto year = date_of(first_).year();
        const Day from = Day(year / date_of(first_).month() / 1);
        const Day to = Day((year / date_of(last_).month() + std::chrono::months(1)) / 1);
        return from <= day && day < to;
    }
    static std::vector<int> flagged(int bits, int highest) {
        std::vector<int> numbers;
        for (int number = highest; number >= 1; --number) {
            const int power = 1 << (number - 1);
            if (power > bits)
                continue;
            numbers.insert(numbers.begin(), number);
            if (power == bits)
                break;
            bits -= power;
        }
        return numbers;
    }
    static bool has(const std::vector<int>& numbers, int number) {
        for (const int one : numbers)
            if (one == number)
                return true;
        return false;
    }
    static Day plus_months(Day day, int months) {
        const Month month = month_of(day) + std::chrono::months(months);
        const Day last = Day(month / std::chrono::last);
        const int wanted = static_cast<int>(unsigned(date_of(day).day()));
        const int longest = static_cast<int>(unsigned(date_of(last).day()));
        return day_of(month, wanted < longest ? wanted : longest);
    }

    void step_from(Day day, int days) {
        while (true) {
            if (in_range(day) && !is_exception(day))
                result_.starts.push_back({day, rule_.seconds});
            day += std::chrono::days(days);
            if (day > last_ || day > rule_.until)
                return;
        }
    }
    void daily() { step_from(rule_.start, rule_.frequency); }
    void weekly() {
        for (const int weekday : flagged(rule_.days_of_week, 7)) {
            const int start = weekday_of(rule_.start);
            const int ahead = weekday >= start ? weekday - start : weekday + 7 - start;
            step_from(rule_.start + std::chrono::days(ahead), 7 * rule_.frequency);
        }
    }

    // False when there is nothing to show.
    bool step_to_month(Day& day) const {
        while (!in_month(day)) {
            day = plus_months(day, rule_.frequency);
            if (day > last_)
                return false;
        }
        return true;
    }
    void show(Day day) {
        if (in_range(day) && day <= rule_.until && !is_exception(day))
            result_.starts.push_back({day, rule_.seconds / 60 * 60});
    }
    void custom() {
        Day day = rule_.start;
        if (!step_to_month(day))
            return;
        for (const int number : flagged(rule_.days_of_month, 31)) {
            day = day_of(date_of(first_).year() / date_of(day).month(), number);
            show(day);
        }
    }
    void monthly() {
        const std::vector<int> weeks = flagged(rule_.weeks_of_month, 5);
        Day day = rule_.start;
        if (!step_to_month(day))
            return;
        const unsigned month = unsigned(date_of(rule_.start).month());
        for (const int weekday : flagged(rule_.days_of_week, 7))
            for (const int week : weeks) {
                const Day first = Day(date_of(day).year() / std::chrono::month(month) / 1);
                int wanted = weekday;
                if (wanted < weekday_of(first))
                    wanted += 7;
                Day found = first + std::chrono::days(wanted - weekday_of(first)) + std::chrono::weeks(week - 1);
                if (week == 5 && unsigned(date_of(found).month()) > month) {
                    if (has(weeks, 4)) {
                        result_.failed = true;
                        return;
                    }
                    found -= std::chrono::weeks(1);
                }
                day = found;
                show(day);
            }
    }

    Rule rule_;
    Day first_, last_;
    const std::vector<Day>& exceptions_;
    Result result_;
};

} // namespace plain
