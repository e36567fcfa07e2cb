#include "core/settings/ini_document.h"

#include "core/values/text.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>

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

// What counts of a line.
std::string_view content_of(std::string_view line) {
    return bare(line.substr(0, line.find_first_of(std::string_view{"\r\n\0", 3})));
}

std::optional<std::string> section_in(std::string_view line) {
    const std::string_view content = content_of(line);
    const std::size_t bracket = content.find(']');
    if (!content.starts_with('[') || bracket == content.npos)
        return std::nullopt;
    return std::string(bare(content.substr(1, bracket - 1)));
}

} // namespace

IniDocument::IniDocument(std::string_view bytes) : form_(decoded(bytes)), sections_(1) {
    const std::string whole = std::exchange(form_.text, {});
    const std::string_view text = whole;
    for (std::size_t begin = 0; begin < text.size();) {
        std::size_t end = std::min(text.find_first_of(line_ends, begin), text.size());
        end += text.substr(end, 2) == "\r\n" ? 2U : end < text.size() ? 1U : 0U;
        take_line(text.substr(begin, end - begin));
        begin = end;
    }
    for (Section& section : sections_)
        section.find_keys();
    find_sections();
}

std::string IniDocument::bytes() const {
    FileText file = form_;
    for (const Section& section : sections_)
        for (const Line& line : section.lines)
            file.text += line.text;
    return encoded(file);
}

std::optional<std::string> IniDocument::value(std::string_view section, std::string_view key) const {
    const Section* found = find(section);
    const Line* present = found ? find(*found, key) : nullptr;
    if (!present)
        return std::nullopt;
    return std::string(
        without_quotes(std::string_view(present->text).substr(present->value, present->value_length)));
}

std::vector<std::string> IniDocument::keys(std::string_view section) const {
    std::vector<std::string> names;
    if (const Section* found = find(section))
        for (const Line& line : found->lines)
            if (!line.name.empty())
                names.push_back(line.name);
    return names;
}

std::vector<std::string> IniDocument::sections() const {
    std::vector<std::string> names;
    for (const Section& section : std::span(sections_).subspan(1))
        names.push_back(section.name);
    return names;
}

bool IniDocument::set(std::string_view section, std::string_view key, std::string_view value) {
    const std::string_view section_name = bare(section);
    const std::string_view key_name = bare(key);
    if (!is_section_name(section_name) || !is_key_name(key_name) || !fits_a_line(value))
        return false;
    Section* found = find(section_name);
    if (!found) {
        end_line(sections_.back(), sections_.back().lines.size());
        take_line(std::string("[").append(section_name).append("]").append(line_end()));
        find_sections();
        found = &sections_.back();
    }
    if (const Line* present = find(*found, key_name)) {
        if (std::string_view(present->text).substr(present->value, present->value_length) != bare(value)) {
            Line& line = found->lines[static_cast<std::size_t>(present - found->lines.data())];
            line = line_of(line.text.replace(line.value, line.value_length, value));
        }
        return true;
    }
    const std::size_t place = found->last_key + 1;
    end_line(*found, place);
    Line line = line_of(std::string(key_name).append("=").append(value).append(line_end()));
    found->lines.insert(found->lines.begin() + static_cast<std::ptrdiff_t>(place), std::move(line));
    found->by_name.emplace(values::lower(key_name), place); // no key stands behind it
    found->last_key = place;
    return true;
}

bool IniDocument::remove_section(std::string_view section) {
    const Section* found = find(section);
    if (!found)
        return false;
    sections_.erase(sections_.begin() + (found - sections_.data()));
    find_sections();
    return true;
}

bool IniDocument::remove_key(std::string_view section, std::string_view key) {
    Section* found = find(section);
    const Line* present = found ? find(*found, key) : nullptr;
    if (!present)
        return false;
    found->lines.erase(found->lines.begin() + (present - found->lines.data()));
    found->find_keys();
    return true;
}

void IniDocument::Section::find_keys() {
    by_name.clear();
    last_key = 0;
    for (std::size_t line = 0; line < lines.size(); ++line) {
        if (lines[line].name.empty())
            continue;
        by_name.try_emplace(values::lower(lines[line].name), line);
        last_key = line;
    }
}

void IniDocument::find_sections() {
    by_name_.clear();
    for (std::size_t section = 1; section < sections_.size(); ++section)
        by_name_.try_emplace(values::lower(sections_[section].name), section);
}

IniDocument::Line IniDocument::line_of(std::string text) {
    Line line{.text = std::move(text)};
    const std::string_view content = content_of(line.text);
    const std::size_t equals = content.find('=');
    const std::string_view name = bare(content.substr(0, equals));
    if (equals == content.npos || name.empty() || name[0] == ';' || name[0] == '[')
        return line;
    const std::string_view value = bare(content.substr(equals + 1));
    const char* const begin = value.empty() ? content.data() + content.size() : value.data();
    line.name = name;
    line.value = static_cast<std::size_t>(begin - line.text.data());
    line.value_length = value.size();
    return line;
}

void IniDocument::take_line(std::string_view text) {
    if (const auto name = section_in(text)) {
        sections_.push_back({.name = *name});
        sections_.back().lines.push_back({.text = std::string(text)});
    } else {
        sections_.back().lines.push_back(line_of(std::string(text)));
    }
}

// The line before the place gets a line end, should it be the last of a file that has none there.
void IniDocument::end_line(Section& section, std::size_t place) const {
    if (place == 0)
        return;
    std::string& text = section.lines[place - 1].text;
    if (!values::contains(line_ends, std::string_view(text).substr(text.size() - 1)))
        text += line_end();
}

// The file's own, that of its first line.
std::string IniDocument::line_end() const {
    for (const Section& section : sections_) {
        if (section.lines.empty())
            continue;
        const std::string& line = section.lines.front().text;
        const std::size_t end = line.find_first_of(line_ends);
        return end == line.npos ? "\n" : line.substr(end);
    }
    return "\n";
}

template <typename Document>
auto* IniDocument::find_in(Document& document, std::string_view section) {
    const auto found = document.by_name_.find(values::lower(bare(section)));
    return found == document.by_name_.end() ? nullptr : &document.sections_[found->second];
}

IniDocument::Section* IniDocument::find(std::string_view section) { return find_in(*this, section); }

const IniDocument::Section* IniDocument::find(std::string_view section) const { return find_in(*this, section); }

const IniDocument::Line* IniDocument::find(const Section& section, std::string_view key) {
    const auto found = section.by_name.find(values::lower(bare(key)));
    return found == section.by_name.end() ? nullptr : &section.lines[found->second];
}

} // namespace settings
