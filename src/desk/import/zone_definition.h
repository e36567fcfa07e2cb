#pragma once

#include "core/recurrence/calendar_walk.h"
#include "desk/import/content_lines.h"
#include "desk/import/zone.h"

#include <optional>

namespace importing {

// The zone that a VTIMEZONE defines. Absent when a part of it can't be read, or there is none.
std::optional<Zone> zone_of(const Component& definition, const recurrence::Spend& spend);

} // namespace importing
