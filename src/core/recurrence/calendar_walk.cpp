#include "core/recurrence/calendar_walk.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace recurrence {
namespace {

namespace chrono = std::chrono;

constexpr chrono::sys_days empty_date = chrono::sys_days(chrono::year(1899) / 12 / 30);
constexpr std::int64_t seconds_a_day = 86400;

std::int64_t number_of(chrono::year_month_day date) { return (chrono::sys_days(date) - empty_date).count(); }
std::int64_t first_of_year(std::int64_t year) { return number_of(chrono::year(static_cast<int>(year)) / 1 / 1); }
std::int64_t first_of_month(std::int64_t month) {
    return number_of(chrono::year(static_cast<int>(month / 12)) / static_cast<int>(month % 12 + 1) / 1);
}
std::int64_t day_of(DateTime time) { return values::days_between(DateTime(), time); }
int weekday_of(std::int64_t day) { return static_cast<int>(((day + 6) % 7 + 7) % 7) + 1; }

std::int64_t seconds_of(Step step) { return step == Step::hourly ? 3600 : step == Step::minutely ? 60 : 1; }

bool is_fine(Step step) { return step <= Step::hourly; }

// Whether the day at a place of so many is the first, second ... of its weekday, as one of the numbers says.
bool has_place(const Numbers<-53, 53>& numbers, int place, int count) {
    return numbers.has((place - 1) / 7 + 1) || numbers.has(-((count - place) / 7 + 1));
}

} // namespace

// What the conditions ask about a day.
struct CalendarWalk::Day {
    explicit Day(Days day) : number(day), date(empty_date + chrono::days(day)), weekday(weekday_of(day)) {}

    int year() const { return static_cast<int>(date.year()); }
    int month() const { return static_cast<int>(static_cast<unsigned>(date.month())); }
    int of_month() const { return static_cast<int>(static_cast<unsigned>(date.day())); }
    int days_in_month() const {
        return static_cast<int>(static_cast<unsigned>((date.year() / date.month() / chrono::last).day()));
    }
    int of_year() const { return static_cast<int>(number - first_of_year(year())) + 1; }
    int days_in_year() const { return date.year().is_leap() ? 366 : 365; }

    Days number;
    chrono::year_month_day date;
    int weekday;
};

CalendarWalk::CalendarWalk(const CalendarRule& rule, const Bounds& bounds, Spend spend)
    : rule_(rule), bounds_(bounds), spend_(std::move(spend)) {
    const Day start(day_of(bounds.start));
    fill_in_defaults();
    switch (rule.step) {
    case Step::yearly:
        step_ = start.year();
        break;
    case Step::monthly:
        step_ = start.year() * std::int64_t{12} + start.month() - 1;
        break;
    case Step::weekly:
        step_ = start.number - (start.weekday - rule.week_start + 7) % 7;
        break;
    case Step::daily:
        step_ = start.number;
        break;
    default: {
        const std::int64_t second = bounds.start.seconds();
        step_ = second - (second % seconds_of(rule.step) + seconds_of(rule.step)) % seconds_of(rule.step);
    }
    }
}

void CalendarWalk::fill_in_defaults() {
    const Day start(day_of(bounds_.start));
    if (rule_.month_days.empty() && rule_.year_days.empty() && !rule_.has_weekdays()) {
        if (rule_.step == Step::weekly || (rule_.step == Step::yearly && !rule_.weeks.empty()))
            rule_.weekdays[static_cast<std::size_t>(start.weekday)].add(0);
        else if (rule_.step == Step::monthly || rule_.step == Step::yearly)
            rule_.month_days.add(start.of_month());
        if (rule_.step == Step::yearly && rule_.weeks.empty() && rule_.months.empty())
            rule_.months.add(start.month());
    }
    const auto list = [](const auto& told, bool is_open, int usual) {
        return told.empty() && !is_open ? std::vector{usual} : told.all();
    };
    hours_ = list(rule_.hours, rule_.step <= Step::hourly, bounds_.start.hour());
    minutes_ = list(rule_.minutes, rule_.step <= Step::minutely, bounds_.start.minute());
    seconds_ = list(rule_.seconds, rule_.step <= Step::secondly, bounds_.start.second());
}

std::optional<DateTime> CalendarWalk::next() {
    while (!is_over_) {
        if (place_ == found_.size()) {
            is_over_ = !find_more();
            continue;
        }
        const DateTime time = found_[place_++];
        if (time < bounds_.start)
            continue;
        ++told_;
        is_over_ = time > bounds_.until || time >= bounds_.end || (rule_.count && told_ > *rule_.count);
        if (!is_over_)
            return time;
    }
    return std::nullopt;
}

// The dates of the next step, which may be none. False when that lies behind the end.
bool CalendarWalk::find_more() {
    found_.clear();
    place_ = 0;
    const bool goes_on = is_fine(rule_.step) ? find_in_fine_step() : find_in_coarse_step();
    if (!rule_.positions.empty())
        keep_positions();
    return goes_on;
}

