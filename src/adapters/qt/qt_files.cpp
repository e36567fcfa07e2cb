#include "adapters/qt/qt_files.h"

#include "adapters/qt/file_lock.h"
#include "adapters/qt/file_state.h"
#include "adapters/qt/file_sync.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

namespace qt {

namespace {

constexpr int lock_milliseconds = 5000;

// The file that the links lead to, so that a link stays one.
QString target_of(const QString& path) {
    const QFileInfo info(path);
    return info.exists() ? info.canonicalFilePath() : path;
}

// Also for the superuser, who could write it all the same.
bool is_read_only(const QFileInfo& file) {
    return (file.permissions() & (QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther)) == 0;
}

bool write_to_disk(QFile& file, const char* bytes, qint64 count) {
    return file.write(bytes, count) == count && file.flush() && sync_to_disk(file);
}

// Without a second file, where the folder takes none. What needs room on the disk comes first, so that a full disk
// leaves the file as it was; only a power cut between the two writes can mix old and new.
bool overwrite(const QString& path, const std::string& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered))
        return false;
    const auto size = static_cast<qint64>(bytes.size());
    const QByteArray old = file.readAll();
    const qint64 old_size = file.size();
    if (old.size() != old_size)
        return false;
    const qint64 kept = std::min(size, old_size);
    if (!file.seek(old_size) || !write_to_disk(file, bytes.data() + kept, size - kept)) {
        file.resize(old_size);
        return false;
    }
    if (file.seek(0) && write_to_disk(file, bytes.data(), kept) && file.resize(size))
        return true;
    // Some file systems need room for what is written over as well.
    file.seek(0);
    write_to_disk(file, old.data(), old_size);
    file.resize(old_size);
    return false;
}

class QtFiles : public host::Files {
public:
    bool exists(const std::string& path) const override {
        return !path.empty() && QFileInfo::exists(QString::fromStdString(path));
    }

    std::optional<host::FileStamp> stamp(const std::string& path) const override {
        const std::optional<FileState> state = file_state(path);
        return state ? std::optional(state->stamp) : std::nullopt;
    }

    std::optional<host::FileContent> read(const std::string& path, std::size_t most) const override {
        const std::optional<FileState> state = file_state(path);
        QFile file(QString::fromStdString(path));
        if (!state || state->stamp.size > most || !file.open(QIODevice::ReadOnly))
            return std::nullopt;
        const QByteArray bytes = file.read(static_cast<qint64>(most));
        if (file.error() != QFileDevice::NoError || !file.atEnd())
            return std::nullopt;
        return host::FileContent{.bytes = bytes.toStdString(), .stamp = state->stamp, .settled = state->settled};
    }

    bool replace(const std::string& path, const std::string& bytes) override {
        const QString target = target_of(QString::fromStdString(path));
        const QFileInfo info(target);
        if (info.exists() && (is_read_only(info) || !file_state(target.toStdString())))
            return false;
        QSaveFile file(target);
        if (!file.open(QIODevice::WriteOnly))
            return info.exists() && overwrite(target, bytes);
        // Neither what is still in the buffer when it commits nor its own flush to the disk is looked after by the
        // class.
        return file.write(bytes.data(), static_cast<qint64>(bytes.size())) >= 0 && file.flush() &&
               sync_to_disk(file) && file.commit();
    }

    std::unique_ptr<host::FileLock> lock(const std::string& path) override {
        return take_lock(target_of(QString::fromStdString(path)), lock_milliseconds);
    }
};

} // namespace

std::unique_ptr<host::Files> make_files() { return std::make_unique<QtFiles>(); }

} // namespace qt
