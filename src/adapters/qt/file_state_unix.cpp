#include "adapters/qt/file_state.h"

#include "adapters/qt/file_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ctime>

namespace qt {

namespace {

constexpr std::int64_t second = 1'000'000'000;

class Descriptor {
public:
    explicit Descriptor(const std::string& path)
        : number_(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {}
    ~Descriptor() {
        if (number_ >= 0)
            ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int number() const { return number_; }

private:
    int number_;
};

// Programs lock whole files or ranges of them; either keeps us out.
bool locked_elsewhere(int descriptor) {
    if (::flock(descriptor, LOCK_SH | LOCK_NB) != 0)
        return true;
#ifdef F_OFD_GETLK
    struct flock range = {};
    range.l_type = F_RDLCK;
    range.l_whence = SEEK_SET;
    range.l_len = lock_byte;
    if (::fcntl(descriptor, F_OFD_GETLK, &range) == 0 && range.l_type != F_UNLCK)
        return true;
#endif
    return false;
}

std::int64_t nanoseconds(const timespec& time) { return time.tv_sec * second + time.tv_nsec; }

// Times of modification advance with the kernel's tick, at least every 10 milliseconds; on a file system that
// keeps whole seconds, every other second.
bool is_settled(const timespec& modified) {
    timespec now = {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    const std::int64_t grain = modified.tv_nsec == 0 ? 2 * second : second / 50;
    return nanoseconds(now) - nanoseconds(modified) > grain;
}

} // namespace

std::optional<FileState> file_state(const std::string& path) {
    const Descriptor file(path);
    struct stat status = {};
    if (file.number() < 0 || ::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode) ||
        locked_elsewhere(file.number()))
        return std::nullopt;
    return FileState{.stamp = {.size = static_cast<std::uint64_t>(status.st_size),
                               .modified = nanoseconds(status.st_mtim),
                               .identity = status.st_ino},
                     .settled = is_settled(status.st_mtim)};
}

} // namespace qt
