#include "adapters/qt/qt_user_store.h"

#include "core/settings/file_user_store.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace qt {

std::string user_store_path() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return (folder + "/Orvanta/user-store.ini").toStdString();
}

std::unique_ptr<host::UserStore> make_user_store(host::Files& files) {
    const std::string path = user_store_path();
    QDir().mkpath(QFileInfo(QString::fromStdString(path)).path());
    return std::make_unique<settings::FileUserStore>(files, path);
}

} // namespace qt
