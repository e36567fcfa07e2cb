#include "adapters/qt/file_state.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

namespace qt {

// A platform that locks files doesn't let them be opened, and keeps times of modification to two seconds at the
// coarsest.
std::optional<FileState> file_state(const std::string& path) {
    const QString name = QString::fromStdString(path);
    const QFileInfo info(name);
    QFile file(name);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const qint64 modified = info.lastModified().toMSecsSinceEpoch();
    return FileState{.stamp = {.size = static_cast<std::uint64_t>(info.size()), .modified = modified},
                     .settled = QDateTime::currentMSecsSinceEpoch() - modified > 2000};
}

} // namespace qt
