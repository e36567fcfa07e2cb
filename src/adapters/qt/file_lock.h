#pragma once

#include "core/host/files.h"

#include <QString>

#include <memory>

namespace qt {

// Holds a lock file, which is there only as long as it is held. Waits for another process that holds it, at most
// so long; null when it can't be had. Each platform has its own source file for this.
std::unique_ptr<host::FileLock> take_lock(const QString& lock_file, int milliseconds);

} // namespace qt
