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

// The kernel frees the lock of a process that died; its file then stays until the next holder removes it. Costs no
// forced write to the disk, as the toolkit's own lock file does, since the lock needn't outlive the machine.
class Lock : public host::FileLock {
public:
    explicit Lock(const QString& lock_file) : name_(QFile::encodeName(lock_file)) {}
    ~Lock() override {
        if (held_)
            ::unlink(name_.constData());
        close();
    }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

    enum class Attempt { done, held_by_another, impossible };
    Attempt attempt() {
        close();
        descriptor_ = ::open(name_.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
        if (descriptor_ < 0)
            return Attempt::impossible;
        if (::flock(descriptor_, LOCK_EX | LOCK_NB) != 0)
            return errno == EWOULDBLOCK ? Attempt::held_by_another : Attempt::impossible;
        held_ = is_still_there();
        return held_ ? Attempt::done : Attempt::held_by_another;
    }

private:
    // Whoever held it before may have removed the file between our opening and our locking it.
    bool is_still_there() const {
        struct stat ours = {}, named = {};
        return ::fstat(descriptor_, &ours) == 0 && ::stat(name_.constData(), &named) == 0 &&
               ours.st_ino == named.st_ino && ours.st_dev == named.st_dev;
    }
    void close() {
        if (descriptor_ >= 0)
            ::close(descriptor_);
        descriptor_ = -1;
    }

    QByteArray name_;
    int descriptor_ = -1;
    bool held_ = false;
};

} // namespace

std::unique_ptr<host::FileLock> take_lock(const QString& lock_file, int milliseconds) {
    auto lock = std::make_unique<Lock>(lock_file);
    for (QDeadlineTimer deadline(milliseconds);; QThread::msleep(pause_milliseconds)) {
        switch (lock->attempt()) {
        case Lock::Attempt::done:
            return lock;
        case Lock::Attempt::impossible:
            return nullptr;
        case Lock::Attempt::held_by_another:
            if (deadline.hasExpired())
                return nullptr;
        }
    }
}

} // namespace qt
