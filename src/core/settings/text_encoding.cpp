#include "core/settings/text_encoding.h"

#include "core/values/code_points.h"
#include "core/values/text.h"

namespace settings {

namespace {

constexpr std::string_view utf8_mark = "\xEF\xBB\xBF";
constexpr std::string_view utf16le_mark = "\xFF\xFE";

bool is_high_surrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool is_low_surrogate(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

char32_t unit_at(std::string_view bytes, std::size_t at) {
    return at + 1 < bytes.size() ? static_cast<unsigned char>(bytes[at]) |
                                       static_cast<char32_t>(static_cast<unsigned char>(bytes[at + 1])) << 8
                                 : 0;
}

// A surrogate without its other half comes through as if it were a character.
std::string utf8_from_utf16le(std::string_view bytes) {
    std::string text;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        char32_t unit = unit_at(bytes, i);
        if (const char32_t low = unit_at(bytes, i + 2); is_high_surrogate(unit) && is_low_surrogate(low)) {
            unit = 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
            i += 2;
        }
        values::append_code_point(text, unit);
    }
    return text;
}

void append_unit(std::string& bytes, char32_t unit) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
}

std::string utf16le_from_utf8(std::string_view text) {
    std::string bytes;
    while (!text.empty()) {
        const auto next = values::first_code_point(text);
        if (!next) { // a lone surrogate, which the decoding above has written as three bytes
            append_unit(bytes, 0xD000u | (text[1] & 0x3Fu) << 6 | (text[2] & 0x3Fu));
        } else if (next->value < 0x10000) {
            append_unit(bytes, next->value);
        } else {
            append_unit(bytes, 0xD800 + ((next->value - 0x10000) >> 10));
            append_unit(bytes, 0xDC00 + ((next->value - 0x10000) & 0x3FF));
        }
        text.remove_prefix(next ? next->bytes : 3);
    }
    return bytes;
}

} // namespace

FileText decoded(std::string_view bytes) {
    FileText file;
    if (bytes.starts_with(utf16le_mark)) {
        bytes.remove_prefix(utf16le_mark.size());
        file.form = FileText::Form::utf16le;
        file.has_byte_order_mark = true;
        file.text = utf8_from_utf16le(bytes);
        if (bytes.size() % 2 == 1)
            file.odd_byte = bytes.back();
        return file;
    }
    if (bytes.starts_with(utf8_mark)) {
        bytes.remove_prefix(utf8_mark.size());
        file.has_byte_order_mark = true;
    }
    if (values::is_utf8(bytes)) {
        file.text = bytes;
    } else {
        file.form = FileText::Form::windows_1252;
        file.text = values::utf8_from_windows_1252(bytes);
    }
    return file;
}

std::string encoded(const FileText& file) {
    if (file.form == FileText::Form::utf16le)
        return std::string(utf16le_mark) + utf16le_from_utf8(file.text) + file.odd_byte;
    const std::string mark(file.has_byte_order_mark ? utf8_mark : "");
    if (file.form == FileText::Form::windows_1252) {
        // Bytes that happen to be valid UTF-8 would be read back as such.
        const auto bytes = values::windows_1252_from_utf8(file.text);
        if (bytes && !values::is_utf8(*bytes))
            return mark + *bytes;
    }
    return mark + file.text;
}

} // namespace settings
