#include "core/values/pattern.h"

#include "core/values/text.h"

#include <algorithm>
#include <charconv>
#include <chrono>

namespace values {

namespace {

constexpr std::string_view field_letters = "dMyHhmst";

// The next run of one field letter, or one character that stands for itself.
std::string_view next_piece(std::string_view pattern) {
    std::size_t length = 1;
    if (contains(field_letters, pattern.substr(0, 1)))
        while (length < pattern.size() && pattern[length] == pattern[0])
            ++length;
    return pattern.substr(0, length);
}

std::string padded(int number, std::size_t digits) {
    std::string text = std::to_string(number);
    return text.size() < digits ? std::string(digits - text.size(), '0') + text : text;
}

std::string name_or_number(std::string_view piece, int number, const std::string& name) {
    if (piece.size() <= 2)
        return padded(number, piece.size());
    return piece.size() == 3 ? first_characters(name, 3) : name;
}

std::string field_text(std::string_view piece, DateTime value, const Locale& locale) {
    switch (piece[0]) {
    case 'd':
        return name_or_number(piece, value.day(), locale.weekdays[static_cast<std::size_t>(value.weekday()) - 1]);
    case 'M':
        return name_or_number(piece, value.month(), locale.months[static_cast<std::size_t>(value.month()) - 1]);
    case 'y':
        return piece.size() > 2 ? padded(value.year(), 4) : padded(value.year() % 100, 2);
    case 'H':
        return padded(value.hour(), piece.size());
    case 'h':
        return padded((value.hour() + 11) % 12 + 1, piece.size());
    case 'm':
        return padded(value.minute(), piece.size());
    case 's':
        return padded(value.second(), piece.size());
    default:
        return value.hour() < 12 ? locale.am : locale.pm;
    }
}

// Takes up to `most` digits off the text's start.
std::string_view taken_digits(std::string_view& text, std::size_t most) {
    std::size_t length = 0;
    while (length < std::min(most, text.size()) && text[length] >= '0' && text[length] <= '9')
        ++length;
    const std::string_view digits = text.substr(0, length);
    text.remove_prefix(length);
    return digits;
}

bool take_number(std::string_view& text, int& number) {
    const std::string_view digits = taken_digits(text, 2);
    return std::from_chars(digits.data(), digits.data() + digits.size(), number).ec == std::errc();
}

bool take_word(std::string_view& text, std::string_view word) {
    if (word.empty() || !equal_ignoring_case(text.substr(0, word.size()), word))
        return false;
    text.remove_prefix(word.size());
    return true;
}

bool take_half(std::string_view& text, const Locale& locale, HalfDay& half) {
    if (take_word(text, locale.am) || take_word(text, "AM"))
        half = HalfDay::am;
    else if (take_word(text, locale.pm) || take_word(text, "PM"))
        half = HalfDay::pm;
    return half != HalfDay::unknown;
}

bool take_field(std::string_view piece, std::string_view& text, const Locale& locale, DateParts& parts) {
    switch (piece[0]) {
    case 'd':
        return piece.size() <= 2 && take_number(text, parts.day);
    case 'M':
        return piece.size() <= 2 && take_number(text, parts.month);
    case 'y': {
        const std::string_view digits = taken_digits(text, 4);
        if (!digits.empty())
            parts.year = whole_year(digits);
        return !digits.empty();
    }
    case 'H':
    case 'h':
        return take_number(text, parts.hour);
    case 'm':
        return take_number(text, parts.minute);
    case 's':
        return take_number(text, parts.second);
    default:
        return take_half(text, locale, parts.half);
    }
}

} // namespace

std::optional<DateTime> date_of(const DateParts& parts) {
    int hour = parts.hour;
    if (parts.half == HalfDay::am && hour == 12)
        hour = 0;
    else if (parts.half == HalfDay::am && hour > 12)
        return std::nullopt;
    else if (parts.half == HalfDay::pm && hour < 12)
        hour += 12;
    if (hour > 23 || parts.minute > 59 || parts.second > 59)
        return std::nullopt;
    if (!parts.year)
        return DateTime::time_of_day(hour, parts.minute, parts.second);
    const auto month = std::chrono::month(static_cast<unsigned>(parts.month));
    const auto date = std::chrono::year(*parts.year) / month / std::chrono::day(static_cast<unsigned>(parts.day));
    if (!date.ok() || *parts.year < 100 || *parts.year > 9999)
        return std::nullopt;
    return DateTime::of(*parts.year, parts.month, parts.day, hour, parts.minute, parts.second);
}

int whole_year(std::string_view digits) {
    int year = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), year);
    if (digits.size() > 2)
        return year;
    return year < 30 ? 2000 + year : 1900 + year;
}

std::string written(std::string_view pattern, DateTime value, const Locale& locale) {
    std::string text;
    while (!pattern.empty()) {
        const std::string_view piece = next_piece(pattern);
        text +=
            contains(field_letters, piece.substr(0, 1)) ? field_text(piece, value, locale) : std::string(piece);
        pattern.remove_prefix(piece.size());
    }
    return text;
}

std::optional<DateTime> read(std::string_view pattern, std::string_view text, const Locale& locale) {
    DateParts parts;
    while (!pattern.empty()) {
        const std::string_view piece = next_piece(pattern);
        pattern.remove_prefix(piece.size());
        const bool taken = contains(field_letters, piece.substr(0, 1)) ? take_field(piece, text, locale, parts)
                                                                       : take_word(text, piece);
        if (!taken)
            return std::nullopt;
    }
    return text.empty() ? date_of(parts) : std::nullopt;
}

} // namespace values
