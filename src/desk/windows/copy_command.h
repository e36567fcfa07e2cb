#pragma once

#include "desk/windows/open_database.h"

#include <QWidget>

namespace windows {

// File > Save a Copy: asks for a file and has the open database copied there, with a window that tells how far it
// is and can stop it. Ends a failure in its box.
void save_copy(OpenDatabase& database, QWidget& window);

} // namespace windows
