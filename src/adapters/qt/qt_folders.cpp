#include "adapters/qt/qt_folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace qt {

namespace {

// Rights alone don't tell: a file system can be mounted read-only.
bool can_be_written(const QString& folder) {
    QTemporaryFile probe(folder + "/.orvanta-XXXXXX");
    return probe.open();
}

// Whole or not at all.
bool copy(const QString& from, const QString& to) {
    if (QFile::copy(from, to) && QFileInfo(to).size() == QFileInfo(from).size())
        return true;
    QFile::remove(to);
    return false;
}

void copy_missing(const QString& shipped, const QString& own) {
    QDir().mkpath(own);
    const QStringList wanted{"*.gif", "*.svg", "*.ico", "*.xlt", "*.pdf"};
    for (const QString& name : QDir(shipped).entryList(wanted, QDir::Files)) {
        const QString target = own + "/" + name;
        if (QFile::exists(target) || !copy(shipped + "/" + name, target))
            continue; // a picture that couldn't be copied is missed where it is used, with a message there
        QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner);
    }
}

class QtFolders : public host::Folders {
public:
    QtFolders(const QString& shipped, const QString& own) {
        if (can_be_written(shipped)) {
            folder_ = shipped.toStdString();
            return;
        }
        copy_missing(shipped, own);
        folder_ = own.toStdString();
    }
    std::string program_folder() const override { return folder_; }

private:
    std::string folder_;
};

} // namespace

std::unique_ptr<host::Folders> make_folders() {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return make_folders(QCoreApplication::applicationDirPath().toStdString(), (data + "/Orvanta").toStdString());
}

std::unique_ptr<host::Folders> make_folders(const std::string& shipped, const std::string& own) {
    return std::make_unique<QtFolders>(QString::fromStdString(shipped), QString::fromStdString(own));
}

} // namespace qt
