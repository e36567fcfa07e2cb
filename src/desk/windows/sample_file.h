#pragma once

#include "core/values/date_time.h"

#include <string>

namespace windows {

// Makes a database with the sample company, as of a day. Fails when a file stands at the path already, and leaves
// none behind when it can't be filled.
void create_sample(const std::string& path, values::DateTime day);

} // namespace windows