bool CalendarWalk::find_in_coarse_step() {
    const Days last = day_of(std::min(bounds_.end, bounds_.until));
    std::vector<Days> fitting;
    const std::int64_t step = std::exchange(step_, step_ + rule_.interval * (rule_.step == Step::weekly ? 7 : 1));
    switch (rule_.step) {
    case Step::yearly:
        if (step > 9998 || first_of_year(step) > last)
            return false;
        for (int month = 1; month <= 12 && !rule_.months.empty(); ++month)
            if (rule_.months.has(month))
                look_at_days(first_of_month(step * 12 + month - 1), first_of_month(step * 12 + month), fitting);
        if (rule_.months.empty())
            look_at_days(first_of_year(step), first_of_year(step + 1), fitting);
        break;
    case Step::monthly:
        if (step / 12 > 9998 || first_of_month(step) > last)
            return false;
        look_at_days(first_of_month(step), first_of_month(step + 1), fitting);
        break;
    default:
        if (step > last)
            return false;
        look_at_days(step, step + (rule_.step == Step::weekly ? 7 : 1), fitting);
    }
    for (const Days day : fitting)
        add_times(day, hours_, minutes_);
    return true;
}

// Steps of an hour or less. Where a day, an hour or a minute doesn't meet the conditions, its rest is passed over.
bool CalendarWalk::find_in_fine_step() {
    spend_(1);
    const DateTime time = DateTime::from_seconds(step_);
    if (time >= bounds_.end || time > bounds_.until)
        return false;
    const Day day(day_of(time));
    const std::int64_t midnight = day.number * seconds_a_day;
    const std::int64_t hour = (step_ - midnight) / 3600;
    const std::int64_t minute = (step_ - midnight) / 60 % 60;
    if (!fits(day)) {
        skip_to(midnight + seconds_a_day);
    } else if (!rule_.hours.empty() && !rule_.hours.has(static_cast<int>(hour))) {
        skip_to(midnight + (hour + 1) * 3600);
    } else if (rule_.step < Step::hourly && !rule_.minutes.empty() &&
               !rule_.minutes.has(static_cast<int>(minute))) {
        skip_to(midnight + hour * 3600 + (minute + 1) * 60);
    } else {
        if (rule_.step == Step::hourly)
            add_times(day.number, {static_cast<int>(hour)}, minutes_);
        else if (rule_.step == Step::minutely)
            add_times(day.number, {static_cast<int>(hour)}, {static_cast<int>(minute)});
        else if (rule_.seconds.empty() || rule_.seconds.has(static_cast<int>((step_ - midnight) % 60)))
            found_.push_back(time);
        skip_to(step_ + 1);
    }
    return true;
}

// To the first step at that second or after it.
void CalendarWalk::skip_to(std::int64_t second) {
    const std::int64_t length = rule_.interval * seconds_of(rule_.step);
    step_ += std::max<std::int64_t>(1, (second - step_ + length - 1) / length) * length;
}

void CalendarWalk::look_at_days(Days first, Days end, std::vector<Days>& fitting) {
    spend_(static_cast<std::size_t>(end - first + 2));
    for (Days day = first; day < end; ++day)
        if (fits(Day(day)))
            fitting.push_back(day);
}

bool CalendarWalk::fits(const Day& day) const {
    const auto has = [](const auto& numbers, int place, int count) {
        return numbers.has(place) || numbers.has(place - count - 1);
    };
    return (rule_.months.empty() || rule_.months.has(day.month())) &&
           (rule_.month_days.empty() || has(rule_.month_days, day.of_month(), day.days_in_month())) &&
           (rule_.year_days.empty() || has(rule_.year_days, day.of_year(), day.days_in_year())) &&
           fits_weekday(day) && (rule_.weeks.empty() || fits_week(day));
}

bool CalendarWalk::fits_weekday(const Day& day) const {
    if (!rule_.has_weekdays())
        return true;
    const auto& which = rule_.weekdays[static_cast<std::size_t>(day.weekday)];
    if (which.empty() || which.has(0))
        return !which.empty();
    if (rule_.step != Step::monthly && rule_.step != Step::yearly)
        return true; // a number means nothing here
    const bool in_month = rule_.step == Step::monthly || !rule_.months.empty();
    const int place = in_month ? day.of_month() : day.of_year();
    const int count = in_month ? day.days_in_month() : day.days_in_year();
    return has_place(which, place, count);
}

// A week belongs to the year that has its fourth day, so the days round New Year may count to another year.
bool CalendarWalk::fits_week(const Day& day) const {
    const Day fourth(day.number - (day.weekday - rule_.week_start + 7) % 7 + 3);
    return has_place(rule_.weeks, fourth.of_year(), fourth.days_in_year());
}

void CalendarWalk::add_times(Days day, const std::vector<int>& hours, const std::vector<int>& minutes) {
    spend_(hours.size() * minutes.size() * seconds_.size());
    for (const int hour : hours)
        for (const int minute : minutes)
            for (const int second : seconds_)
                found_.push_back(DateTime::from_seconds(day * seconds_a_day + hour * 3600 + minute * 60 + second));
}

void CalendarWalk::keep_positions() {
    const auto count = static_cast<int>(found_.size());
    std::vector<DateTime> kept;
    for (int i = 0; i < count; ++i)
        if (rule_.positions.has(i + 1) || rule_.positions.has(i - count))
            kept.push_back(found_[static_cast<std::size_t>(i)]);
    found_ = std::move(kept);
}

} // namespace recurrence
