#include "adapters/qt/single_instance.h"

#include <QDir>
#include <QGuiApplication>
#include <QStandardPaths>

namespace qt {

namespace {

QString runtime_folder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return folder.isEmpty() ? QDir::tempPath() : folder;
}

// The display that the windows go to, without the number of its screen.
QString display_name() {
    if (QGuiApplication::platformName().startsWith("wayland"))
        return qEnvironmentVariable("WAYLAND_DISPLAY", "wayland-0");
    const QString display = qEnvironmentVariable("DISPLAY");
    const qsizetype screen = display.indexOf(u'.', display.lastIndexOf(u':') + 1);
    return screen < 0 ? display : display.left(screen);
}

QString file_for(const QString& program, const QString& folder, const QString& display) {
    QString name = program + "-" + display;
    for (QChar& c : name)
        if (!c.isLetterOrNumber() && c != u'-')
            c = u'_';
    return folder + "/" + name + ".lock";
}

} // namespace

SingleInstance::SingleInstance(const QString& program)
    : SingleInstance(program, runtime_folder(), display_name()) {}

SingleInstance::SingleInstance(const QString& program, const QString& folder, const QString& display)
    : lock_(file_for(program, folder, display)) {
    lock_.setStaleLockTime(0); // a calendar that has been open for days is no leftover
}

bool SingleInstance::already_running() {
    if (!held_)
        held_ = lock_.tryLock(0);
    return !held_ && lock_.error() == QLockFile::LockFailedError;
}

} // namespace qt
