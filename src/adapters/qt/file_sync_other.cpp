#include "adapters/qt/file_sync.h"

#include <QFile>

#include <io.h>

namespace qt {

bool sync_to_disk(const QFile& file) { return ::_commit(file.handle()) == 0; }

} // namespace qt
