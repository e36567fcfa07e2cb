#pragma once

#include "core/host/files.h"

#include <QString>

#include <memory>

namespace qt {

// Where a file is locked itself: far beyond what any file holds, so that nobody who locks its content is in the
// way.
inline constexpr long long lock_byte = 1LL << 62;

// Locks a file by a lock file beside it, its name with ".lock" appended, which is there only as long as it is
// held; in a folder that takes no such file, by a byte of the file itself where the platform has that. Who may
// write the folder and who may not don't keep each other out. Waits for another process that holds the lock, at
// most so long; null when it can't be had. Each platform has its own source file for this.
std::unique_ptr<host::FileLock> take_lock(const QString& path, int milliseconds);

} // namespace qt
