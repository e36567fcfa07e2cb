#pragma once

#include "core/host/files.h"

#include <memory>

namespace qt {

// Files of the machine, locked as file_lock.h tells.
std::unique_ptr<host::Files> make_files();

} // namespace qt
