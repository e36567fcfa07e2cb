#pragma once

#include "core/host/files.h"

#include <memory>

namespace qt {

// Files of the machine. A lock is a file beside the locked one, with ".lock" appended to its name.
std::unique_ptr<host::Files> make_files();

} // namespace qt
