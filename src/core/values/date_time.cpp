#include "core/values/date_time.h"

#include "core/values/failure.h"

#include <algorithm>

namespace values {

namespace {

using std::chrono::days;
using std::chrono::floor;
using std::chrono::seconds;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr sys_days empty_date = sys_days(std::chrono::year(1899) / 12 / 30);
constexpr std::int64_t seconds_a_day = 86400;

constexpr std::int64_t seconds_of(sys_days date) { return seconds(date - empty_date).count(); }
constexpr std::int64_t first_second = seconds_of(sys_days(std::chrono::year(100) / 1 / 1));
constexpr std::int64_t end_second = seconds_of(sys_days(std::chrono::year(10000) / 1 / 1));

days day_number(DateTime value) { return floor<days>(seconds(value.seconds())); }

year_month_day calendar_date(DateTime value) { return empty_date + day_number(value); }

DateTime checked(std::int64_t seconds) {
    const DateTime result = DateTime::from_seconds(seconds);
    if (!result.is_date())
        throw Failure(FailureNumber::invalid_procedure_call);
    return result;
}

std::int64_t second_of_day(DateTime value) { return value.time().seconds(); }

// The first day of a month counted from January of `year` as 1; a count outside 1 to 12 rolls over.
year_month_day first_of_month(int year, std::int64_t month) {
    const std::int64_t months = year * std::int64_t{12} + month - 1;
    const std::int64_t rolled_year = months >= 0 ? months / 12 : -((11 - months) / 12);
    if (rolled_year < 0 || rolled_year > 10000)
        throw Failure(FailureNumber::invalid_procedure_call);
    return std::chrono::year(static_cast<int>(rolled_year)) /
           std::chrono::month(static_cast<unsigned>(months - rolled_year * 12 + 1)) / 1;
}

} // namespace

bool DateTime::is_date() const { return seconds_ >= first_second && seconds_ < end_second; }

DateTime DateTime::of(int year, int month, int day, int hour, int minute, int second) {
    return checked(seconds_of(first_of_month(year, month)) + (day - std::int64_t{1}) * seconds_a_day +
                   hour * std::int64_t{3600} + minute * std::int64_t{60} + second);
}

DateTime DateTime::date() const { return from_seconds(seconds_ - second_of_day(*this)); }

DateTime DateTime::time() const {
    const std::int64_t rest = seconds_ % seconds_a_day;
    return from_seconds(rest < 0 ? rest + seconds_a_day : rest);
}

DateTime DateTime::time_to_the_minute() const {
    const std::int64_t rest = second_of_day(*this);
    return from_seconds(rest - rest % 60);
}

int DateTime::year() const { return static_cast<int>(calendar_date(*this).year()); }
int DateTime::month() const { return static_cast<int>(static_cast<unsigned>(calendar_date(*this).month())); }
int DateTime::day() const { return static_cast<int>(static_cast<unsigned>(calendar_date(*this).day())); }
int DateTime::hour() const { return static_cast<int>(second_of_day(*this) / 3600); }
int DateTime::minute() const { return static_cast<int>(second_of_day(*this) / 60 % 60); }
int DateTime::second() const { return static_cast<int>(second_of_day(*this) % 60); }

int DateTime::weekday() const {
    return static_cast<int>(std::chrono::weekday(empty_date + day_number(*this)).c_encoding()) + 1;
}

int DateTime::weekday_from(int first) const { return (weekday() - first + 7) % 7 + 1; }

DateTime DateTime::plus_days(std::int64_t days) const {
    constexpr std::int64_t most = (end_second - first_second) / seconds_a_day;
    if (days < -most || days > most)
        throw Failure(FailureNumber::invalid_procedure_call);
    return checked(seconds_ + days * seconds_a_day);
}

DateTime DateTime::plus_minutes(std::int64_t minutes) const {
    constexpr std::int64_t most = (end_second - first_second) / 60;
    if (minutes < -most || minutes > most)
        throw Failure(FailureNumber::invalid_procedure_call);
    return checked(seconds_ + minutes * 60);
}

DateTime DateTime::plus_months(int months) const {
    const year_month_day date = calendar_date(*this);
    const year_month_day target =
        first_of_month(year(), static_cast<unsigned>(date.month()) + std::int64_t{months});
    const year_month_day last = target.year() / target.month() / std::chrono::last;
    return checked(seconds_of(target.year() / target.month() / std::min(date.day(), last.day())) +
                   second_of_day(*this));
}

std::int64_t days_between(DateTime from, DateTime to) { return (day_number(to) - day_number(from)).count(); }

} // namespace values
