#pragma once

#include "core/values/locale.h"
#include "desk/store/records.h"

#include <string>

namespace service {

// A field of an activity, by its number in act/activity.h, as the text that a list shows to other programs: flags
// are "1" and "0", dates stand in their default form in the locale, a field that there is not is empty.
std::string field_text(const store::Activity& activity, int field, const values::Locale& locale);

} // namespace service
