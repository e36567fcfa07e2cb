#include "desk/import/content_lines.h"

#include "core/values/failure.h"
#include "core/values/text.h"

#include <algorithm>

namespace importing {
namespace {

constexpr std::size_t deepest = 16; // more components in each other than any program writes

[[noreturn]] void refuse(const std::string& why) { throw values::Failure(values::FailureNumber::automation, why); }

std::string capitals(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return result;
}

std::string_view without_mark(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF"))
        refuse("it is in UTF-16; only UTF-8 and Windows-1252 can be read");
    if (bytes.starts_with("\xEF\xBB\xBF"))
        bytes.remove_prefix(3);
    if (bytes.find('\0') != bytes.npos)
        refuse("it is no text file");
    return bytes;
}

bool is_empty(std::string_view line) {
    return std::all_of(line.begin(), line.end(), [](char c) { return c == ' ' || c == '\t' || c == '\x1A'; });
}

// In quoted-printable text a "=" at the end of a line takes the next one in as it stands.
bool takes_next_line_in(std::string_view line) {
    constexpr std::size_t longest_head = 200;
    if (!line.ends_with('='))
        return false;
    const std::string head = capitals(line.substr(0, longest_head));
    return head.substr(0, head.find(':')).find("QUOTED-PRINTABLE") != head.npos;
}

// A fold may part the bytes of a character, so lines are joined before they are read as text.
std::vector<Line> unfolded(std::string_view bytes) {
    std::vector<Line> lines;
    int number = 0;
    while (!bytes.empty()) {
        const std::size_t end = std::min(bytes.find_first_of("\r\n"), bytes.size());
        const std::string_view line = bytes.substr(0, end);
        bytes.remove_prefix(end);
        bytes.remove_prefix(bytes.starts_with("\r\n") ? 2 : bytes.empty() ? 0 : 1);
        ++number;
        if (!lines.empty() && takes_next_line_in(lines.back().text)) {
            lines.back().text.pop_back();
            lines.back().text += line;
            continue;
        }
        const bool goes_on = !lines.empty() && (line.starts_with(' ') || line.starts_with('\t'));
        if (goes_on)
            lines.back().text += line.substr(1);
        else if (!is_empty(line))
            lines.push_back({number, std::string(line)});
    }
    for (Line& line : lines)
        if (!values::is_utf8(line.text)) {
            line.text = readable(line.text);
            line.is_mended = true;
        }
    return lines;
}

std::string component_name(const Line& line) { return capitals(values::trimmed(value_of(line))); }

std::string in_line(int number) { return " in line " + std::to_string(number); }

} // namespace

std::string name_of(const Line& line) {
    const std::size_t end = line.text.find_first_of(":;");
    if (end == std::string::npos)
        return {};
    const std::string_view whole = std::string_view(line.text).substr(0, end);
    return capitals(values::trimmed(whole.substr(whole.rfind('.') + 1)));
}

// A parameter in quotes may hold a colon.
std::string_view value_of(const Line& line) {
    bool quoted = false;
    for (std::size_t i = 0; i < line.text.size(); ++i) {
        quoted = quoted != (line.text[i] == '"');
        if (line.text[i] == ':' && !quoted)
            return std::string_view(line.text).substr(i + 1);
    }
    return {};
}

std::string unescaped(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size()) {
            plain += text[i];
            continue;
        }
        const char next = text[++i];
        if (next == 'n' || next == 'N')
            plain += '\n';
        else if (next == ',' || next == ';' || next == '\\' || next == ':')
            plain += next;
        else
            (plain += '\\') += next;
    }
    return plain;
}

std::string_view value_in(const Component& component, std::string_view name) {
    const auto has_name = [&](const Line& line) { return name_of(line) == name; };
    const auto line = std::find_if(component.lines.begin(), component.lines.end(), has_name);
    return line == component.lines.end() ? std::string_view() : value_of(*line);
}

std::string readable(std::string_view bytes) {
    constexpr std::size_t longest_character = 4;
    std::string text;
    while (!bytes.empty()) {
        std::size_t length = 1;
        while (length < longest_character && length < bytes.size() && !values::is_utf8(bytes.substr(0, length)))
            ++length;
        const bool is_character = values::is_utf8(bytes.substr(0, length));
        if (is_character)
            text += bytes.substr(0, length);
        else
            text += values::utf8_from_windows_1252(bytes.substr(0, length = 1));
        bytes.remove_prefix(length);
    }
    return text;
}

Content content_of(std::string_view bytes) {
    Content content;
    std::vector<Component> open;
    for (Line& line : unfolded(without_mark(bytes))) {
        content.mended_lines += line.is_mended;
        const std::string name = name_of(line);
        if (name == "BEGIN") {
            if (open.size() == deepest)
                refuse("its entries lie too deep in each other" + in_line(line.number));
            open.push_back({component_name(line), line.number, {}, {}});
        } else if (open.empty()) {
            content.stray_lines.push_back(line.number);
        } else if (name == "END") {
            Component closed = std::move(open.back());
            open.pop_back();
            if (closed.name != component_name(line))
                refuse("the end of " + closed.name + " is missing before the one" + in_line(line.number));
            (open.empty() ? content.components : open.back().parts).push_back(std::move(closed));
        } else {
            open.back().lines.push_back(std::move(line));
        }
    }
    if (!open.empty())
        refuse("it seems cut off: the entry that begins" + in_line(open.back().line) + " has no end");
    if (content.components.empty() && !content.stray_lines.empty())
        refuse("it has something that is no calendar and no address card" + in_line(content.stray_lines.front()));
    return content;
}

} // namespace importing
