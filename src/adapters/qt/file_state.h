#pragma once

#include "core/host/files.h"

#include <optional>
#include <string>

namespace qt {

// A file as it now is on its disk.
struct FileState {
    host::FileStamp stamp;
    // The file system has had the time to give a further change another time of modification.
    bool settled = false;
};

// Absent when there is no such file, when it is a folder, and while another program has locked it. Each platform
// has its own source file for this.
std::optional<FileState> file_state(const std::string& path);

} // namespace qt
