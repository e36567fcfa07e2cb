#include "recurrence_cases.h"

#include "core/values/failure.h"
#include "support/plain_recurrence.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace support {

namespace {

const std::array<std::string, 4> kinds{"daily", "weekly", "days_of_month", "weekdays_of_month"};
const std::array<std::string, 7> weekdays{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};

using Words = std::vector<std::string>;

Words words_of(const std::string& line) {
    std::istringstream stream(line);
    Words words;
    for (std::string word; stream >> word;)
        words.push_back(word);
    return words;
}

bool is_time(const std::string& word) { return word.find(':') != std::string::npos; }

template <std::size_t Size>
int place_in(const std::array<std::string, Size>& names, const std::string& name) {
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end())
        throw std::runtime_error("unknown word " + name);
    return static_cast<int>(found - names.begin());
}

// A date and, where the next word is one, a time; `at` moves past them.
DateTime date_at(const Words& words, std::size_t& at) {
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
    char mark = 0;
    std::istringstream date(words.at(at++));
    date >> year >> mark >> month >> mark >> day;
    if (!date)
        throw std::runtime_error("no date: " + words[at - 1]);
    if (at < words.size() && is_time(words[at])) {
        std::istringstream time(words[at++]);
        time >> hour >> mark >> minute;
        if (!(time >> mark >> second))
            second = 0;
    }
    return DateTime::of(year, month, day, hour, minute, second);
}

bool is_number(const std::string& word) { return word.find_first_not_of("-0123456789") == std::string::npos; }

// The numbers from `at` on as bits, 1 being the lowest.
int bits_at(const Words& words, std::size_t& at) {
    int bits = 0;
    for (; at < words.size() && is_number(words[at]); ++at)
        bits |= 1 << (std::stoi(words[at]) - 1);
    return bits;
}

void read_rule(const Words& words, RecurrenceCase& into) {
    into.kind = static_cast<SeriesKind>(place_in(kinds, words.at(1)) + 1);
    for (std::size_t at = 2; at < words.size();) {
        const std::string word = words[at++];
        if (word == "every")
            into.rule.frequency = std::stoi(words.at(at++));
        else if (word == "from")
            into.rule.start = date_at(words, at);
        else if (word == "until")
            into.rule.until = date_at(words, at);
        else if (word == "on")
            while (at < words.size() && std::find(weekdays.begin(), weekdays.end(), words[at]) != weekdays.end())
                into.rule.days_of_week |= 1 << place_in(weekdays, words[at++]);
        else if (word == "weeks")
            into.rule.weeks_of_month = bits_at(words, at);
        else if (word == "days")
            into.rule.days_of_month = bits_at(words, at);
        else if (word == "onbits")
            into.rule.days_of_week = std::stoi(words.at(at++));
        else if (word == "weekbits")
            into.rule.weeks_of_month = std::stoi(words.at(at++));
        else if (word == "daybits")
            into.rule.days_of_month = std::stoi(words.at(at++));
        else
            throw std::runtime_error("unknown word " + word);
    }
}

void read_line(const std::string& line, RecurrenceCase& into) {
    const Words words = words_of(line);
    std::size_t at = 1;
    if (words[0] == "case")
        into.name = line.substr(5);
    else if (words[0] == "rule")
        read_rule(words, into);
    else if (words[0] == "view") {
        into.shown.StartDate = date_at(words, at);
        into.shown.EndDate = date_at(words, at);
    } else if (words[0] == "except") {
        while (at < words.size())
            into.exceptions.push_back(date_at(words, at));
    } else if (words[0] == "show") {
        if (words.at(1) != "nothing")
            into.starts.push_back(date_at(words, at));
    } else if (words[0] == "fail")
        into.fails = true;
    else
        throw std::runtime_error("unknown line " + line);
}

void read_file(const std::filesystem::path& path, std::vector<RecurrenceCase>& cases) {
    std::ifstream file(path);
    int number = 0;
    bool inside = false;
    for (std::string line; std::getline(file, line);) {
        ++number;
        if (line.starts_with('#'))
            continue;
        if (line.empty()) {
            inside = false;
            continue;
        }
        if (!inside)
            cases.emplace_back().file = path.stem().string();
        inside = true;
        try {
            read_line(line, cases.back());
        } catch (const std::exception& failure) {
            throw std::runtime_error(path.string() + ":" + std::to_string(number) + ": " + failure.what());
        }
    }
}

plain::Day day_of(DateTime date) { return plain::Day(std::chrono::year(date.year()) / date.month() / date.day()); }

DateTime date_of(const plain::Start& start) {
    const auto date = plain::date_of(start.day);
    return DateTime::of(int(date.year()), static_cast<int>(unsigned(date.month())),
                        static_cast<int>(unsigned(date.day())), 0, 0, start.seconds);
}

} // namespace

std::vector<RecurrenceCase> read_recurrence_cases(const std::string& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".txt")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    std::vector<RecurrenceCase> cases;
    for (const auto& file : files)
        read_file(file, cases);
    return cases;
}

Walked quick_walk(SeriesKind kind, const recurrence::Rule& rule, const recurrence::ShownDates& shown,
                  const std::vector<DateTime>& exceptions) {
    Walked walked;
    const recurrence::Visitor visitor{
        .Exception =
            [&](DateTime date) {
                return std::any_of(exceptions.begin(), exceptions.end(), [&](DateTime exception) {
                    return recurrence::Form_Dat(exception) == recurrence::Form_Dat(date);
                });
            },
        .occurrence = [&](DateTime start) { walked.starts.push_back(start); }};
    try {
        switch (kind) {
        case SeriesKind::daily:
            recurrence::daily_starts(rule, shown, visitor);
            break;
        case SeriesKind::weekly:
            recurrence::weekly_starts(rule, shown, visitor);
            break;
        case SeriesKind::days_of_month:
            recurrence::custom_starts(rule, shown, visitor);
            break;
        case SeriesKind::weekdays_of_month:
            recurrence::monthly_starts(rule, shown, visitor);
            break;
        }
    } catch (const values::Failure& failure) {
        if (failure.number() != 13)
            throw;
        walked.failed = true;
    }
    return walked;
}

Walked plain_walk(SeriesKind kind, const recurrence::Rule& rule, const recurrence::ShownDates& shown,
                  const std::vector<DateTime>& exceptions) {
    std::vector<plain::Day> days;
    for (const DateTime exception : exceptions)
        days.push_back(day_of(exception));
    const plain::Rule plain_rule{.kind = static_cast<int>(kind),
                                 .start = day_of(rule.start),
                                 .seconds = static_cast<int>(rule.start.time().seconds()),
                                 .frequency = std::max(1, rule.frequency),
                                 .until = day_of(rule.until),
                                 .days_of_week = rule.days_of_week,
                                 .weeks_of_month = rule.weeks_of_month,
                                 .days_of_month = rule.days_of_month};
    const plain::Result result =
        plain::Walk(plain_rule, day_of(shown.StartDate), day_of(shown.EndDate), days).result();
    Walked walked{.starts = {}, .failed = result.failed};
    for (const plain::Start& start : result.starts)
        walked.starts.push_back(date_of(start));
    return walked;
}

} // namespace support
