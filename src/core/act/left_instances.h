#pragma once

#include "core/act/session.h"
#include "core/host/platform.h"

namespace act {

// Deals with what programs left behind that died while an occurrence was edited (Database::Take_Back_Instances),
// and tells of each instance that stays. A failure shows its box and ends nothing else.
void take_back_instances(const host::Platform& here, Session& session);

} // namespace act
