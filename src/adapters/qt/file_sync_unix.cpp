#include "adapters/qt/file_sync.h"

#include <QFile>

#include <unistd.h>

namespace qt {

bool sync_to_disk(const QFile& file) { return ::fsync(file.handle()) == 0; }

} // namespace qt
