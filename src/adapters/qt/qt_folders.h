#pragma once

#include "core/host/folders.h"

#include <memory>
#include <string>

namespace qt {

// The executable's folder is the program's folder where it can be written, else the folder for the user's own
// data, which receives those of the shipped pictures, icons, template and manual that it doesn't have yet.
std::unique_ptr<host::Folders> make_folders();

// The same for any two places: `shipped` is the executable's folder, `own` the user's. For tests.
std::unique_ptr<host::Folders> make_folders(const std::string& shipped, const std::string& own);

} // namespace qt
