#pragma once

#include "desk/store/records.h"

#include <string>
#include <vector>

// The lines that the desk adds to entries and cards (docs/exchange.md), so that an import has the whole record
// again.
namespace exporting {

// What an activity's ids stand for.
struct NamedContact {
    std::string uid{}, name{}, mail{}, company{};
};
struct ActivityNames {
    std::string user{};
    std::string group_uid{}, group{};
    std::vector<NamedContact> contacts{};
};

// A line with its end, folded, of parts that are escaped here: one of the desk's own, and one that other programs
// know.
std::string own_line(std::string_view name, const std::vector<std::string>& parts);
std::string known_line(std::string_view name, const std::vector<std::string>& parts);

// The entry with its activity's own lines in it.
std::string with_own_lines(const std::string& entry, const store::Activity& activity, const ActivityNames& names);

// The component with these lines, and the check by which an import sees whether other programs left it as it is.
std::string with_lines(const std::string& component, const std::string& lines);

} // namespace exporting
