#include "adapters/qt/file_sync.h"

#include <QFileDevice>

#include <unistd.h>

namespace qt {

bool sync_to_disk(const QFileDevice& file) { return ::fsync(file.handle()) == 0; }

} // namespace qt
