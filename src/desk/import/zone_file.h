#pragma once

#include "core/recurrence/calendar_walk.h"
#include "desk/import/zone.h"

#include <optional>
#include <string_view>

namespace importing {

// The zone that a compiled file of the time zone database holds (RFC 8536, from its version 2 on). Absent when the
// bytes are no such file, or one that counts leap seconds.
std::optional<Zone> zone_in_file(std::string_view bytes, const recurrence::Spend& spend);

} // namespace importing
