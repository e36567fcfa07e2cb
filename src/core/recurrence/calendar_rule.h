#pragma once

#include "core/values/date_time.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

// Rules of recurrence as calendar files have them (RFC 5545, 3.3.10). They are richer than what a series of the
// contact manager can be.
namespace recurrence {

using values::DateTime;

// Whole numbers from Least to Most.
template <int Least, int Most>
class Numbers {
public:
    // False when the number is outside.
    bool add(int number) {
        const bool fits = number >= Least && number <= Most;
        if (fits)
            bits_.set(static_cast<std::size_t>(number - Least));
        return fits;
    }
    bool has(int number) const {
        return number >= Least && number <= Most && bits_.test(static_cast<std::size_t>(number - Least));
    }
    bool empty() const { return bits_.none(); }
    std::vector<int> all() const { // rising
        std::vector<int> numbers;
        for (int number = Least; number <= Most; ++number)
            if (has(number))
                numbers.push_back(number);
        return numbers;
    }

private:
    std::bitset<static_cast<std::size_t>(Most - Least + 1)> bits_;
};

enum class Step { secondly, minutely, hourly, daily, weekly, monthly, yearly };

// The last moment of a rule.
struct RuleEnd {
    DateTime time{};
    bool is_date = false; // the whole day
    bool is_utc = false;  // else wall-clock time where the rule holds
};

// An empty list sets no condition. Numbers below zero count from the end.
struct CalendarRule {
    Step step = Step::daily;
    std::int64_t interval = 1;
    int week_start = 2; // 1 Sunday to 7 Saturday
    std::optional<std::int64_t> count{};
    std::optional<RuleEnd> until{};
    Numbers<1, 12> months{};
    Numbers<-53, 53> weeks{};
    Numbers<-366, 366> year_days{};
    Numbers<-31, 31> month_days{};
    // For 1 Sunday to 7 Saturday: which ones of the month or the year; 0 for each. [0] is never used.
    std::array<Numbers<-53, 53>, 8> weekdays{};
    Numbers<0, 23> hours{};
    Numbers<0, 59> minutes{};
    Numbers<0, 59> seconds{};
    Numbers<-366, 366> positions{}; // which of the dates of one step

    bool has_weekdays() const;
};

// From a text as "FREQ=WEEKLY;COUNT=5". Absent when it is no rule, or one in another calendar than the Gregorian.
std::optional<CalendarRule> calendar_rule_of(std::string_view text);

// From a text as "20240311T090000Z" or "20240311". Absent when there is no such moment.
std::optional<RuleEnd> moment_of(std::string_view text);

} // namespace recurrence
