#pragma once

#include "core/values/date_time.h"

#include <cstdint>
#include <functional>

namespace importing {

// The wall-clock time, in the zone that times are converted to, of a moment in seconds since 1970 in UTC.
using LocalTime = std::function<values::DateTime(std::int64_t seconds)>;

values::DateTime system_local_time(std::int64_t seconds); // the machine's own zone

} // namespace importing
