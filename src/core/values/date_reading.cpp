#include "core/values/pattern.h"
#include "core/values/text.h"
#include "core/values/text_forms.h"

#include <algorithm>
#include <charconv>
#include <span>
#include <vector>

namespace values {

namespace {

enum class Kind { number, word, mark };

struct Token {
    Kind kind;
    std::string_view text;

    bool is(std::string_view other) const { return text == other; }
    bool is_number() const { return kind == Kind::number; }
    int number() const {
        int value = 0;
        std::from_chars(text.data(), text.data() + text.size(), value);
        return value;
    }
};

using Tokens = std::span<const Token>;

Kind kind_of(char letter) {
    if (letter >= '0' && letter <= '9')
        return Kind::number;
    const bool ascii = (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z');
    return ascii || static_cast<unsigned char>(letter) >= 0x80 ? Kind::word : Kind::mark;
}

std::vector<Token> tokens_of(std::string_view text) {
    std::vector<Token> tokens;
    for (std::size_t start = 0; start < text.size();) {
        const Kind kind = kind_of(text[start]);
        std::size_t end = start + 1;
        while (kind != Kind::mark && end < text.size() && kind_of(text[end]) == kind)
            ++end;
        if (text[start] != ' ')
            tokens.push_back({kind, text.substr(start, end - start)});
        start = end;
    }
    return tokens;
}

HalfDay half_of(const Token& token, const Locale& locale) {
    const std::string word = lower(token.text);
    if (word == "am" || word == "a" || word == lower(locale.am))
        return HalfDay::am;
    return word == "pm" || word == "p" || word == lower(locale.pm) ? HalfDay::pm : HalfDay::unknown;
}

// Reads the time that begins with the first token, such as "9:05", "9:05:30 PM" or "9 AM", and gives how many
// tokens it takes; 0 when none begins there.
std::size_t read_time(Tokens tokens, const Locale& locale, DateParts& parts) {
    const auto number_after_colon = [&](std::size_t at) {
        return at + 1 < tokens.size() && tokens[at].is(":") && tokens[at + 1].is_number() &&
               tokens[at + 1].text.size() <= 2;
    };
    if (!tokens[0].is_number() || tokens[0].text.size() > 2)
        return 0;
    std::size_t length = 1;
    if (number_after_colon(1)) {
        parts.minute = tokens[2].number();
        length = 3;
        if (number_after_colon(3)) {
            parts.second = tokens[4].number();
            length = 5;
        }
    }
    if (length < tokens.size())
        parts.half = half_of(tokens[length], locale);
    if (parts.half != HalfDay::unknown)
        ++length;
    parts.hour = tokens[0].number();
    return length > 1 ? length : 0;
}

// The name, or its beginning of at least three letters as long as no other name begins so: 1 for the first name,
// 0 for none.
template <std::size_t size>
int named(std::string_view word, const std::array<std::string, size>& names) {
    const std::string wanted = lower(word);
    int found = 0;
    for (std::size_t i = 0; i < size; ++i) {
        const std::string name = lower(names[i]);
        if (name == wanted)
            return static_cast<int>(i) + 1;
        if (length(wanted) >= 3 && name.starts_with(wanted)) {
            if (found != 0)
                return 0;
            found = static_cast<int>(i) + 1;
        }
    }
    return found;
}

int month_named(std::string_view word, const Locale& locale) {
    const int month = named(word, locale.months);
    return month != 0 ? month : named(word, english_us().months);
}

bool is_weekday(std::string_view word, const Locale& locale) {
    return named(word, locale.weekdays) != 0 || named(word, english_us().weekdays) != 0;
}

bool must_be_year(const Token& token) { return token.text.size() > 2 || token.number() > 31; }

std::optional<DateTime> date_in_order(Tokens numbers, std::string_view order, DateParts parts) {
    for (std::size_t i = 0; i < 3; ++i) {
        if (order[i] == 'y')
            parts.year = whole_year(numbers[i].text);
        else
            (order[i] == 'M' ? parts.month : parts.day) = numbers[i].number();
    }
    return date_of(parts);
}

// The locale's order first; where that makes no date, the others that people write.
std::optional<DateTime> date_from_numbers(Tokens numbers, const Locale& locale, const DateParts& parts) {
    std::string order = "yMd";
    if (!must_be_year(numbers[0]))
        std::sort(order.begin(), order.end(), [&](char left, char right) {
            return locale.short_date.find(left) < locale.short_date.find(right);
        });
    std::string swapped = order;
    std::swap(swapped[order.find('M')], swapped[order.find('d')]);
    for (const std::string& tried : {order, swapped, std::string("Mdy"), std::string("dMy")})
        if (const auto date = date_in_order(numbers, tried, parts))
            return date;
    return std::nullopt;
}

std::optional<DateTime> date_from_name(Tokens numbers, int month, DateParts parts) {
    parts.month = month;
    const bool year_first = must_be_year(numbers[0]);
    if (numbers.size() == 2) {
        parts.year = whole_year(numbers[year_first ? 0 : 1].text);
        parts.day = numbers[year_first ? 1 : 0].number();
    } else if (year_first) {
        parts.year = whole_year(numbers[0].text);
    }
    return parts.year ? date_of(parts) : std::nullopt;
}

// "20240105"
std::optional<DateTime> date_from_digits(std::string_view digits, DateParts parts) {
    const auto number = [&](std::size_t start) { return Token{Kind::number, digits.substr(start, 2)}.number(); };
    parts.year = whole_year(digits.substr(0, 4));
    parts.month = number(4);
    parts.day = number(6);
    return date_of(parts);
}

// The date that the tokens make, with the time in `parts`.
std::optional<DateTime> read_date(Tokens tokens, const Locale& locale, const DateParts& parts) {
    std::vector<Token> numbers;
    int month = 0;
    bool separated = true; // a mark stands only after a number or a word, and never last
    for (const Token& token : tokens) {
        if (token.kind == Kind::mark) {
            if (separated || !contains("/-.,", token.text))
                return std::nullopt;
            separated = true;
            continue;
        }
        separated = false;
        if (token.is_number()) {
            numbers.push_back(token);
        } else if (const int name = month_named(token.text, locale); name != 0 && month == 0) {
            month = name;
        } else if (is_weekday(token.text, locale)) {
            separated = false;
        } else {
            return std::nullopt;
        }
    }
    if (separated || numbers.empty() || numbers.size() > 3)
        return std::nullopt;
    if (numbers.size() == 1 && month == 0 && numbers[0].text.size() == 8)
        return date_from_digits(numbers[0].text, parts);
    if (std::any_of(numbers.begin(), numbers.end(), [](const Token& token) { return token.text.size() > 4; }))
        return std::nullopt;
    if (month != 0)
        return numbers.size() < 3 ? date_from_name(numbers, month, parts) : std::nullopt;
    return numbers.size() == 3 ? date_from_numbers(numbers, locale, parts) : std::nullopt;
}

std::optional<DateTime> read_freely(std::string_view text, const Locale& locale) {
    const std::vector<Token> storage = tokens_of(text);
    const Tokens tokens = storage;
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        DateParts parts;
        const std::size_t length = read_time(tokens.subspan(i), locale, parts);
        if (length == 0)
            continue;
        Tokens before = tokens.first(i);
        const Tokens after = tokens.subspan(i + length);
        if (!before.empty() && (before.back().is("T") || before.back().is(",")))
            before = before.first(before.size() - 1);
        if (!before.empty() && !after.empty())
            return std::nullopt;
        if (before.empty() && after.empty())
            return i == 0 ? date_of(parts) : std::nullopt;
        return read_date(before.empty() ? after : before, locale, parts);
    }
    return read_date(tokens, locale, {});
}

// The locale's own time patterns: as it stands, and without seconds.
std::vector<std::string> time_patterns(const Locale& locale) {
    std::vector<std::string> patterns = {locale.long_time};
    const std::size_t seconds = locale.long_time.find("ss");
    if (seconds != std::string::npos && seconds > 0)
        patterns.push_back(std::string(locale.long_time).erase(seconds - 1, 3));
    return patterns;
}

// What the locale's patterns write is read by them, whatever separators and marks they use. Times come first: what
// could be either, such as "9.05.00", was not written as a date with its four digits of the year.
std::optional<DateTime> read_by_patterns(std::string_view text, const Locale& locale) {
    for (const std::string& time : time_patterns(locale)) {
        for (const std::string& pattern : {time, locale.short_date + " " + time})
            if (const auto value = read(pattern, text, locale))
                return value;
    }
    return read(locale.short_date, text, locale);
}

} // namespace

std::optional<DateTime> parse_date(std::string_view text, const Locale& locale) {
    text = trimmed(text);
    if (text.empty())
        return std::nullopt;
    if (const auto value = read_by_patterns(text, locale))
        return value;
    return read_freely(text, locale);
}

} // namespace values
