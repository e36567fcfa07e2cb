#pragma once

#include "desk/windows/open_database.h"

#include <string>
#include <vector>

namespace windows {

// Puts contacts into a group; those that are in it already stay single. Failures are the store's, and the group
// may have gone: that fails with 440.
void add_members(OpenDatabase& database, const std::string& group, const std::vector<std::string>& contacts);
void remove_member(OpenDatabase& database, const std::string& group, const std::string& contact);

} // namespace windows
