#pragma once

#include <string>
#include <string_view>
#include <vector>

// The common ground of iCalendar and vCard files: lines, folded at any byte, in components from BEGIN to END.
namespace importing {

struct Line {
    int number = 0;         // in the file, from 1
    std::string text{};     // unfolded, UTF-8
    bool is_mended = false; // some of its bytes were no UTF-8
};

// Bytes as text: those that are no UTF-8 are read as Windows-1252, the others stay as they are.
std::string readable(std::string_view bytes);

// The name of a line in capitals, without a group before it and parameters after it; empty when the line has none.
std::string name_of(const Line& line);

// What comes after the name and the parameters.
std::string_view value_of(const Line& line);

// A text's escapes as what they stand for; a backslash before any other character stays.
std::string unescaped(std::string_view text);

struct Component {
    std::string name{}; // in capitals
    int line = 0;
    std::vector<Line> lines{}; // its own, without BEGIN, END and empty ones
    std::vector<Component> parts{};
};

// The value of the first line of that name; empty when there is none.
std::string_view value_in(const Component& component, std::string_view name);

struct Content {
    std::vector<Component> components{};
    std::vector<int> stray_lines{}; // the numbers of those that stand in no component
    std::size_t mended_lines = 0;
};

// What a whole file holds. Lines may end in any way. Throws a Failure that tells what is wrong when the bytes are
// no text, have no component at all, or have one that isn't whole.
Content content_of(std::string_view bytes);

} // namespace importing
