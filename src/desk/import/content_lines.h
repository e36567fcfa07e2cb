#pragma once

#include <string>
#include <string_view>
#include <vector>

// The common ground of iCalendar and vCard files: lines, folded at any byte, in components from BEGIN to END.
namespace importing {

struct Line {
    int number = 0;     // in the file, from 1
    std::string text{}; // unfolded, UTF-8
};

// The name of a line in capitals, without a group before it and parameters after it; empty when the line has none.
std::string name_of(const Line& line);

// What comes after the name and the parameters.
std::string_view value_of(const Line& line);

struct Component {
    std::string name{}; // in capitals
    int line = 0;
    std::vector<Line> lines{}; // its own, without BEGIN, END and empty ones
    std::vector<Component> parts{};
};

// The value of the first line of that name; empty when there is none.
std::string_view value_in(const Component& component, std::string_view name);

// The components of a whole file. Lines may end in any way; text that isn't UTF-8 is read as Windows-1252. Throws
// a Failure that tells what is wrong when the bytes are no text, or don't consist of whole components.
std::vector<Component> components_of(std::string_view bytes);

} // namespace importing
