#include "desk/import/activity_text.h"

#include "core/values/text.h"

namespace importing {
namespace {

bool is_control(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }
std::string cut(std::string_view text, std::size_t longest, bool* is_cut) {
    std::string result = values::first_characters(text, longest);
    if (is_cut && result.size() < text.size())
        *is_cut = true;
    return result;
}

bool is_letter(char c) { return (c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) >= 0x80; }

} // namespace

std::string single_line(std::string_view text, bool* is_cut) {
    std::string line;
    for (const char c : text)
        if (!is_control(c))
            line += c;
        else if (!line.empty() && line.back() != ' ')
            line += ' ';
    return cut(values::trimmed(line), longest_single_line, is_cut);
}

std::string several_lines(std::string_view text, bool* is_cut) {
    std::string lines;
    for (const char c : values::replaced(text, "\r\n", "\n"))
        if (c == '\r' || c == '\n')
            lines += '\n';
        else if (!is_control(c) || c == '\t')
            lines += c;
    const std::size_t last = lines.find_last_not_of(" \n");
    lines.resize(last == std::string::npos ? 0 : last + 1);
    return cut(lines, longest_several_lines, is_cut);
}

bool begins_as_call(std::string_view summary) {
    const std::string text = values::lower(values::trimmed(summary));
    return text.starts_with("call") && (text.size() == 4 || !is_letter(text[4]));
}

bool names_call(std::string_view categories) {
    std::string word;
    for (const char c : values::lower(categories) + " ") {
        if (is_letter(c)) {
            word += c;
            continue;
        }
        if (word == "call" || word == "calls" || word == "phone" || word == "telephone")
            return true;
        word.clear();
    }
    return false;
}

} // namespace importing
