#include "desk/import/zone_file.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <utility>
#include <vector>

namespace importing {
namespace {

using recurrence::CalendarRule;
using values::DateTime;

// The bytes from front to back. Beyond their end it gives zeros, and `failed` says so.
struct Bytes {
    std::string_view left;
    bool failed = false;

    std::string_view take(std::uint64_t count) {
        failed = failed || count > left.size();
        const std::string_view taken = failed ? std::string_view() : left.substr(0, count);
        left.remove_prefix(taken.size());
        return taken;
    }
    std::int64_t number(std::size_t size) {
        std::uint64_t number = 0;
        for (const char c : take(size))
            number = number << 8 | static_cast<unsigned char>(c);
        if (size < 8 && number >> (size * 8 - 1) != 0)
            number -= std::uint64_t{1} << (size * 8); // negative
        return static_cast<std::int64_t>(number);
    }
    std::uint64_t count() { return static_cast<std::uint64_t>(number(4)) & 0xFFFFFFFF; }
};

// What stands in front of each of the file's two blocks.
struct Head {
    bool is_right = false;
    char version = 0;
    std::uint64_t in_utc = 0, in_standard = 0, leaps = 0, times = 0, types = 0, characters = 0;
};

Head head_of(Bytes& bytes) {
    Head head;
    head.is_right = bytes.take(4) == "TZif";
    const std::string_view rest = bytes.take(16);
    head.version = rest.empty() ? '\0' : rest.front();
    for (std::uint64_t* count :
         {&head.in_utc, &head.in_standard, &head.leaps, &head.times, &head.types, &head.characters})
        *count = bytes.count();
    return head;
}

DateTime of_1970(std::int64_t seconds) {
    return plus_seconds(DateTime::of(1970, 1, 1),
                        std::clamp<std::int64_t>(seconds, -20'000'000'000, 20'000'000'000));
}

// The rule by which clocks go on after the file's last change, as in "CET-1CEST,M3.5.0,M10.5.0/3".
class LastRule {
public:
    explicit LastRule(std::string_view text) : left_(text) {}

    // False when the rule is none, or none by weekdays.
    bool read() {
        const bool is_read = skip_name() && read_seconds(standard_) && (left_.empty() || read_summer());
        standard_ = -standard_; // what is added to reach UTC
        return is_read && left_.empty();
    }

    void add_changes(DateTime from, const recurrence::Spend& spend, std::vector<Zone::Change>& changes) const {
        if (!has_summer_)
            return;
        const std::int64_t summer = -summer_;
        add(begin_, from, {.before = standard_, .after = summer}, spend, changes);
        add(end_, from, {.before = summer, .after = standard_}, spend, changes);
    }

private:
    struct Date {
        int month = 0, week = 0, weekday = 0; // week 5 is the last, weekday 0 is Sunday
        std::int64_t seconds = 7200;          // after midnight
    };

    static void add(const Date& date, DateTime from, Zone::Change change, const recurrence::Spend& spend,
                    std::vector<Zone::Change>& changes) {
        CalendarRule rule{.step = recurrence::Step::yearly};
        rule.months.add(date.month);
        rule.weekdays[static_cast<std::size_t>(date.weekday) + 1].add(date.week == 5 ? -1 : date.week);
        const DateTime end = DateTime::of(Zone::last_year + 1, 1, 2);
        recurrence::CalendarWalk walk(rule, {.start = DateTime::of(from.year(), 1, 1), .end = end, .until = end},
                                      spend);
        while (const auto midnight = walk.next()) {
            change.utc = plus_seconds(*midnight, date.seconds - change.before);
            if (change.utc > from)
                changes.push_back(change);
        }
    }

    bool read_summer() {
        has_summer_ = true;
        summer_ = standard_ - 3600;
        return skip_name() && (left_.starts_with(',') || read_seconds(summer_)) && read_date(begin_) &&
               read_date(end_);
    }

    bool skip(char c) {
        const bool is_there = left_.starts_with(c);
        left_.remove_prefix(is_there ? 1 : 0);
        return is_there;
    }

    bool skip_name() {
        const bool is_quoted = skip('<');
        const std::size_t end = left_.find_first_of(is_quoted ? ">" : ",+-0123456789");
        if (end == 0 || (is_quoted && end == left_.npos))
            return false;
        left_.remove_prefix(std::min(end, left_.size()));
        return !is_quoted || skip('>');
    }

    bool read_number(std::int64_t& number) {
        const auto [end, error] = std::from_chars(left_.data(), left_.data() + left_.size(), number);
        left_.remove_prefix(static_cast<std::size_t>(end - left_.data()));
        return error == std::errc() && number >= 0 && number < 1000;
    }

    // From a text as "-1:30".
    bool read_seconds(std::int64_t& seconds) {
        const bool is_negative = skip('-');
        skip('+');
        std::int64_t hours = 0, minutes = 0, rest = 0;
        if (!read_number(hours) || (skip(':') && !read_number(minutes)) || (skip(':') && !read_number(rest)))
            return false;
        seconds = (hours * 60 + minutes) * 60 + rest;
        seconds = is_negative ? -seconds : seconds;
        return true;
    }

    bool read_date(Date& date) {
        std::int64_t month = 0, week = 0, weekday = 0;
        if (!skip(',') || !skip('M') || !read_number(month) || !skip('.') || !read_number(week) || !skip('.') ||
            !read_number(weekday) || (skip('/') && !read_seconds(date.seconds)))
            return false;
        date.month = static_cast<int>(month);
        date.week = static_cast<int>(week);
        date.weekday = static_cast<int>(weekday);
        return month >= 1 && month <= 12 && week >= 1 && week <= 5 && weekday <= 6;
    }

    std::string_view left_;
    bool has_summer_ = false;
    std::int64_t standard_ = 0, summer_ = 0;
    Date begin_{}, end_{};
};

} // namespace

std::optional<Zone> zone_in_file(std::string_view file, const recurrence::Spend& spend) {
    spend(file.size());
    Bytes bytes{file};
    const Head old = head_of(bytes); // of a block with times of 4 bytes, for old readers
    bytes.take(old.times * 5 + old.types * 6 + old.characters + old.leaps * 8 + old.in_standard + old.in_utc);
    const Head head = head_of(bytes);
    if (!head.is_right || head.version < '2' || head.leaps > 0 || head.types == 0)
        return std::nullopt;
    Bytes times{bytes.take(head.times * 8)};
    Bytes types{bytes.take(head.times)};
    std::vector<std::int64_t> ahead;
    for (Bytes told{bytes.take(head.types * 6)}; !told.left.empty(); told.take(2))
        ahead.push_back(told.number(4));
    bytes.take(head.characters + head.in_standard + head.in_utc);
    if (bytes.failed)
        return std::nullopt;
    std::vector<Zone::Change> changes;
    for (std::int64_t before = ahead.front(); !types.left.empty();) {
        const auto type = static_cast<unsigned char>(types.take(1).front());
        if (type >= ahead.size())
            return std::nullopt;
        changes.push_back({of_1970(times.number(8)), before, ahead[type]});
        before = ahead[type];
    }
    bytes.take(1); // the end of a line before and after the last rule
    LastRule rule(bytes.left.substr(0, bytes.left.find('\n')));
    if (rule.read())
        rule.add_changes(changes.empty() ? DateTime::of(1900, 1, 1) : changes.back().utc, spend, changes);
    return Zone(ahead.front(), std::move(changes));
}

} // namespace importing
