#include "adapters/qt/file_sync.h"

#include <QFileDevice>

#include <io.h>

namespace qt {

bool sync_to_disk(const QFileDevice& file) { return ::_commit(file.handle()) == 0; }

} // namespace qt
