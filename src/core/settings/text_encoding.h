#pragma once

#include <string>
#include <string_view>

namespace settings {

// The bytes of a text file as UTF-8 text, with what it takes to write them back in their own form:
// encoded(decoded( bytes)) gives the same bytes.
struct FileText {
    enum class Form { utf8, windows_1252, utf16le };

    std::string text;
    Form form = Form::utf8;
    bool has_byte_order_mark = false;
    std::string odd_byte; // what is left over at the end of a UTF-16 file of odd length
};

// A file that begins with the UTF-16LE byte order mark is that, one that isn't valid UTF-8 is Windows-1252.
FileText decoded(std::string_view bytes);
// A text that its form can't hold becomes UTF-8.
std::string encoded(const FileText& file);

} // namespace settings
