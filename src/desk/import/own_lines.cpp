#include "desk/import/own_lines.h"

#include "core/values/ids.h"
#include "core/values/text.h"
#include "desk/import/digest.h"

#include <algorithm>
#include <charconv>

namespace importing::own {
namespace {

constexpr std::string_view hexadecimal = "0123456789ABCDEF";
constexpr std::string_view host = "@contact-desk";

void append_escaped_byte(std::string& text, char c) {
    const auto byte = static_cast<unsigned char>(c);
    text += {'%', hexadecimal[byte >> 4], hexadecimal[byte & 0xF]};
}

bool is_told(const Line& line) {
    const std::string name = name_of(line);
    return !name.starts_with(prefix) && name != "DTSTAMP" && name != "CREATED" && name != "LAST-MODIFIED" &&
           name != "REV";
}

// A rule's parts may come in any order.
std::string in_one_order(const Line& line) {
    if (name_of(line) != "RRULE")
        return line.text;
    std::vector<std::string> parts = values::split(value_of(line), ";");
    std::ranges::sort(parts);
    std::string text = "RRULE";
    for (const std::string& part : parts)
        text += ";" + part;
    return text;
}

std::string digest_of(const std::string& name, std::vector<std::string> told) {
    std::ranges::sort(told);
    Digest digest;
    digest.add(name);
    for (const std::string& text : told)
        digest.add(text);
    return digest.text();
}

// What two characters behind a "%" stand for.
std::optional<char> escaped_byte(std::string_view digits) {
    if (digits.size() < 2)
        return std::nullopt;
    const std::size_t high = hexadecimal.find(digits[0]);
    const std::size_t low = hexadecimal.find(digits[1]);
    if (high == hexadecimal.npos || low == hexadecimal.npos)
        return std::nullopt;
    return static_cast<char>(high * 16 + low);
}

} // namespace

std::string escaped(std::string_view bytes) {
    constexpr std::string_view special = "%|\\;,";
    const bool is_text = values::is_utf8(bytes);
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        const bool is_blank_at_an_end = byte == ' ' && (i == 0 || i + 1 == bytes.size());
        if (byte < 0x20 || byte == 0x7F || (byte >= 0x80 && !is_text) || is_blank_at_an_end ||
            special.find(bytes[i]) != special.npos)
            append_escaped_byte(text, bytes[i]);
        else
            text += bytes[i];
    }
    return text;
}

std::string plain(std::string_view text) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = text[i] == '%' ? escaped_byte(text.substr(i + 1)) : std::nullopt;
        bytes += byte.value_or(text[i]);
        i += byte ? 2u : 0u;
    }
    return bytes;
}

Parts::Parts(std::string_view value) {
    while (true) {
        const std::size_t end = std::min(value.find('|'), value.size());
        parts_.push_back(plain(value.substr(0, end)));
        if (end == value.size())
            return;
        value.remove_prefix(end + 1);
    }
}

std::optional<std::int64_t> Parts::number(std::size_t number) const {
    const std::string digits = text(number);
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || end != digits.data() + digits.size())
        return std::nullopt;
    return value;
}

std::optional<Parts> parts_in(const Component& component, std::string_view name) {
    const auto all = all_parts_in(component, name);
    return all.empty() ? std::nullopt : std::optional(all.front());
}

std::vector<Parts> all_parts_in(const Component& component, std::string_view name) {
    std::vector<Parts> all;
    for (const Line& line : component.lines)
        if (name_of(line) == name)
            all.emplace_back(value_of(line));
    return all;
}

std::string check_of(const Component& component) {
    std::vector<std::string> told;
    for (const Line& line : component.lines)
        if (is_told(line))
            told.push_back(in_one_order(line));
    for (const Component& part : component.parts)
        told.push_back(part.name + "\n" + check_of(part));
    return digest_of(component.name, std::move(told));
}

std::string rule_check_of(const Component& component) {
    std::vector<std::string> told;
    for (const Line& line : component.lines)
        if (const std::string name = name_of(line);
            name == "DTSTART" || name == "RRULE" || name == "EXDATE" || name == "RDATE")
            told.push_back(in_one_order(line));
    return digest_of(component.name, std::move(told));
}

bool is_untouched(const Component& component) { return value_in(component, check) == check_of(component); }

bool has_untouched_rule(const Component& component) {
    return value_in(component, rule_check) == rule_check_of(component);
}

std::string uid_of(const std::string& id, const std::string& identity) {
    return std::string(values::trimmed(id)) + "." + identity + std::string(host);
}

std::optional<std::string> id_of(std::string_view uid, const std::string& identity) {
    const std::string end = "." + identity + std::string(host);
    if (!uid.ends_with(end))
        return std::nullopt;
    return values::whole_id(std::string(uid.substr(0, uid.size() - end.size())));
}

} // namespace importing::own
