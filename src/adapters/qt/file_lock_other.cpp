#include "adapters/qt/file_lock.h"

#include <QLockFile>

namespace qt {

namespace {

class Lock : public host::FileLock {
public:
    explicit Lock(const QString& path) : file_(path + ".lock") {
        file_.setStaleLockTime(0); // only the death of its process frees a lock
    }
    bool take(int milliseconds) { return file_.tryLock(milliseconds); }

private:
    QLockFile file_;
};

} // namespace

std::unique_ptr<host::FileLock> take_lock(const QString& path, int milliseconds) {
    auto lock = std::make_unique<Lock>(path);
    if (!lock->take(milliseconds))
        return nullptr;
    return lock;
}

} // namespace qt
