#pragma once

#include "core/host/shell.h"

#include <memory>

namespace qt {

// Pages begin with "http://" or "https://"; everything else is a file. Companions lie beside the executable.
std::unique_ptr<host::Shell> make_shell();

} // namespace qt
