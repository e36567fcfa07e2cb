#include "core/settings/ini_document.h"

#include "core/values/text.h"

#include <algorithm>

namespace settings {

namespace {

constexpr std::string_view blanks = " \t";
constexpr std::string_view line_ends = "\r\n";

std::string_view bare(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    return first == text.npos ? std::string_view() : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string_view without_quotes(std::string_view value) {
    const bool quoted =
        value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

bool fits_a_line(std::string_view text) {
    constexpr std::string_view breakers{"\r\n\0", 3};
    return text.find_first_of(breakers) == text.npos && values::is_utf8(text);
}

bool is_section_name(std::string_view name) {
    return !name.empty() && fits_a_line(name) && !values::contains(name, "]");
}

bool is_key_name(std::string_view name) {
    return !name.empty() && fits_a_line(name) && !values::contains(name, "=") && name[0] != ';' && name[0] != '[';
}

} // namespace

IniDocument::IniDocument(std::string_view bytes) : file_(decoded(bytes)) { parse(); }

std::optional<std::string> IniDocument::value(std::string_view section, std::string_view key) const {
    const Section* found = find(section);
    const Key* present = found ? find(*found, key) : nullptr;
    if (!present)
        return std::nullopt;
    const Range range = present->value;
    return std::string(without_quotes(std::string_view(file_.text).substr(range.begin, range.end - range.begin)));
}

std::vector<std::string> IniDocument::keys(std::string_view section) const {
    std::vector<std::string> names;
    if (const Section* found = find(section))
        for (const Key& key : found->keys)
            names.push_back(key.name);
    return names;
}

std::vector<std::string> IniDocument::sections() const {
    std::vector<std::string> names;
    for (const Section& section : sections_)
        names.push_back(section.name);
    return names;
}

bool IniDocument::set(std::string_view section, std::string_view key, std::string_view value) {
    const std::string_view section_name = bare(section);
    const std::string_view key_name = bare(key);
    if (!is_section_name(section_name) || !is_key_name(key_name) || !fits_a_line(value))
        return false;
    const std::string line = std::string(key_name).append("=").append(value);
    const Section* found = find(section_name);
    if (!found) {
        insert_lines(file_.text.size(), {std::string("[").append(section_name).append("]"), line});
    } else if (const Key* present = find(*found, key_name)) {
        const Range range = present->value;
        if (std::string_view(file_.text).substr(range.begin, range.end - range.begin) != bare(value))
            replace(range, value);
    } else {
        insert_lines(found->keys.empty() ? found->header.end : found->keys.back().line.end, {line});
    }
    return true;
}

bool IniDocument::remove_section(std::string_view section) {
    const Section* found = find(section);
    if (found)
        replace({found->header.begin, found->end}, "");
    return found != nullptr;
}

bool IniDocument::remove_key(std::string_view section, std::string_view key) {
    const Section* found = find(section);
    const Key* present = found ? find(*found, key) : nullptr;
    if (present)
        replace(present->line, "");
    return present != nullptr;
}

void IniDocument::parse() {
    sections_.clear();
    by_name_.clear();
    const std::string_view text = file_.text;
    for (std::size_t begin = 0; begin < text.size();) {
        std::size_t end = std::min(text.find_first_of(line_ends, begin), text.size());
        end += text.substr(end, 2) == "\r\n" ? 2U : end < text.size() ? 1U : 0U;
        parse_line({begin, end});
        begin = end;
    }
    if (!sections_.empty())
        sections_.back().end = text.size();
}

void IniDocument::parse_line(Range line) {
    const std::string_view whole = std::string_view(file_.text).substr(line.begin, line.end - line.begin);
    const std::string_view content = bare(whole.substr(0, whole.find_first_of(std::string_view{"\r\n\0", 3})));
    if (content.empty() || content[0] == ';')
        return;
    if (content[0] == '[') {
        const std::size_t bracket = content.find(']');
        if (bracket == content.npos)
            return;
        if (!sections_.empty())
            sections_.back().end = line.begin;
        const std::string name(bare(content.substr(1, bracket - 1)));
        by_name_.try_emplace(values::lower(name), sections_.size());
        sections_.push_back({.name = name, .header = line});
        return;
    }
    const std::size_t equals = content.find('=');
    const std::string_view name = bare(content.substr(0, equals));
    if (equals == content.npos || name.empty() || sections_.empty())
        return;
    const std::string_view value = bare(content.substr(equals + 1));
    const char* const value_begin = value.empty() ? content.data() + content.size() : value.data();
    const auto begin = static_cast<std::size_t>(value_begin - file_.text.data());
    Section& section = sections_.back();
    section.by_name.try_emplace(values::lower(name), section.keys.size());
    section.keys.push_back({.name = std::string(name), .line = line, .value = {begin, begin + value.size()}});
}

void IniDocument::replace(Range range, std::string_view text) {
    file_.text.replace(range.begin, range.end - range.begin, text);
    parse();
}

void IniDocument::insert_lines(std::size_t at, const std::vector<std::string>& lines) {
    const std::string end(line_end());
    const bool breaks = at > 0 && !values::contains(line_ends, std::string_view(file_.text).substr(at - 1, 1));
    std::string text = breaks ? end : "";
    for (const std::string& line : lines)
        text += line + end;
    replace({at, at}, text);
}

// The file's own, that of its first line.
std::string_view IniDocument::line_end() const {
    const std::string_view text = file_.text;
    const std::size_t first = text.find_first_of(line_ends);
    if (first == text.npos)
        return "\n";
    return text.substr(first, text.substr(first, 2) == "\r\n" ? 2 : 1);
}

const IniDocument::Section* IniDocument::find(std::string_view section) const {
    const auto found = by_name_.find(values::lower(bare(section)));
    return found == by_name_.end() ? nullptr : &sections_[found->second];
}

const IniDocument::Key* IniDocument::find(const Section& section, std::string_view key) {
    const auto found = section.by_name.find(values::lower(bare(key)));
    return found == section.by_name.end() ? nullptr : &section.keys[found->second];
}

} // namespace settings
