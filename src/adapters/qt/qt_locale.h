#pragma once

#include "core/values/locale.h"

class QLocale;

namespace qt {

// How the locale writes dates, times and numbers, in the core's patterns. Years have four digits, since what is
// written has to be read back. A machine without a locale ("C") gets the English of the United States.
values::Locale locale_from(const QLocale& locale);

values::Locale system_locale();

} // namespace qt
