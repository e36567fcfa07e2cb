#include "adapters/qt/file_lock.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace qt {

namespace {

constexpr int pause_milliseconds = 2;

enum class Attempt { done, held_by_another, impossible };

class OpenFile {
public:
    OpenFile() = default;
    ~OpenFile() { close(); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    bool open(const QByteArray& name, int flags) {
        close();
        descriptor_ = ::open(name.constData(), flags | O_CLOEXEC | O_NOFOLLOW, 0600);
        return descriptor_ >= 0;
    }
    int descriptor() const { return descriptor_; }

private:
    void close() {
        if (descriptor_ >= 0)
            ::close(descriptor_);
        descriptor_ = -1;
    }

    int descriptor_ = -1;
};

Attempt attempt_by(bool done) {
    if (done)
        return Attempt::done;
    return errno == EWOULDBLOCK || errno == EACCES ? Attempt::held_by_another : Attempt::impossible;
}

// The kernel frees the lock of a process that died; its file then stays until the next holder removes it. Costs no
// forced write to the disk, as the toolkit's own lock file does, since the lock needn't outlive the machine.
class LockFile : public host::FileLock {
public:
    explicit LockFile(const QByteArray& name) : name_(name) {}
    ~LockFile() override {
        if (held_)
            ::unlink(name_.constData());
    }

    Attempt attempt() {
        if (!file_.open(name_, O_RDWR | O_CREAT))
            return Attempt::impossible;
        const Attempt result = attempt_by(::flock(file_.descriptor(), LOCK_EX | LOCK_NB) == 0);
        held_ = result == Attempt::done && is_still_there();
        return result == Attempt::done && !held_ ? Attempt::held_by_another : result;
    }

private:
    // Whoever held it before may have removed the file between our opening and our locking it.
    bool is_still_there() const {
        struct stat ours = {}, named = {};
        return ::fstat(file_.descriptor(), &ours) == 0 && ::stat(name_.constData(), &named) == 0 &&
               ours.st_ino == named.st_ino && ours.st_dev == named.st_dev;
    }

    QByteArray name_;
    OpenFile file_;
    bool held_ = false;
};

class LockedByte : public host::FileLock {
public:
    explicit LockedByte(const QByteArray& name) : name_(name) {}

    Attempt attempt() {
#ifdef F_OFD_SETLK
        struct flock byte = {};
        byte.l_type = F_WRLCK;
        byte.l_whence = SEEK_SET;
        byte.l_start = lock_byte;
        byte.l_len = 1;
        if (file_.open(name_, O_RDWR))
            return attempt_by(::fcntl(file_.descriptor(), F_OFD_SETLK, &byte) == 0);
#endif
        return Attempt::impossible;
    }

private:
    QByteArray name_;
    OpenFile file_;
};

template <typename Lock>
std::unique_ptr<host::FileLock> take(const QByteArray& name, QDeadlineTimer deadline) {
    auto lock = std::make_unique<Lock>(name);
    Attempt attempt = lock->attempt();
    for (; attempt == Attempt::held_by_another && !deadline.hasExpired(); attempt = lock->attempt())
        QThread::msleep(pause_milliseconds);
    if (attempt != Attempt::done)
        return nullptr;
    return lock;
}

} // namespace

std::unique_ptr<host::FileLock> take_lock(const QString& path, int milliseconds) {
    const QDeadlineTimer deadline(milliseconds);
    const QByteArray name = QFile::encodeName(path);
    if (auto lock = take<LockFile>(name + ".lock", deadline))
        return lock;
    return deadline.hasExpired() ? nullptr : take<LockedByte>(name, deadline);
}

} // namespace qt
