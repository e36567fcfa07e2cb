#pragma once

#include <string>

namespace qt {

// The name by which this machine knows a time zone that Windows calls so ("W. Europe Standard Time"): that of the
// zone's main place. Empty when Windows has no such zone.
std::string zone_name_from_windows(const std::string& name);

} // namespace qt
